#include "display/widgetPath.h"

#include <QAbstractButton>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMetaEnum>
#include <QWidget>

namespace melvox_display
{

namespace
{

QString keyOf(QWidget const* widget)
{
    if (!widget->objectName().isEmpty())
        return widget->objectName();
    if (QAbstractButton const* button = qobject_cast<QAbstractButton const*>(widget))
        return buttonName(button);
    return widget->metaObject()->className();
}

/** A page's dialogs are in it only while they are not shown. */
bool isInDialogOf(QWidget const* root, QWidget const* widget)
{
    while (widget != root && !qobject_cast<QDialog const*>(widget))
        widget = widget->parentWidget();
    return widget != root;
}

QWidgetList partsOf(QWidget const* root)
{
    QWidgetList parts;
    for (QWidget* widget : root->findChildren<QWidget*>())
    {
        if (!isInDialogOf(root, widget))
            parts << widget;
    }
    return parts;
}

QWidgetList alike(QWidget const* within, QString const& key)
{
    QWidgetList found;
    for (QWidget* widget : partsOf(within))
    {
        if (keyOf(widget) == key)
            found << widget;
    }
    return found;
}

QWidget* namedAbove(QWidget const* root, QWidget const* widget)
{
    QWidget* above = widget->parentWidget();
    while (above && above != root && above->objectName().isEmpty())
        above = above->parentWidget();
    return above;
}

} // namespace

QString buttonName(QAbstractButton const* button)
{
    QDialogButtonBox const* box = qobject_cast<QDialogButtonBox const*>(button->parentWidget());
    QDialogButtonBox::StandardButton const standard =
        box ? box->standardButton(const_cast<QAbstractButton*>(button)) : QDialogButtonBox::NoButton;
    if (standard != QDialogButtonBox::NoButton)
        return QMetaEnum::fromType<QDialogButtonBox::StandardButtons>().valueToKey(standard);
    return button->text().remove('&');
}

QString pathOf(QWidget* root, QWidget* widget)
{
    QString const key = keyOf(widget);
    if (!widget->objectName().isEmpty() && alike(root, key).size() == 1)
        return key;
    QWidget* const above = namedAbove(root, widget);
    if (!above)
        return key;
    QWidgetList const same = alike(above, key);
    QString const own = same.size() > 1 ? QString("%1:%2").arg(key).arg(same.indexOf(widget) + 1) : key;
    return above == root ? own : pathOf(root, above) + "/" + own;
}

QWidget* findWidget(QWidget* root, QString const& path)
{
    for (QWidget* widget : partsOf(root))
    {
        // A path ends with what the widget itself is called, perhaps with a number; the rest is worth finding out then.
        QString const last = path.section('/', -1);
        QString const key = keyOf(widget);
        if ((path.endsWith(key) || last.startsWith(key)) && pathOf(root, widget) == path)
            return widget;
    }
    return nullptr;
}

} // namespace melvox_display
