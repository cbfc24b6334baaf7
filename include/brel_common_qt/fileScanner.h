#ifndef BREL_COMMON_QT_FILE_SCANNER_H
#define BREL_COMMON_QT_FILE_SCANNER_H

#include "brel_common_qt/brelCommonQtExport.h"

#include <QFileInfo>
#include <QObject>

namespace brel_common_qt
{

/** A file or directory that a scan found. */
class BREL_COMMON_QT_EXPORT scanFile_t
{
public:
    explicit scanFile_t(QFileInfo const& fileInfo);
    virtual ~scanFile_t();

    QFileInfo const& fileInfo() const { return m_fileInfo; }

private:
    QFileInfo m_fileInfo;
};

/** Walks directory trees in a thread of its own and hands on what a subclass finds worth it.
 *
 *  A subclass must call stopScan() in its destructor: its filter() may be running. */
class BREL_COMMON_QT_EXPORT fileScanner_t : public QObject
{
    Q_OBJECT

public:
    explicit fileScanner_t(QObject* parent = 0);
    ~fileScanner_t();

    /** The roots of the next scan. */
    void clearPaths();
    void addPath(QString const& path);

    /** Does nothing while a scan runs. */
    void startScan();
    bool isScanning() const;

    /** The next entry found, the caller's from now on; null when none is waiting. */
    brel_common_qt::scanFile_t* takeScanFile();

public slots:
    /** Returns at once; scanFinished() follows. */
    void cancelScan();

signals:
    void scanStarted();
    void scanFinished();
    /** At least one entry is waiting to be taken. */
    void filesReceived();

protected:
    /** Called in the scanning thread for each entry visited; posts what is to be found. A directory for which it
     *  returns false is not entered. */
    virtual bool filter(QFileInfo const& fileInfo) = 0;

    /** Queues a found entry, the scanner's from now on. Called from filter(). */
    void postFile(brel_common_qt::scanFile_t* file);

    /** Cancels and waits until filter() is no longer running. */
    void stopScan();

private:
    Q_DISABLE_COPY(fileScanner_t)

    struct privateData_t;
    privateData_t* m_data;
};

} // namespace brel_common_qt

#endif
