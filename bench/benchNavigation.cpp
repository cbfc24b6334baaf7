#include "bench.h"

#include "melvox_ui/melvoxUiExtendedNavInfo.h"
#include "melvox_ui/melvoxUiNavigationMode.h"
#include "melvox_ui/melvoxUiPpsConfiguration.h"
#include "melvox_ui/melvoxUiRestart.h"
#include "melvox_ui/melvoxUiRtkConfiguration.h"
#include "melvox_ui/melvoxUiVHDInfo.h"
#include "ui_melvoxUiExtendedNavInfo.h"
#include "ui_melvoxUiNavigationMode.h"
#include "ui_melvoxUiPpsConfiguration.h"
#include "ui_melvoxUiRestart.h"
#include "ui_melvoxUiRtkConfiguration.h"
#include "ui_melvoxUiVHDInfo.h"

#include <QLabel>

using namespace brel_common_qt_gui;

BENCHMARK(melvox_bench::buildPage<melvoxUiNavigationMode_t>)->Name("buildPage/NavigationMode");
BENCHMARK((melvox_bench::buildForm<Ui_melvoxUiNavigationMode>))->Name("buildPage/NavigationMode/bare");
BENCHMARK(melvox_bench::buildPage<melvoxUiRtkConfiguration_t>)->Name("buildPage/RtkConfiguration");
BENCHMARK((melvox_bench::buildForm<Ui_melvoxUiRtkConfiguration>))->Name("buildPage/RtkConfiguration/bare");
BENCHMARK(melvox_bench::buildPage<melvoxUiPpsConfiguration_t>)->Name("buildPage/PpsConfiguration");
BENCHMARK((melvox_bench::buildForm<Ui_melvoxUiPpsConfiguration>))->Name("buildPage/PpsConfiguration/bare");
BENCHMARK(melvox_bench::buildPage<melvoxUiExtendedNavInfo_t>)->Name("buildPage/ExtendedNavInfo");
BENCHMARK((melvox_bench::buildForm<Ui_melvoxUiExtendedNavInfo>))->Name("buildPage/ExtendedNavInfo/bare");
BENCHMARK(melvox_bench::buildPage<melvoxUiVHDInfo_t>)->Name("buildPage/VHDInfo");
BENCHMARK((melvox_bench::buildForm<Ui_melvoxUiVHDInfo>))->Name("buildPage/VHDInfo/bare");
BENCHMARK(melvox_bench::buildPage<melvoxUiRestart_t>)->Name("buildPage/Restart");
BENCHMARK((melvox_bench::buildForm<Ui_melvoxUiRestart>))->Name("buildPage/Restart/bare");

namespace
{

char const* const LABELS[] = {
    "gpsWeekLabel",      "gpsTimeLabel",       "navValidLabel",     "datumLabel",
    "sourceTypeLabel",   "stationIdLabel",     "failureCodeLabel",  "setDeltaNorthLabel",
    "setDeltaEastLabel", "setDeltaUpLabel",    "latErrorLabel",     "lonErrorLabel",
    "heightErrorLabel",  "velocityNorthLabel", "velocityEastLabel", "velocityUpLabel",
};

QList<QLabel*> labels(QWidget& page)
{
    QList<QLabel*> labels;
    for (char const* label : LABELS)
        labels << page.findChild<QLabel*>(label);
    return labels;
}

QStringList texts(QList<QLabel*> const& labels)
{
    QStringList texts;
    for (QLabel const* label : labels)
        texts << label->text();
    return texts;
}

void report(benchmark::State& state, melvox_bench::receiver_t& receiver)
{
    QVariantMap const summaries[] = {melvox_bench::navigationSummary(false), melvox_bench::navigationSummary(true)};
    bool other = false;
    for (auto _ : state)
    {
        other = !other;
        receiver.link.report("extendedNavInfo", summaries[other]);
    }
}

void reportToLabels(benchmark::State& state)
{
    melvox_bench::receiver_t receiver;
    melvoxUiExtendedNavInfo_t page(receiver.device.get());
    page.show();
    report(state, receiver);
}

/** The same reports through the same proxy, and one setText for each label of a text that is there already. */
void emitAndSetTexts(benchmark::State& state)
{
    melvox_bench::receiver_t receiver;
    melvoxUiExtendedNavInfo_t page(receiver.device.get());
    page.show();
    QList<QLabel*> const all = labels(page);
    QStringList shown[2];
    for (bool const other : {false, true})
    {
        receiver.link.report("extendedNavInfo", melvox_bench::navigationSummary(other));
        shown[other] = texts(all);
    }
    brel_common_qt::remoteMelvoxDevice_t* const device = receiver.device.get();
    QObject::disconnect(device, nullptr, &page, nullptr);
    bool other = false;
    QObject::connect(device, &brel_common_qt::remoteMelvoxDevice_t::extendedNavInfoUpdated, &page,
                     [&]()
                     {
                         other = !other;
                         for (int i = 0; i < all.size(); ++i)
                             all.at(i)->setText(shown[other].at(i));
                     });
    report(state, receiver);
}

} // namespace

BENCHMARK(reportToLabels)->Name("report/extendedNavInfo");
BENCHMARK(emitAndSetTexts)->Name("report/extendedNavInfo/bare");

MELVOX_BENCH_MAIN
