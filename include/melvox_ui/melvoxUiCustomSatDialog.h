#ifndef MELVOX_UI_CUSTOM_SAT_DIALOG_H
#define MELVOX_UI_CUSTOM_SAT_DIALOG_H

#include "melvox_ui/melvoxUiExport.h"

#include <QDialog>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

/** Shows, defines and clears the one correction satellite that the user can define: id, and frequency in megahertz.
 *  No page opens it; where it is offered is the host's choice. It stays open after each action and shows what the
 *  receiver made of it. The receiver must outlive the dialog. */
class MELVOX_UI_EXPORT melvoxUiCustomSatDialog_t : public QDialog
{
    Q_OBJECT

public:
    melvoxUiCustomSatDialog_t(brel_common_qt::remoteMelvoxDevice_t* device, QWidget* parent);
    ~melvoxUiCustomSatDialog_t();

public slots:
    void updateCustomSat();
    /** Sends what stands in the edits; whether it makes sense is the receiver's to say. */
    void defineCustomSat();
    void deleteCustomSat();

private:
    Q_DISABLE_COPY(melvoxUiCustomSatDialog_t)

    struct privateData_t;

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
