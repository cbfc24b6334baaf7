#ifndef MELVOX_UI_TEXT8_H
#define MELVOX_UI_TEXT8_H

#include <QFile>
#include <QString>

#include <string>

/** Between the screen's texts and the 8-bit texts of the receiver proxy. */
namespace brel_common_qt_gui
{

inline QString fromText8(std::string const& text)
{
    return QString::fromUtf8(text.data(), int(text.size()));
}

/** A path as the file system spells it: the same as ASCII where there is nothing else in it. */
inline std::string toPath8(QString const& path)
{
    QByteArray const bytes = QFile::encodeName(path);
    return std::string(bytes.constData(), std::size_t(bytes.size()));
}

} // namespace brel_common_qt_gui

#endif
