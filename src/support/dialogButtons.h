#ifndef MELVOX_UI_DIALOG_BUTTONS_H
#define MELVOX_UI_DIALOG_BUTTONS_H

class QDialog;
class QDialogButtonBox;

namespace brel_common_qt_gui
{

/** Lets Tab come by all buttons of the box, in the order in which the style shows them. Once for a box is enough; again
 *  does nothing. */
void keepTabOrder(QDialogButtonBox* box);

/** Makes the box's buttons large enough for a finger; buttons added later see to themselves. */
void enlargeButtons(QDialogButtonBox* box);

/** Wires a dialog's own buttons: accepted() to the slot, rejected() to reject(); and makes them large enough for a
 *  finger. */
void connectDialogButtons(QDialogButtonBox* box, QDialog* dialog, char const* acceptSlot);

} // namespace brel_common_qt_gui

#endif
