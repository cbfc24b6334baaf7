#include "brel_common_qt/fileScanner.h"

#include <QDir>
#include <QStringList>
#include <QTimer>

namespace brel_common_qt
{

scanFile_t::scanFile_t(QFileInfo const& fileInfo) : m_fileInfo(fileInfo)
{
}

scanFile_t::~scanFile_t()
{
}

// Scans when the event loop comes to it, in one go: no thread.
struct fileScanner_t::privateData_t
{
    QStringList paths;
    QList<scanFile_t*> found;
    bool scanning = false;
    QTimer start;
};

namespace
{

/** The entries below a directory; `visit` tells whether to enter one. */
template <typename visit_t> void walk(QString const& path, visit_t visit)
{
    QFileInfoList const entries = QDir(path).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (QFileInfo const& entry : entries)
    {
        if (visit(entry) && entry.isDir())
            walk(entry.filePath(), visit);
    }
}

} // namespace

fileScanner_t::fileScanner_t(QObject* parent) : QObject(parent), m_data(new privateData_t)
{
    m_data->start.setSingleShot(true);
    connect(&m_data->start, &QTimer::timeout, this,
            [this]
            {
                for (QString const& path : m_data->paths)
                    walk(path, [this](QFileInfo const& entry) { return filter(entry); });
                m_data->scanning = false;
                emit scanFinished();
            });
}

fileScanner_t::~fileScanner_t()
{
    qDeleteAll(m_data->found);
    delete m_data;
}

void fileScanner_t::clearPaths()
{
    m_data->paths.clear();
}

void fileScanner_t::addPath(QString const& path)
{
    m_data->paths << path;
}

void fileScanner_t::startScan()
{
    if (m_data->scanning)
        return;
    m_data->scanning = true;
    m_data->start.start(0);
    emit scanStarted();
}

bool fileScanner_t::isScanning() const
{
    return m_data->scanning;
}

scanFile_t* fileScanner_t::takeScanFile()
{
    return m_data->found.isEmpty() ? nullptr : m_data->found.takeFirst();
}

void fileScanner_t::cancelScan()
{
    if (!m_data->scanning)
        return;
    stopScan();
    emit scanFinished();
}

void fileScanner_t::postFile(scanFile_t* file)
{
    m_data->found << file;
    emit filesReceived();
}

void fileScanner_t::stopScan()
{
    m_data->start.stop();
    m_data->scanning = false;
}

} // namespace brel_common_qt
