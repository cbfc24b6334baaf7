#include "brel_common_qt/fileScanner.h"

#include "scanStop.h"

#include <QBasicTimer>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QEvent>
#include <QList>
#include <QMutex>
#include <QMutexLocker>
#include <QSet>
#include <QStringList>
#include <QThread>
#include <QTimerEvent>

#include <atomic>

namespace brel_common_qt
{

namespace
{

// What the scanning thread tells the scanner's own.
QEvent::Type const FILES_RECEIVED = QEvent::User;
QEvent::Type const SCAN_FINISHED = QEvent::Type(QEvent::User + 1);

// Files that are found in quick succession are told of together: to be woken for each costs more than to find it.
int const PAUSE_MILLISECONDS = 20;

} // namespace

scanFile_t::scanFile_t(QFileInfo const& fileInfo) : m_fileInfo(fileInfo)
{
}

scanFile_t::~scanFile_t()
{
}

struct fileScanner_t::privateData_t : public QObject
{
    /** Walks the trees, the entries nearest to the roots first. Hidden entries are left out: they are what was thrown
     *  away, or what other systems keep for themselves. */
    class walker_t : public QThread
    {
    public:
        explicit walker_t(privateData_t* data) : m_data(data) {}

        QStringList roots;

    protected:
        void run() override;

    private:
        void visit(QFileInfo const& entry);
        void enter(QString const& directory);

        privateData_t* m_data;
        QSet<QString> m_visited; //!< directories by their real path: links may lead in circles
        QStringList m_toEnter;
    };

    explicit privateData_t(fileScanner_t* scanner_)
        : scanner(scanner_), walker(this), stopped(false), scanning(false), hasNews(false), willTell(false)
    {
    }

    void customEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void addFile(scanFile_t* file);
    void tellTheLast();
    void tell();
    void deleteWaiting();

    fileScanner_t* scanner;
    QStringList paths;
    walker_t walker;
    std::atomic<bool> stopped;
    bool scanning; //!< of the scanner's own thread alone, as is the pause
    QBasicTimer pause;

    QMutex mutex; // for what follows
    QList<scanFile_t*> waiting;
    bool hasNews;  //!< something waits that was not told of
    bool willTell; //!< FILES_RECEIVED is under way, or the pause runs
};

void fileScanner_t::privateData_t::walker_t::run()
{
    melvox_kit::scanStop_t const stop(m_data->stopped);
    m_visited.clear();
    m_toEnter.clear();
    for (int i = 0; i < roots.size(); ++i)
        visit(QFileInfo(QDir::cleanPath(roots.at(i))));
    while (!m_toEnter.isEmpty() && !m_data->stopped)
        enter(m_toEnter.takeFirst());
    m_data->tellTheLast();
    QCoreApplication::postEvent(m_data, new QEvent(SCAN_FINISHED));
}

void fileScanner_t::privateData_t::walker_t::visit(QFileInfo const& entry)
{
    if (m_data->stopped)
        return;
    if (!entry.isDir())
    {
        if (entry.isFile())
            m_data->scanner->filter(entry);
        return;
    }
    QString const realPath = entry.canonicalFilePath();
    if (realPath.isEmpty() || m_visited.contains(realPath))
        return;
    m_visited.insert(realPath);
    if (m_data->scanner->filter(entry))
        m_toEnter << entry.filePath();
}

void fileScanner_t::privateData_t::walker_t::enter(QString const& directory)
{
    QDirIterator entries(directory, QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    while (!m_data->stopped && entries.hasNext())
    {
        entries.next();
        visit(entries.fileInfo());
    }
}

void fileScanner_t::privateData_t::customEvent(QEvent* event)
{
    if (event->type() == FILES_RECEIVED)
    {
        tell();
    }
    else if (event->type() == SCAN_FINISHED)
    {
        walker.wait();
        scanning = false;
        emit scanner->scanFinished();
    }
}

void fileScanner_t::privateData_t::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != pause.timerId())
        return;
    pause.stop();
    tell();
}

/** In the scanning thread, as the next. */
void fileScanner_t::privateData_t::addFile(scanFile_t* file)
{
    QMutexLocker lock(&mutex);
    waiting << file;
    hasNews = true;
    if (willTell)
        return;
    willTell = true;
    QCoreApplication::postEvent(this, new QEvent(FILES_RECEIVED));
}

/** Ends the pause, so that what was found last is known before the end is. */
void fileScanner_t::privateData_t::tellTheLast()
{
    QMutexLocker lock(&mutex);
    if (hasNews)
        QCoreApplication::postEvent(this, new QEvent(FILES_RECEIVED));
}

void fileScanner_t::privateData_t::tell()
{
    {
        QMutexLocker lock(&mutex);
        // Somebody may have taken them without being told.
        willTell = hasNews && !waiting.isEmpty();
        hasNews = false;
        if (!willTell)
            return;
    }
    pause.start(PAUSE_MILLISECONDS, this);
    emit scanner->filesReceived();
}

void fileScanner_t::privateData_t::deleteWaiting()
{
    QMutexLocker lock(&mutex);
    qDeleteAll(waiting);
    waiting.clear();
    hasNews = false;
}

fileScanner_t::fileScanner_t(QObject* parent) : QObject(parent), m_data(new privateData_t(this))
{
}

fileScanner_t::~fileScanner_t()
{
    stopScan();
    m_data->deleteWaiting();
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
    // What nobody took is of another scan.
    m_data->deleteWaiting();
    m_data->stopped = false;
    m_data->scanning = true;
    m_data->walker.roots = m_data->paths;
    m_data->walker.start(QThread::LowPriority);
    emit scanStarted();
}

bool fileScanner_t::isScanning() const
{
    return m_data->scanning;
}

scanFile_t* fileScanner_t::takeScanFile()
{
    QMutexLocker lock(&m_data->mutex);
    return m_data->waiting.isEmpty() ? 0 : m_data->waiting.takeFirst();
}

void fileScanner_t::cancelScan()
{
    m_data->stopped = true;
}

void fileScanner_t::postFile(scanFile_t* file)
{
    m_data->addFile(file);
}

void fileScanner_t::stopScan()
{
    m_data->stopped = true;
    m_data->walker.wait();
}

} // namespace brel_common_qt
