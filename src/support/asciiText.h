#ifndef MELVOX_UI_ASCII_TEXT_H
#define MELVOX_UI_ASCII_TEXT_H

#include <QString>

#include <string>

/** Texts as the receiver reads them. */
namespace brel_common_qt_gui
{

/** What is not ASCII becomes a question mark. */
std::string asciiText(QString const& text);
std::string upperAsciiText(QString const& text);

} // namespace brel_common_qt_gui

#endif
