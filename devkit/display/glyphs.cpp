#include "display/glyphs.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QPolygonF>
#include <QVector>

#include <initializer_list>

namespace melvox_display
{

namespace
{

QColor const INK(0x1b, 0x22, 0x2a);
QColor const FAINT(0xa3, 0xac, 0xb5);

/** On a field of 24 by 24. */
QPainterPath outlineOf(glyph_t glyph)
{
    QPainterPath path;
    auto line = [&path](std::initializer_list<QPointF> points)
    { path.addPolygon(QPolygonF(QVector<QPointF>(points))); };
    switch (glyph)
    {
    case glyph_t::MENU:
        line({{4, 7}, {20, 7}});
        line({{4, 12}, {20, 12}});
        line({{4, 17}, {20, 17}});
        break;
    case glyph_t::BACK:
        line({{11, 5}, {4, 12}, {11, 19}});
        line({{4, 12}, {20, 12}});
        break;
    case glyph_t::LEFT:
        line({{14.5, 5.5}, {8, 12}, {14.5, 18.5}});
        break;
    case glyph_t::RIGHT:
        line({{9.5, 5.5}, {16, 12}, {9.5, 18.5}});
        break;
    case glyph_t::BACKSPACE:
        line({{9, 5}, {21, 5}, {21, 19}, {9, 19}, {3, 12}, {9, 5}});
        line({{11.5, 9}, {17, 15}});
        line({{17, 9}, {11.5, 15}});
        break;
    case glyph_t::SHIFT_LOCK:
        line({{8, 20.5}, {16, 20.5}});
        [[fallthrough]];
    case glyph_t::SHIFT:
        line({{12, 3.5}, {20, 11.5}, {15.5, 11.5}, {15.5, 17.5}, {8.5, 17.5}, {8.5, 11.5}, {4, 11.5}, {12, 3.5}});
        break;
    case glyph_t::MONITOR:
        line({{4, 8}, {19, 8}, {15.5, 4.5}});
        line({{20, 16}, {5, 16}, {8.5, 19.5}});
        break;
    case glyph_t::PANEL:
        line({{4, 7}, {20, 7}});
        line({{4, 17}, {20, 17}});
        path.addEllipse(QPointF(9, 7), 2.5, 2.5);
        path.addEllipse(QPointF(15, 17), 2.5, 2.5);
        break;
    }
    return path;
}

QPixmap draw(glyph_t glyph, QColor const& ink)
{
    int const scale = 2;
    QPixmap pixmap(24 * scale, 24 * scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.setPen(QPen(ink, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (glyph == glyph_t::SHIFT_LOCK)
        painter.setBrush(ink);
    painter.drawPath(outlineOf(glyph));
    return pixmap;
}

} // namespace

QIcon glyphIcon(glyph_t glyph)
{
    QIcon icon;
    icon.addPixmap(draw(glyph, INK), QIcon::Normal);
    icon.addPixmap(draw(glyph, FAINT), QIcon::Disabled);
    return icon;
}

} // namespace melvox_display
