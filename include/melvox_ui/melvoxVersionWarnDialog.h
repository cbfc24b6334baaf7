#ifndef MELVOX_VERSION_WARN_DIALOG_H
#define MELVOX_VERSION_WARN_DIALOG_H

#include "melvox_ui/melvoxUiExport.h"

#include <QDialog>

#include <vector>

namespace brel_common_qt_gui
{

/** Tells the operator that the receiver's firmware is too old, and which version it should have at least. Versions are
 *  numbers, the most significant first; none shows as an empty text. Needs no receiver. */
class MELVOX_UI_EXPORT melvoxVersionWarnDialog_t : public QDialog
{
    Q_OBJECT

public:
    explicit melvoxVersionWarnDialog_t(QWidget* parent);
    ~melvoxVersionWarnDialog_t();

    void setMinimumVersion(std::vector<unsigned int> const& version);
    void setCurrentVersion(std::vector<unsigned int> const& version);

private:
    Q_DISABLE_COPY(melvoxVersionWarnDialog_t)

    struct privateData_t;
    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
