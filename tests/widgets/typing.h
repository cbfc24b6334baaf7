#ifndef MELVOX_TEST_TYPING_H
#define MELVOX_TEST_TYPING_H

#include "support/test.h"

#include <QLineEdit>
#include <QWidget>

namespace melvox_test
{

/** The part of that name, which must be there. */
template <typename part_t> part_t* part(QWidget const& widget, QString const& name)
{
    part_t* const found = widget.findChild<part_t*>(name);
    if (!found)
        qFatal("no %s in %s", qPrintable(name), widget.metaObject()->className());
    return found;
}

/** Taps into a field, clears it and types, as an operator does. */
inline void type(QWidget& widget, QString const& name, QString const& text)
{
    QLineEdit* const field = part<QLineEdit>(widget, name);
    field->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, text);
}

inline QString text(QWidget const& widget, QString const& name)
{
    return part<QLineEdit>(widget, name)->text();
}

/** Shows the window and waits until it has the keyboard. */
inline bool showActive(QWidget& window)
{
    window.show();
    window.activateWindow();
    return waitFor([&window]() { return window.isActiveWindow(); });
}

} // namespace melvox_test

#endif
