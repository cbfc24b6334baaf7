#include "firmwareScan.h"

#include "firmware/firmwareFile.h"
#include "scanStop.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#if QT_VERSION >= 0x050000
#include <QLoggingCategory>
#endif

#include <algorithm>
#include <limits>
#include <vector>

using namespace brel_common_qt;

namespace melvox_kit
{

namespace
{

qint64 const BLOCK = 512 * 1024; // bytes

#if QT_VERSION >= 0x050000
Q_LOGGING_CATEGORY(category, "melvox.firmware")

void log(QString const& text)
{
    qCDebug(category, "%s", qPrintable(text));
}
#else
void log(QString const& text)
{
    qDebug("melvox.firmware: %s", qPrintable(text));
}
#endif

thread_local std::atomic<bool> const* stopFlag = nullptr;

QList<melvoxFirmwareScanRecord_t> recordsOf(std::vector<melvox_firmware::part_t> const& parts)
{
    QList<melvoxFirmwareScanRecord_t> records;
    for (std::size_t i = 0; i < parts.size(); ++i)
    {
        melvoxFirmwareScanRecord_t const record = {static_cast<unsigned int>(i),
                                                   static_cast<melvoxFirmwareComponent_t>(parts[i].component),
                                                   parts[i].product, QString::fromUtf8(parts[i].version.c_str())};
        records << record;
    }
    return records;
}

/** Goes on until the end, the first damage, or more than `mostParts` components. */
bool readParts(QString const& path, std::size_t mostParts, melvox_firmware::packageReader_t& reader, QString& reason)
{
    reason.clear();
    // Opening a pipe would wait for somebody to write into it.
    QFileInfo const info(path);
    if (info.exists() && !info.isFile())
    {
        reason = "this is not a file";
        return false;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
    {
        reason = file.errorString();
        return false;
    }
    std::vector<char> block(BLOCK);
    qint64 size;
    bool good = true;
    while (good && (size = file.read(block.data(), BLOCK)) > 0)
    {
        if (scanStop_t::isStopped())
            return false;
        good = reader.feed(block.data(), std::size_t(size));
        if (good && reader.parts().size() > mostParts)
            return true;
    }
    if (good && file.error() != QFile::NoError)
    {
        reason = file.errorString();
        return false;
    }
    if (good && reader.finish())
        return true;
    reason = QString::fromUtf8(reader.error().c_str());
    return false;
}

void logRefused(QString const& path, QString const& reason)
{
    if (!reason.isEmpty())
        log(QString("%1 is not used: %2").arg(path, reason));
}

/** Whether `record` is made for another product than the preferred one; these go last. */
struct isOther_t
{
    int product;
    bool operator()(melvoxFirmwareScanRecord_t const& a, melvoxFirmwareScanRecord_t const& b) const
    {
        return a.product == product && b.product != product;
    }
    bool operator()(QPair<QString, melvoxFirmwareScanRecord_t> const& a,
                    QPair<QString, melvoxFirmwareScanRecord_t> const& b) const
    {
        return operator()(a.second, b.second);
    }
};

} // namespace

scanStop_t::scanStop_t(std::atomic<bool> const& stopped)
{
    stopFlag = &stopped;
}

scanStop_t::~scanStop_t()
{
    stopFlag = nullptr;
}

bool scanStop_t::isStopped()
{
    return stopFlag && *stopFlag;
}

bool readFirmwareFile(QString const& path, QList<melvoxFirmwareScanRecord_t>& records, QString& reason)
{
    melvox_firmware::packageReader_t reader;
    if (!readParts(path, std::numeric_limits<std::size_t>::max(), reader, reason))
        return false;
    records = recordsOf(reader.parts());
    return true;
}

} // namespace melvox_kit

namespace brel_common_qt
{

using namespace melvox_kit;

void melvoxFirmwareScanFile(QString const& path, QList<melvoxFirmwareScanRecord_t>& records, int productCode)
{
    QList<melvoxFirmwareScanRecord_t> found;
    QString reason;
    if (!readFirmwareFile(path, found, reason))
    {
        logRefused(path, reason);
        return;
    }
    isOther_t const isOther = {productCode};
    std::stable_sort(found.begin(), found.end(), isOther);
    records << found;
}

void melvoxFirmwareScanDir(QString const& path, QStringList& files, QList<melvoxFirmwareScanRecord_t>& records,
                           int productCode)
{
    QStringList const pattern(QLatin1String("*.") + SrecFileSuffix);
    // QDir matches patterns without regard to case.
    QStringList const names = QDir(path).entryList(pattern, QDir::Files, QDir::Name);
    QList<QPair<QString, melvoxFirmwareScanRecord_t>> found;
    for (int i = 0; i < names.size() && !scanStop_t::isStopped(); ++i)
    {
        QString const file = QDir(path).filePath(names.at(i));
        melvox_firmware::packageReader_t reader;
        QString reason;
        // A file of several components is a package by itself and no part of one.
        if (!readParts(file, 1, reader, reason))
            logRefused(file, reason);
        else if (reader.parts().size() == 1)
            found << qMakePair(file, recordsOf(reader.parts()).at(0));
    }
    isOther_t const isOther = {productCode};
    std::stable_sort(found.begin(), found.end(), isOther);
    for (int i = 0; i < found.size(); ++i)
    {
        files << found.at(i).first;
        records << found.at(i).second;
    }
}

} // namespace brel_common_qt
