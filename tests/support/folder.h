#ifndef MELVOX_TEST_FOLDER_H
#define MELVOX_TEST_FOLDER_H

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QString>

namespace melvox_test
{

/** A folder for one test, which takes everything in it along when it goes. */
class folder_t
{
public:
    folder_t()
    {
        static int count = 0;
        m_path = QString("%1/melvox_test_%2_%3")
                     .arg(QDir(QDir::tempPath()).canonicalPath())
                     .arg(QCoreApplication::applicationPid())
                     .arg(++count);
        remove(m_path);
        QDir().mkpath(m_path);
    }
    ~folder_t() { remove(m_path); }

    /** Without a separator at the end. */
    QString path() const { return m_path; }
    QString path(QString const& name) const { return m_path + "/" + name; }

    /** Writes a file, and the folders on the way to it. Returns its path. */
    QString write(QString const& name, QByteArray const& bytes = QByteArray()) const
    {
        makeDir(name.contains('/') ? name.section('/', 0, -2) : QString());
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("%s cannot be written", qPrintable(file.fileName()));
        return path(name);
    }
    QByteArray read(QString const& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QString makeDir(QString const& name) const
    {
        QDir().mkpath(path(name));
        return path(name);
    }

    static void remove(QString const& directory)
    {
        QFile::setPermissions(directory, QFile::Permissions(0x7000)); // the owner may do everything
        QDir const dir(directory);
        QFileInfoList const entries =
            dir.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        for (int i = 0; i < entries.size(); ++i)
        {
            if (entries.at(i).isDir() && !entries.at(i).isSymLink())
                remove(entries.at(i).filePath());
            else
                QFile::remove(entries.at(i).filePath());
        }
        dir.rmdir(directory);
    }

private:
    folder_t(folder_t const&);
    folder_t& operator=(folder_t const&);

    QString m_path;
};

} // namespace melvox_test

#endif
