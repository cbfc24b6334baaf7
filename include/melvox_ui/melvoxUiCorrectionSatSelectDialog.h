#ifndef MELVOX_UI_CORRECTION_SAT_SELECT_DIALOG_H
#define MELVOX_UI_CORRECTION_SAT_SELECT_DIALOG_H

#include "melvox_ui/melvoxUiExport.h"

#include <QDialog>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

/** Lists the correction satellites that the receiver knows, and leaves the choice to the receiver or picks one of them.
 *  The list follows the receiver by itself; call setStateFromDevice() before each showing. The receiver must outlive
 *  the dialog. */
class MELVOX_UI_EXPORT melvoxUiCorrectionSatSelectDialog_t : public QDialog
{
    Q_OBJECT

public:
    melvoxUiCorrectionSatSelectDialog_t(brel_common_qt::remoteMelvoxDevice_t* device, QWidget* parent);
    ~melvoxUiCorrectionSatSelectDialog_t();

public slots:
    void query();
    /** Sends the choice and closes. With a choice still to be made it does neither. */
    void submit();
    void updateSatList();

    /** Shows what the receiver does now: whether it chooses by itself, and the satellite that it uses. */
    void setStateFromDevice();
    void setAutoSelectFromDevice();
    void setSelectedSatFromDevice();

    void updateAutoSelect();
    void updateOkButton();

private:
    Q_DISABLE_COPY(melvoxUiCorrectionSatSelectDialog_t)

    class satItem_t;
    struct privateData_t;

    satItem_t* findItemBySatId(unsigned int id) const;

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
