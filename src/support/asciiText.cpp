#include "support/asciiText.h"

namespace brel_common_qt_gui
{

std::string asciiText(QString const& text)
{
    std::string ascii;
    for (QChar const letter : text)
        ascii += letter.unicode() < 0x80 ? static_cast<char>(letter.unicode()) : '?';
    return ascii;
}

std::string upperAsciiText(QString const& text)
{
    return asciiText(text.toUpper());
}

} // namespace brel_common_qt_gui
