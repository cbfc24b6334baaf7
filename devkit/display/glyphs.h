#ifndef MELVOX_DISPLAY_GLYPHS_H
#define MELVOX_DISPLAY_GLYPHS_H

#include <QIcon>

namespace melvox_display
{

enum class glyph_t
{
    MENU,
    BACK,
    LEFT,
    RIGHT,
    BACKSPACE,
    SHIFT,
    SHIFT_LOCK,
    MONITOR,
    PANEL
};

/** Drawn, not taken from a font: which fonts a unit has is not known. */
QIcon glyphIcon(glyph_t glyph);

} // namespace melvox_display

#endif
