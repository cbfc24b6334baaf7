#include "display/entryMirror.h"

#include <QFontMetrics>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOption>

namespace melvox_display
{

namespace
{

int const PADDING = 10;

} // namespace

entryMirror_t::entryMirror_t(QWidget* parent) : QWidget(parent), m_cursor(0), m_selectionStart(-1), m_selectionLength(0)
{
    setObjectName("entryMirror");
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void entryMirror_t::follow(QLineEdit* edit)
{
    m_edit = edit;
    refresh();
}

void entryMirror_t::refresh()
{
    m_text = m_edit ? m_edit->displayText() : QString();
    m_cursor = m_edit ? m_edit->cursorPosition() : 0;
    m_selectionStart = m_edit ? m_edit->selectionStart() : -1;
    m_selectionLength = m_edit ? m_edit->selectionLength() : 0;
    update();
}

QSize entryMirror_t::sizeHint() const
{
    return QSize(200, qMax(44, fontMetrics().height() + 12));
}

int entryMirror_t::xOf(int position) const
{
    return fontMetrics().horizontalAdvance(m_text.left(position));
}

void entryMirror_t::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);

    QRect const field = rect().adjusted(PADDING, 4, -PADDING, -4);
    painter.setClipRect(field.adjusted(0, 0, 2, 0));
    // The cursor stays in sight of a text that is wider than the field.
    int const offset = qMax(0, xOf(m_cursor) - field.width() + 2);
    int const left = field.left() - offset;
    if (m_selectionStart >= 0 && m_selectionLength > 0)
    {
        int const from = left + xOf(m_selectionStart);
        int const to = left + xOf(m_selectionStart + m_selectionLength);
        painter.fillRect(QRect(from, field.top() + 4, to - from, field.height() - 8), QColor(0xbc, 0xd7, 0xf2));
    }
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(QRect(left, field.top(), qMax(field.width() + offset, xOf(m_text.size()) + 4), field.height()),
                     Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, m_text);
    painter.fillRect(QRect(left + xOf(m_cursor), field.top() + 4, 2, field.height() - 8), QColor(0x0b, 0x5c, 0xad));
}

} // namespace melvox_display
