#ifndef MELVOX_ROBUSTNESS_OPERATOR_HANDS_H
#define MELVOX_ROBUSTNESS_OPERATOR_HANDS_H

#include "dice.h"

#include <QString>

class QFileDialog;
class QWidget;

namespace melvox_robustness
{

/** Does something to one of the widgets that can be touched within `root`: types, chooses, taps, selects, sorts. Returns
 *  what it did, for people. */
QString touchSomething(dice_t& dice, QWidget* root);

/** Chooses this file, or thinks better of it. Nothing else is touched there: those dialogs make and delete files. */
QString chooseFile(dice_t& dice, QFileDialog* dialog, QString const& path);

} // namespace melvox_robustness

#endif
