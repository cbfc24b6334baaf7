#ifndef MELVOX_ROBUSTNESS_FAULTY_PAGE_H
#define MELVOX_ROBUSTNESS_FAULTY_PAGE_H

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt_gui/dialogPage.h"

#include <QComboBox>
#include <QDialog>
#include <QPointer>
#include <QWidget>

namespace melvox_robustness
{

/** A page with a fault of one's choice, which comes once its button was tapped often enough with "Armed" chosen: what
 *  the checks have to find. */
class faultyPage_t : public QWidget
{
    Q_OBJECT

public:
    explicit faultyPage_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~faultyPage_t() override;

    /** "unasked", "warning", "crash", "lock", "unlocked", "blocks", "dialog", "growth"; none of them: no fault. */
    static void setFault(QString const& name);

private slots:
    void tapped();

private:
    void fail();

    brel_common_qt::remoteMelvoxDevice_t* m_device;
    QComboBox* m_choice;
    QPointer<QDialog> m_dialog;
    brel_common_qt_gui::dialogPage_t* m_dialogPage;
    int m_taps;
};

} // namespace melvox_robustness

#endif
