#include "loads.h"

#include "brel_common_qt/fileScanner.h"
#include "brel_common_qt/melvoxFirmware.h"
#include "firmware/firmwareFile.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QEventLoop>
#include <QFile>

#include <malloc.h>

using namespace brel_common_qt;

namespace melvox_bench
{

namespace
{

int const FILES_PER_FOLDER = 100;
std::size_t const PIECE_SIZE = 64 * 1024;

void open(QFile& file)
{
    if (!file.open(QIODevice::WriteOnly))
        qFatal("%s cannot be written", qPrintable(file.fileName()));
}

bool isFirmware(QFileInfo const& info)
{
    return !info.isDir() && info.suffix().compare(SrecFileSuffix, Qt::CaseInsensitive) == 0;
}

} // namespace

QVariantMap navigationSummary(bool other)
{
    double const more = other ? 0.25 : 0.0;
    return {{"valid", true},
            {"gpsWeek", other ? 2400 : 2399},
            {"gpsTime", 345618.0 + (other ? 1 : 0)},
            {"navValid", other ? 0 : 1},
            {"datum", other ? 0 : 1},
            {"geoid", other ? 0 : 1},
            {"navMode", other ? 7 : 2},
            {"navSource", other ? 8 : 9},
            {"stationId", other ? 12 : 446},
            {"failureCode", other ? 6 : 1},
            {"setDeltaNorth", 0.012 + more},
            {"setDeltaEast", -0.034 + more},
            {"setDeltaUp", 0.142 + more},
            {"latError", 0.0312 + more},
            {"lonError", 0.0287 + more},
            {"heightError", 0.0641 + more},
            {"velocityNorth", 1.2345 + more},
            {"velocityEast", -0.4321 + more},
            {"velocityUp", 0.0101 + more}};
}

QVariantMap satelliteStatistics(int satellites, bool other)
{
    double const more = other ? 0.25 : 0.0;
    QVariantList sats;
    for (int i = 0; i < satellites; ++i)
    {
        sats << QVariantMap{{"id", 100 + i},
                            {"beam", 1 + i % 8},
                            {"status", other ? 8 : 9},
                            {"strength", 9.75 + more},
                            {"agcVoltage", 1.5 + more},
                            {"goodPercent", 97.5 + more},
                            {"idlePercent", 2.25 + more},
                            {"resyncCount", other ? 2 : 1},
                            {"frequencyOffset", -321.5 + more}};
    }
    return {{"inUse", 100}, {"sats", sats}};
}

outputs_t::outputs_t(int messages) : page(receiver.device.get()), combo(page.findChild<QComboBox*>("portsCombo"))
{
    receiver.link.report("activePort", 0);
    for (int port : {1, 2})
    {
        for (int i = 0; i < messages; ++i)
            report(port, i, 1.0 + i % 3);
    }
    combo->setCurrentIndex(1);
    page.show();
    QCoreApplication::processEvents();
}

void outputs_t::report(int port, int message, double interval)
{
    receiver.link.report("output", QVariantMap{{"port", port},
                                               {"message", QString("MSG%1").arg(message, 4, 10, QChar('0'))},
                                               {"method", 1},
                                               {"interval", interval}});
}

QString place(QString const& name)
{
    static QTemporaryDir const folder;
    return folder.filePath(name);
}

void writeFile(QString const& path, QByteArray const& bytes)
{
    QFile file(path);
    open(file);
    file.write(bytes);
}

QString firmwareFile(qint64 size)
{
    QString const path = place(QString("firmware%1.srec").arg(size));
    if (QFile::exists(path))
        return path;
    QFile file(path);
    open(file);
    melvox_firmware::part_t part;
    part.component = MELVOX_FW_COMP_NAV;
    part.version = "1.15.2";
    part.product = PRODUCT;
    melvox_firmware::packageWriter_t writer;
    writer.start(part);
    std::string piece(PIECE_SIZE, '\0');
    for (std::size_t i = 0; i < piece.size(); ++i)
        piece[i] = char(i * 37 + i / 251);
    for (qint64 written = 0; written < size;)
    {
        writer.add(piece.data(), piece.size());
        std::string const text = writer.takeText();
        written += file.write(text.data(), qint64(text.size()));
    }
    writer.finish();
    std::string const text = writer.takeText();
    file.write(text.data(), qint64(text.size()));
    return path;
}

QString drive(int files)
{
    QString const path = place(QString("drive%1").arg(files));
    if (QFile::exists(path))
        return path;
    for (int i = 0; i < files; ++i)
    {
        QString const folder = QString("%1/folder%2").arg(path).arg(i / FILES_PER_FOLDER);
        if (i % FILES_PER_FOLDER == 0)
            QDir().mkpath(folder);
        writeFile(QString("%1/file%2.%3").arg(folder).arg(i % FILES_PER_FOLDER).arg(i % 10 == 0 ? "srec" : "txt"), "");
    }
    return path;
}

class driveScan_t::scanner_t : public fileScanner_t
{
public:
    ~scanner_t() override { stopScan(); }

protected:
    bool filter(QFileInfo const& info) override
    {
        if (isFirmware(info))
            postFile(new scanFile_t(info));
        return true;
    }
};

driveScan_t::driveScan_t(QString const& path) : m_scanner(new scanner_t)
{
    m_scanner->addPath(path);
}

driveScan_t::~driveScan_t() = default;

int driveScan_t::run()
{
    QEventLoop loop;
    QObject::connect(m_scanner.get(), &fileScanner_t::scanFinished, &loop, &QEventLoop::quit);
    m_scanner->startScan();
    loop.exec();
    int found = 0;
    while (std::unique_ptr<scanFile_t> file{m_scanner->takeScanFile()})
        ++found;
    return found;
}

int listDrive(QString const& path)
{
    int found = 0;
    QDirIterator entries(path, QDir::AllEntries | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (entries.hasNext())
    {
        entries.next();
        found += isFirmware(entries.fileInfo());
    }
    return found;
}

qint64 heldBytes()
{
    struct mallinfo2 const info = mallinfo2();
    // Large pieces are mapped, and counted apart.
    return qint64(info.uordblks + info.hblkhd);
}

} // namespace melvox_bench
