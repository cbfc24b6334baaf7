#ifndef MELVOX_KIT_DIALOG_H
#define MELVOX_KIT_DIALOG_H

#include "brel_common_qt_gui/brelCommonQtGuiExport.h"

class QDialog;
class QMessageBox;

/** Dialogs that let the event loop run on. */
namespace melvox_kit
{

/** Shows the dialog on the host or, without one, as a window in front of its own. Returns at once. */
BREL_COMMON_QT_GUI_EXPORT void showDialog(QDialog* dialog);

/** The same for a dialog that is needed once: it deletes itself when it is finished. */
BREL_COMMON_QT_GUI_EXPORT void showOnce(QDialog* dialog);

/** Makes the buttons of a message box large enough for a finger. */
BREL_COMMON_QT_GUI_EXPORT void enlargeButtons(QMessageBox* box);

} // namespace melvox_kit

#endif
