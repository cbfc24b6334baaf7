#ifndef MELVOX_BENCH_LOADS_H
#define MELVOX_BENCH_LOADS_H

#include "brel_common_qt/kitPort.h"
#include "brel_common_qt/remoteMelvoxDevice.h"
#include "link/scriptedLink.h"
#include "melvox_ui/melvoxUiOutputMessages.h"

#include <QTemporaryDir>
#include <QVariant>

#include <memory>

class QComboBox;

/** What pages are given to do while they are measured. */
namespace melvox_bench
{

/** The product that the pages ask of firmware. */
int const PRODUCT = 8;
qint64 const MEGABYTE = 1000 * 1000;

/** A proxy on a receiver that the measurement plays. */
struct receiver_t
{
    receiver_t()
        : device(new brel_common_qt::remoteMelvoxDevice_t(melvox_kit::createPort(&link, melvox_kit::LINK_OTHER)))
    {
    }

    melvox_link::scriptedLink_t link;
    std::unique_ptr<brel_common_qt::remoteMelvoxDevice_t> device;
};

/** Two summaries with another value in every field: a label that has its text already does nothing. */
QVariantMap navigationSummary(bool other);

/** What so many satellites tell once a second, with another value in every column that moves. */
QVariantMap satelliteStatistics(int satellites, bool other);

/** So many messages are put out on COM2 and COM3, and the page shows one of these ports; the display is on COM1. */
struct outputs_t
{
    explicit outputs_t(int messages);
    void report(int port, int message, double interval);

    receiver_t receiver;
    brel_common_qt_gui::melvoxUiOutputMessages_t page;
    QComboBox* combo;
};

/** A path in a folder that goes with the program. */
QString place(QString const& name);

/** Ends the program when the file cannot be written. */
void writeFile(QString const& path, QByteArray const& bytes);

/** A firmware file of one component, as S-records; about that large. Returns its path. */
QString firmwareFile(qint64 size);

/** A drive with so many files, one in ten of them a firmware file, a hundred to a folder. Returns its path. */
QString drive(int files);

/** Scans a drive as dialogs do, in a thread of the scanner's, and waits for the end. */
class driveScan_t
{
public:
    explicit driveScan_t(QString const& path);
    ~driveScan_t();

    /** How many firmware files were found. */
    int run();

private:
    class scanner_t;
    std::unique_ptr<scanner_t> m_scanner;
};

/** Finds the firmware files by listing the drive and nothing else. */
int listDrive(QString const& path);

/** Bytes on the heap. */
qint64 heldBytes();

} // namespace melvox_bench

#endif
