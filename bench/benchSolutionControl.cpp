#include "bench.h"

#include "melvox_ui/melvoxUiSolutionControl.h"
#include "ui_melvoxUiSolutionControl.h"

#include <QLabel>
#include <QMetaMethod>

using namespace brel_common_qt_gui;

BENCHMARK(melvox_bench::buildPage<melvoxUiSolutionControl_t>)->Name("buildPage/SolutionControl");
BENCHMARK((melvox_bench::buildForm<Ui_melvoxUiSolutionControl>))->Name("buildPage/SolutionControl/bare");

namespace
{

/** Reports through the proxy until whoever listens has shown it. */
void report(benchmark::State& state, melvox_bench::receiver_t& receiver)
{
    double value = 10;
    for (auto _ : state)
    {
        value = value < 60 ? value + 0.1 : 10;
        receiver.link.report("elevationMask", value);
    }
}

void reportToLabel(benchmark::State& state)
{
    melvox_bench::receiver_t receiver;
    melvoxUiSolutionControl_t page(receiver.device.get());
    page.show();
    report(state, receiver);
}

/** The same report through the same proxy, and one setText of the same text. */
void emitAndSetText(benchmark::State& state)
{
    melvox_bench::receiver_t receiver;
    melvoxUiSolutionControl_t page(receiver.device.get());
    page.show();
    QLabel* const label = page.findChild<QLabel*>("elevationMaskLabel");
    brel_common_qt::remoteMelvoxDevice_t* const device = receiver.device.get();
    QObject::disconnect(device, nullptr, &page, nullptr);
    QObject::connect(device, &brel_common_qt::remoteMelvoxDevice_t::elevationMaskUpdated, label,
                     [label](endian::f64_t degrees) { label->setText(QString::number(degrees, 'f', 1)); });
    report(state, receiver);
}

} // namespace

BENCHMARK(reportToLabel)->Name("report/elevationMask");
BENCHMARK(emitAndSetText)->Name("report/elevationMask/bare");

MELVOX_BENCH_MAIN
