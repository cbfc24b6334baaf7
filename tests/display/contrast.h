#ifndef MELVOX_TEST_CONTRAST_H
#define MELVOX_TEST_CONTRAST_H

#include <QColor>
#include <QStringList>
#include <QWidget>

namespace melvox_test
{

/** How far two colours are apart for an eye that sees no hue: 1 for the same, 21 for black and white. */
double contrast(QColor const& one, QColor const& other);

/** The enabled widgets within `root` whose text is not far enough from what is behind it: 4.5, for large text 3. It is
 *  measured on what is painted. What is scrolled out of sight is not looked at. */
QStringList hardToRead(QWidget* root);

} // namespace melvox_test

#endif
