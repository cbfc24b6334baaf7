#ifndef MELVOX_KIT_MELVOX_FILES_H
#define MELVOX_KIT_MELVOX_FILES_H

#include <QByteArray>
#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <QString>

#include <string>

namespace melvox_kit
{

/** Pages name files by 8-bit text in the file system's own encoding. */
QString pathFromText(std::string const& path);

/** Files that the receiver may ask for, block by block, because a command named them. */
class sentFiles_t
{
    Q_DECLARE_TR_FUNCTIONS(sentFiles_t)

public:
    /** From now on the receiver may read this file by the name that the command gave it. Returns its size, -1 when it
     *  cannot be read. */
    qint64 offer(QString const& name, QString const& path);
    bool isOffered(QString const& name) const;
    void withdrawAll();

    /** Reads a block; it is shorter than `size` only where the file ends. False, with the reason, when the file was
     *  never offered, cannot be read, or more is wanted than one message should carry. */
    bool read(QString const& name, qint64 offset, qint64 size, QByteArray& block, QString& reason);

    /** Lets go of the file that was read last, so that its drive can be pulled out. It stays offered. */
    void release();

private:
    bool open(QString const& path, QString& reason);

    QHash<QString, QString> m_paths; //!< by name
    QFile m_open;
};

/** Writes a whole file or none: under its name there is never half of one, and what stood there before is kept until
 *  the new file is safe on its drive. False, with the reason, when it failed. */
bool writeWhole(QString const& path, QByteArray const& bytes, QString& reason);

} // namespace melvox_kit

#endif
