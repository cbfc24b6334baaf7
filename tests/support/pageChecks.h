#ifndef MELVOX_TEST_PAGE_CHECKS_H
#define MELVOX_TEST_PAGE_CHECKS_H

#include <QStringList>
#include <QWidget>

class QLineEdit;

/** What must hold for whatever an operator sees. Each check looks at the widgets within `root` that are visible now and
 *  names those that are at fault. */
namespace melvox_test
{

/** No finger hits what is lower. */
int const TOUCH_HEIGHT = 40;

bool isEditor(QWidget const* widget);

/** The parts that Qt makes widgets of: the edit of a combo box, the arrows of a scroll bar. */
bool isInner(QWidget const* widget);

/** Its object name; without one what it says, or else what it is. */
QString nameOf(QWidget const* widget);

/** Editors and lists within the same window, shown or not, that nobody can tell apart without seeing them. */
QStringList namelessWidgets(QWidget* root);

QStringList tooLowForFingers(QWidget* root);

/** Texts, current and possible ones, for which there is no room, and what stands out of its surroundings. */
QStringList cutOff(QWidget* root);

/** Lists that show less than so many of the rows they have. */
QStringList tooShort(QWidget* root, int rows);

/** What lies over its neighbour. */
QStringList overlapping(QWidget* root);

/** What has to be scrolled sideways and need not be: pages never, lists only when their texts are wider than they. */
QStringList tooWide(QWidget* root);

/** The widest text that the edit's mask lets in; what it shows when it has no mask. */
QString longestText(QLineEdit const* edit);

} // namespace melvox_test

#endif
