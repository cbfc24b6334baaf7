#ifndef MELVOX_TEST_FINGER_H
#define MELVOX_TEST_FINGER_H

#include <QPoint>
#include <QString>
#include <QWidget>

namespace melvox_display
{
class keypad_t;
}

/** A finger on the screen of the display: it touches the window where a widget is, never the widget itself. Each says
 *  what was in its way, nothing when all went well. */
namespace melvox_test
{

/** Scrolls until the place in the widget is in sight. */
QString bringInSight(QWidget* widget, QPoint const& place);

QString touch(QWidget* widget, QPoint const& place);
QString touch(QWidget* widget);

/** Names of keys with blanks between: "1 2 . 5 done". */
QString pressKeys(melvox_display::keypad_t* keypad, QString const& keys);

} // namespace melvox_test

#endif
