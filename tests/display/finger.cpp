#include "finger.h"

#include "display/keypad.h"
#include "support/pageChecks.h"
#include "support/test.h"

#include <QPushButton>
#include <QScrollArea>
#include <QWindow>

namespace melvox_test
{

namespace
{

QPushButton* visibleKey(melvox_display::keypad_t* keypad, QString const& name)
{
    for (QPushButton* key : keypad->findChildren<QPushButton*>("key_" + name))
    {
        if (key->isVisible())
            return key;
    }
    return nullptr;
}

} // namespace

QString bringInSight(QWidget* widget, QPoint const& place)
{
    for (QWidget* above = widget->parentWidget(); above; above = above->parentWidget())
    {
        QScrollArea* const view = qobject_cast<QScrollArea*>(above);
        if (view && view->widget())
        {
            QPoint const there = widget->mapTo(view->widget(), place);
            view->ensureVisible(there.x(), there.y(), 0, widget->height());
        }
    }
    settle();
    QWidget* const window = widget->window();
    QWidget* const found = window->childAt(widget->mapTo(window, place));
    if (found == widget || widget->isAncestorOf(found))
        return QString();
    return nameOf(widget) + " cannot be touched: " + (found ? nameOf(found) + " is there" : "it is out of sight");
}

QString touch(QWidget* widget, QPoint const& place)
{
    QString const fault = bringInSight(widget, place);
    QWidget* const window = widget->window();
    if (fault.isEmpty())
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, widget->mapTo(window, place));
    settle();
    return fault;
}

QString touch(QWidget* widget)
{
    return touch(widget, widget->rect().center());
}

QString pressKeys(melvox_display::keypad_t* keypad, QString const& keys)
{
    for (QString const& name : keys.split(' '))
    {
        QPushButton* const key = visibleKey(keypad, name);
        if (!key || !key->isEnabled())
            return "the keypad has no key " + name;
        QString const fault = touch(key);
        if (!fault.isEmpty())
            return fault;
    }
    return QString();
}

} // namespace melvox_test
