#include "display/displayStyle.h"

#include "display/scrollView.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFont>
#include <QPalette>
#include <QStyledItemDelegate>
#include <QVariant>

// In a static library; the linker would leave it out.
static void initializeResources()
{
    Q_INIT_RESOURCE(display);
}

namespace melvox_display
{

namespace
{

int const FONT_PIXELS = 16;
QColor const PAGES_RED(0xff, 0, 0);
QColor const READABLE_RED(0xb3, 0x26, 0x1e);

QPalette displayPalette()
{
    QPalette palette;
    QColor const ink(0x14, 0x1a, 0x20);
    QColor const faint(0x5d, 0x68, 0x73);
    palette.setColor(QPalette::Window, QColor(0xf3, 0xf5, 0xf7));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xf3, 0xf5, 0xf7));
    palette.setColor(QPalette::Button, Qt::white);
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    {
        palette.setColor(role, ink);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Highlight, QColor(0x0b, 0x5c, 0xad));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

} // namespace

displayStyle_t::displayStyle_t() : QProxyStyle("Fusion")
{
}

void displayStyle_t::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    // The delegate that a combo box brings along does not heed the style sheet, and its lines are too low for a finger.
    QComboBox* combo = qobject_cast<QComboBox*>(widget);
    if (combo && !qobject_cast<QStyledItemDelegate*>(combo->itemDelegate()))
        combo->setItemDelegate(new QStyledItemDelegate(combo));
    // What a page is there for.
    QDialogButtonBox* box = qobject_cast<QDialogButtonBox*>(widget->parentWidget());
    QAbstractButton* button = qobject_cast<QAbstractButton*>(widget);
    if (box && button && box->buttonRole(button) == QDialogButtonBox::ApplyRole)
        button->setProperty("accent", true);
    QAbstractItemView* view = qobject_cast<QAbstractItemView*>(widget);
    if (view && view->objectName() != "monitorTable")
    {
        view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        scrollByFinger(view);
    }
}

int displayStyle_t::styleHint(StyleHint hint, QStyleOption const* option, QWidget const* widget,
                              QStyleHintReturn* returnData) const
{
    switch (hint)
    {
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_ComboBox_Popup:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

void displayStyle_t::drawItemText(QPainter* painter, QRect const& rect, int flags, QPalette const& palette,
                                  bool enabled, QString const& text, QPalette::ColorRole role) const
{
    QPalette readable(palette);
    if (role != QPalette::NoRole && palette.color(role) == PAGES_RED)
        readable.setColor(role, READABLE_RED);
    QProxyStyle::drawItemText(painter, rect, flags, readable, enabled, text, role);
}

void applyDisplayStyle(QApplication& application)
{
    initializeResources();
    application.setStyle(new displayStyle_t);
    application.setPalette(displayPalette());
    QFont font = application.font();
    font.setPixelSize(FONT_PIXELS);
    application.setFont(font);
    // A cursor that does not blink wakes nobody up.
    application.setCursorFlashTime(0);
    QFile file(":/display/display.qss");
    if (file.open(QIODevice::ReadOnly))
        application.setStyleSheet(QString::fromUtf8(file.readAll()));
}

} // namespace melvox_display
