#ifndef MELVOX_UI_TOUCH_BUTTONS_H
#define MELVOX_UI_TOUCH_BUTTONS_H

class QDialogButtonBox;

namespace brel_common_qt_gui
{

/** Makes the box's buttons large enough for a finger; buttons added later see to themselves. */
void enlargeButtons(QDialogButtonBox* box);

} // namespace brel_common_qt_gui

#endif
