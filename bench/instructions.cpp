#include "allPages.h"
#include "loads.h"

#include "brel_common_qt/melvoxFirmware.h"
#include "support/pageCreator.h"

#include <QApplication>
#include <QComboBox>
#include <QLocale>

#include <valgrind/callgrind.h>

#include <cstdio>
#include <functional>

// Does operations one after the other and has Callgrind count each apart. bench/instructions runs it.

using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_bench::receiver_t;

namespace
{

int const SATELLITES = 1000;
int const MESSAGES = 1000;

#define MELVOX_PAGE(name) {#name, melvox_test::creator<name##_t>()},
melvox_test::page_t const PAGES[] = {MELVOX_ALL_PAGES(MELVOX_PAGE)};
#undef MELVOX_PAGE

/** The first time makes what is made once, and does not count. */
void count(QByteArray const& name, std::function<void()> const& operation)
{
    operation();
    QCoreApplication::processEvents();
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_ZERO_STATS; // or the next dump counts from the last one
    operation();
    CALLGRIND_DUMP_STATS_AT(name.constData()); // which stopping would forget
    CALLGRIND_STOP_INSTRUMENTATION;
}

/** What takes so few instructions that a growing list shows in them is done many times over. */
void countHundred(QByteArray const& name, std::function<void()> const& operation)
{
    count(name + "x100",
          [&]()
          {
              for (int i = 0; i < 100; ++i)
                  operation();
          });
}

void countPages()
{
    receiver_t receiver;
    for (melvox_test::page_t const& page : PAGES)
    {
        if (page.create)
            count(QByteArray("build/") + page.name,
                  [&]() { std::unique_ptr<QWidget> const built(page.create(receiver.device.get())); });
    }
}

void countReports()
{
    receiver_t receiver;
    melvoxUiSolutionControl_t solution(receiver.device.get());
    melvoxUiExtendedNavInfo_t navigation(receiver.device.get());
    melvoxUiCorrectionsReceiver_t corrections(receiver.device.get());
    for (QWidget* page :
         {static_cast<QWidget*>(&solution), static_cast<QWidget*>(&navigation), static_cast<QWidget*>(&corrections)})
        page->show();
    bool other = false;
    countHundred("report/elevationMask",
                 [&]() { receiver.link.report("elevationMask", (other = !other) ? 12.5 : 13.5); });
    QVariantMap const summaries[] = {melvox_bench::navigationSummary(false), melvox_bench::navigationSummary(true)};
    countHundred("report/extendedNavInfo",
                 [&]() { receiver.link.report("extendedNavInfo", summaries[other = !other]); });
    QVariantMap const statistics[] = {melvox_bench::satelliteStatistics(SATELLITES, false),
                                      melvox_bench::satelliteStatistics(SATELLITES, true)};
    receiver.link.report("correctionSatStats", statistics[other]);
    count("refresh/statistics1000", [&]() { receiver.link.report("correctionSatStats", statistics[other = !other]); });
}

void countOutputs()
{
    melvox_bench::outputs_t outputs(MESSAGES);
    double interval = 1;
    countHundred("report/output1000", [&]() { outputs.report(1, MESSAGES / 2, interval += 1); });
    int index = 1;
    count("select/outputs1000", [&]() { outputs.combo->setCurrentIndex(index = 3 - index); });
}

void countFirmwareScan()
{
    QString const path = melvox_bench::firmwareFile(melvox_bench::MEGABYTE);
    count("scan/srecord1MB",
          [&]()
          {
              QList<melvoxFirmwareScanRecord_t> records;
              melvoxFirmwareScanFile(path, records, melvox_bench::PRODUCT);
              if (records.size() != 1)
                  qFatal("%s is not read", qPrintable(path));
          });
}

void countProfileBlock()
{
    QString const path = melvox_bench::place("profile.melvox");
    melvox_bench::writeFile(path, QByteArray(int(melvox_bench::MEGABYTE), 'p'));
    receiver_t receiver;
    melvoxUiProfileLoader_t loader(receiver.device.get(), nullptr);
    loader.fileSelected(path);
    receiver.link.report("portLock", int(PORT_LOCK_FRAMEWORK));
    int const sent = int(receiver.link.sent().size());
    countHundred("upload/profileBlock", [&]() { receiver.link.report("uploadResult", int(UPLOAD_OK)); });
    if (int(receiver.link.sent().size()) != sent + 200)
        qFatal("no blocks are sent");
}

} // namespace

int main(int argc, char** argv)
{
    QLocale::setDefault(QLocale::c());
    QApplication application(argc, argv);
    if (!RUNNING_ON_VALGRIND)
    {
        std::fprintf(stderr, "instructions counts nothing by itself; run bench/instructions\n");
        return 2;
    }
    countPages();
    countReports();
    countOutputs();
    countFirmwareScan();
    countProfileBlock();
    return 0;
}
