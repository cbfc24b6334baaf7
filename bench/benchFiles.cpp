#include "bench.h"

#include "brel_common_qt/melvoxFirmware.h"
#include "link/localLink.h"
#include "melvox_ui/melvoxUiFirmwareUpdate.h"
#include "melvox_ui/melvoxUiProfileLoader.h"
#include "melvox_ui/melvoxUiReceiverInformation.h"
#include "melvox_ui/melvoxUiSettingsProfiles.h"
#include "melvox_ui/melvoxUiUsbFirmwareSelectDialog.h"
#include "melvox_ui/melvoxUiUsbProfileListDialog.h"
#include "melvox_ui/melvoxUiUsbWebUiSelectDialog.h"
#include "melvox_ui/melvoxUiWebInterface.h"
#include "melvox_ui/melvoxVersionWarnDialog.h"
#include "ui_melvoxUiFirmwareUpdate.h"
#include "ui_melvoxUiProfileDumpDialog.h"
#include "ui_melvoxUiProfileLoadDialog.h"
#include "ui_melvoxUiReceiverInformation.h"
#include "ui_melvoxUiSettingsProfiles.h"
#include "ui_melvoxUiUsbFirmwareSelectDialog.h"
#include "ui_melvoxUiUsbProfileListDialog.h"
#include "ui_melvoxUiUsbWebUiSelectDialog.h"
#include "ui_melvoxUiWebInterface.h"
#include "ui_melvoxVersionWarnDialog.h"

#include <QFile>
#include <QProcess>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_bench::bareDialog_t;
using melvox_bench::bareQuestion_t;
using melvox_bench::buildForm;
using melvox_bench::buildForms;
using melvox_bench::buildPage;
using melvox_bench::buildPlainDialog;
using melvox_bench::drive;
using melvox_bench::firmwareFile;
using melvox_bench::MEGABYTE;
using melvox_bench::PRODUCT;

namespace
{

qint64 const FIRMWARE_SIZE = 50 * MEGABYTE;
qint64 const PROFILE_SIZE = 10 * MEGABYTE;
int const BLOCK_SIZE = 1024;
/** By then whatever is made once has been made. */
int const WARM_BLOCKS = 1000;
int const FILES = 10000;
int const FIRMWARE_FILES = FILES / 10;

typedef bareDialog_t<Ui_melvoxUiUsbWebUiSelectDialog> bareWebSelect_t;
typedef bareDialog_t<Ui_melvoxUiProfileDumpDialog> bareDump_t;
typedef bareDialog_t<Ui_melvoxUiProfileLoadDialog> bareLoad_t;
typedef bareDialog_t<Ui_melvoxVersionWarnDialog> bareVersionWarn_t;

void scanSrecord(benchmark::State& state)
{
    QString const path = firmwareFile(FIRMWARE_SIZE);
    for (auto _ : state)
    {
        QList<melvoxFirmwareScanRecord_t> records;
        melvoxFirmwareScanFile(path, records, PRODUCT);
        if (records.size() != 1)
            state.SkipWithError("the file is not read");
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * QFileInfo(path).size());
}

void srecInfo(benchmark::State& state)
{
    QString const path = firmwareFile(FIRMWARE_SIZE);
    for (auto _ : state)
    {
        QProcess program;
        program.setStandardOutputFile(QProcess::nullDevice());
        program.start("srec_info", {path});
        if (!program.waitForFinished(-1) || program.exitCode() != 0)
            state.SkipWithError("srec_info does not read the file");
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * QFileInfo(path).size());
}

void scanDrive(benchmark::State& state)
{
    melvox_bench::driveScan_t scan(drive(FILES));
    for (auto _ : state)
    {
        if (scan.run() != FIRMWARE_FILES)
            state.SkipWithError("not all files were found");
    }
}

void iterateDrive(benchmark::State& state)
{
    QString const path = drive(FILES);
    for (auto _ : state)
    {
        if (melvox_bench::listDrive(path) != FIRMWARE_FILES)
            state.SkipWithError("not all files were found");
    }
}

QString profileFile()
{
    QString const path = melvox_bench::place("profile.melvox");
    if (!QFile::exists(path))
        melvox_bench::writeFile(path, QByteArray(int(PROFILE_SIZE), 'p'));
    return path;
}

/** A receiver that takes every block at once, and notes by how much the heap grows meanwhile. */
class taker_t
{
public:
    taker_t() : m_blocks(0), m_start(0), m_most(0), m_ended(false)
    {
        melvox_link::localLink_t* const end = pair.receiverEnd();
        QObject::connect(end, &melvox_link::link_t::received, end,
                         [this](melvox_link::message_t const& m) { take(m); });
    }

    bool hasEnded() const { return m_ended; }
    void begin() { m_ended = false; }
    double mostKiB() const { return double(m_most) / 1024.0; }

    melvox_link::localLinkPair_t pair;

private:
    void answer(QString const& group, QVariant const& value)
    {
        pair.receiverEnd()->send({melvox_link::message_t::REPORT, group, value});
    }
    void take(melvox_link::message_t const& message)
    {
        if (message.group == "portLock")
        {
            m_ended = message.value.toInt() == PORT_LOCK_NONE;
            answer(message.group, message.value);
        }
        if (message.group != "uploadData")
            return;
        ++m_blocks;
        if (m_blocks == WARM_BLOCKS)
            m_start = melvox_bench::heldBytes();
        if (m_blocks > WARM_BLOCKS)
            m_most = qMax(m_most, melvox_bench::heldBytes() - m_start);
        answer("uploadResult", 0);
    }

    int m_blocks;
    qint64 m_start;
    qint64 m_most;
    bool m_ended;
};

void uploadProfile(benchmark::State& state)
{
    QString const path = profileFile();
    taker_t taker;
    remoteMelvoxDevice_t device(melvox_kit::createPort(taker.pair.displayEnd(), melvox_kit::LINK_OTHER));
    melvoxUiProfileLoader_t loader(&device, nullptr);
    for (auto _ : state)
    {
        taker.begin();
        loader.fileSelected(path);
        while (!taker.hasEnded())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::processEvents();
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * PROFILE_SIZE);
    state.counters["heldKiB"] = taker.mostKiB();
}

void readProfile(benchmark::State& state)
{
    QString const path = profileFile();
    for (auto _ : state)
    {
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        while (!file.atEnd())
            benchmark::DoNotOptimize(file.read(BLOCK_SIZE));
    }
    state.SetBytesProcessed(int64_t(state.iterations()) * PROFILE_SIZE);
}

} // namespace

BENCHMARK(buildPage<melvoxUiWebInterface_t>)->Name("buildPage/WebInterface");
BENCHMARK((buildForms<Ui_melvoxUiWebInterface, bareWebSelect_t>))->Name("buildPage/WebInterface/bare");
BENCHMARK(buildPage<melvoxUiReceiverInformation_t>)->Name("buildPage/ReceiverInformation");
BENCHMARK((buildForms<Ui_melvoxUiReceiverInformation, bareVersionWarn_t, bareQuestion_t>))
    ->Name("buildPage/ReceiverInformation/bare");
BENCHMARK(buildPage<melvoxUiSettingsProfiles_t>)->Name("buildPage/SettingsProfiles");
BENCHMARK((buildForms<Ui_melvoxUiSettingsProfiles, bareDump_t, bareLoad_t, bareQuestion_t>))
    ->Name("buildPage/SettingsProfiles/bare");
BENCHMARK(buildPage<melvoxUiFirmwareUpdate_t>)->Name("buildPage/FirmwareUpdate");
BENCHMARK((buildForms<Ui_melvoxUiFirmwareUpdate, bareQuestion_t, bareQuestion_t>))
    ->Name("buildPage/FirmwareUpdate/bare");
BENCHMARK(buildPlainDialog<melvoxUiUsbFirmwareSelectDialog_t>)->Name("buildPage/UsbFirmwareSelectDialog");
BENCHMARK((buildForm<Ui_melvoxUiUsbFirmwareSelectDialog, QDialog>))->Name("buildPage/UsbFirmwareSelectDialog/bare");
BENCHMARK(buildPlainDialog<melvoxUiUsbProfileListDialog_t>)->Name("buildPage/UsbProfileListDialog");
BENCHMARK((buildForm<Ui_melvoxUiUsbProfileListDialog, QDialog>))->Name("buildPage/UsbProfileListDialog/bare");
BENCHMARK(buildPlainDialog<melvoxUiUsbWebUiSelectDialog_t>)->Name("buildPage/UsbWebUiSelectDialog");
BENCHMARK((buildForm<Ui_melvoxUiUsbWebUiSelectDialog, QDialog>))->Name("buildPage/UsbWebUiSelectDialog/bare");
BENCHMARK(buildPlainDialog<melvoxVersionWarnDialog_t>)->Name("buildPage/VersionWarnDialog");
BENCHMARK((buildForm<Ui_melvoxVersionWarnDialog, QDialog>))->Name("buildPage/VersionWarnDialog/bare");

BENCHMARK(scanSrecord)->Name("scanSrecord/50MB")->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(srecInfo)->Name("scanSrecord/50MB/bare")->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(scanDrive)->Name("scanDrive/10000")->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(iterateDrive)->Name("scanDrive/10000/bare")->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(uploadProfile)->Name("upload/profile")->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(readProfile)->Name("upload/profile/bare")->UseRealTime()->Unit(benchmark::kMillisecond);

MELVOX_BENCH_MAIN
