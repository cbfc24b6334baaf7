#ifndef MELVOX_DISPLAY_WIDGET_PATH_H
#define MELVOX_DISPLAY_WIDGET_PATH_H

#include <QString>

class QAbstractButton;
class QWidget;

namespace melvox_display
{

/** What a button is called whatever its text was translated to: the name of its standard, such as "Apply", or else its
 *  text. */
QString buttonName(QAbstractButton const* button);

/** Names a widget within a page or dialog: by its object name where that is the only one, and otherwise by the named
 *  widget that it is in: "elevationMaskLineEdit", "buttonBox/Apply", "list/QToolButton:2". */
QString pathOf(QWidget* root, QWidget* widget);

/** Null when there is none. */
QWidget* findWidget(QWidget* root, QString const& path);

} // namespace melvox_display

#endif
