#ifndef MELVOX_KIT_MELVOX_FILES_H
#define MELVOX_KIT_MELVOX_FILES_H

#include <QByteArray>
#include <QFile>
#include <QSet>
#include <QString>

#include <string>

namespace melvox_kit
{

/** Paths travel as 8-bit text in the file system's own encoding. */
QString pathFromText(std::string const& path);
std::string textFromPath(QString const& path);

/** Files that the receiver may ask for, block by block, because a command named them. */
class sentFiles_t
{
public:
    /** From now on the receiver may read this file. Returns its size, -1 when it cannot be read. */
    qint64 offer(QString const& path);
    void withdrawAll();

    /** Reads a block; false, with the reason, when the file was never offered or cannot be read. */
    bool read(QString const& path, qint64 offset, qint64 size, QByteArray& block, QString& reason);

private:
    QSet<QString> m_offered;
    QFile m_open;
};

/** Writes a whole file or none: under its name there is never half of one. False, with the reason, when it failed. */
bool writeWhole(QString const& path, QByteArray const& bytes, QString& reason);

} // namespace melvox_kit

#endif
