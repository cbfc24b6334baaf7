#ifndef MELVOX_UI_FIRMWARE_SELECTOR_P_H
#define MELVOX_UI_FIRMWARE_SELECTOR_P_H

#include "melvox_ui/melvoxUiFirmwareSelector.h"

class QMessageBox;

namespace brel_common_qt_gui
{

class dialogPage_t;
class fileChooser_t;
class melvoxUiUsbFirmwareSelectDialog_t;

struct MELVOX_UI_HIDDEN melvoxUiFirmwareSelector_t::privateData_t
{
    privateData_t();
    ~privateData_t();

    melvoxUiFirmwarePackage_t* package; //!< owned until it is taken
    int productCode;
    // Null on units without USB drives. The pages own their dialogs.
    dialogPage_t* driveSelectPage;
    melvoxUiUsbFirmwareSelectDialog_t* usbDialog;
    dialogPage_t* usbDialogPage;
    QMessageBox* invalidBox; //!< made when it is first needed
    dialogPage_t* invalidBoxPage;
    fileChooser_t* fileChooser; //!< the selector's child
};

} // namespace brel_common_qt_gui

#endif
