#include "bench.h"

#include "melvox_ui/melvoxUiDtmWarnDialog.h"
#include "melvox_ui/melvoxUiEthernetConfiguration.h"
#include "melvox_ui/melvoxUiOutputMessages.h"
#include "melvox_ui/melvoxUiPhysicalPortConfigDialog.h"
#include "melvox_ui/melvoxUiPortConfiguration.h"
#include "melvox_ui/melvoxUiVirtualPortConfigDialog.h"
#include "melvox_ui/melvoxUiWiFiPasskeyDialog.h"
#include "ui_melvoxUiDtmWarnDialog.h"
#include "ui_melvoxUiEthernetConfiguration.h"
#include "ui_melvoxUiOutputMessages.h"
#include "ui_melvoxUiPhysicalPortConfigDialog.h"
#include "ui_melvoxUiPortConfiguration.h"
#include "ui_melvoxUiVirtualPortConfigDialog.h"
#include "ui_melvoxUiWiFiPasskeyDialog.h"

using namespace brel_common_qt_gui;
using melvox_bench::bareDialog_t;
using melvox_bench::bareQuestion_t;
using melvox_bench::buildDialog;
using melvox_bench::buildForms;
using melvox_bench::buildPlainDialog;

namespace
{

typedef bareDialog_t<Ui_melvoxUiDtmWarnDialog> bareDtmWarn_t;
typedef bareDialog_t<Ui_melvoxUiPhysicalPortConfigDialog> barePhysical_t;
typedef bareDialog_t<Ui_melvoxUiVirtualPortConfigDialog> bareVirtual_t;

void selectPort(benchmark::State& state)
{
    melvox_bench::outputs_t outputs(int(state.range(0)));
    int index = 1;
    for (auto _ : state)
    {
        index = 3 - index;
        outputs.combo->setCurrentIndex(index);
    }
}

/** A report for each message, until its row shows it. */
void reportOutputs(benchmark::State& state)
{
    int const messages = int(state.range(0));
    melvox_bench::outputs_t outputs(messages);
    double interval = 1.0;
    for (auto _ : state)
    {
        interval = interval > 50.0 ? 1.0 : interval + 1.0;
        for (int i = 0; i < messages; ++i)
            outputs.report(1, i, interval);
    }
}

} // namespace

BENCHMARK(melvox_bench::buildPage<melvoxUiOutputMessages_t>)->Name("buildPage/OutputMessages");
BENCHMARK((buildForms<Ui_melvoxUiOutputMessages, bareDtmWarn_t, bareQuestion_t, bareQuestion_t>))
    ->Name("buildPage/OutputMessages/bare");
BENCHMARK(melvox_bench::buildPage<melvoxUiPortConfiguration_t>)->Name("buildPage/PortConfiguration");
BENCHMARK((buildForms<Ui_melvoxUiPortConfiguration, barePhysical_t, bareVirtual_t>))
    ->Name("buildPage/PortConfiguration/bare");
BENCHMARK(melvox_bench::buildPage<melvoxUiEthernetConfiguration_t>)->Name("buildPage/EthernetConfiguration");
BENCHMARK((buildForms<Ui_melvoxUiEthernetConfiguration, bareQuestion_t>))->Name("buildPage/EthernetConfiguration/bare");
BENCHMARK(buildDialog<melvoxUiPhysicalPortConfigDialog_t>)->Name("buildPage/PhysicalPortConfigDialog");
BENCHMARK((melvox_bench::buildForm<Ui_melvoxUiPhysicalPortConfigDialog, QDialog>))
    ->Name("buildPage/PhysicalPortConfigDialog/bare");
BENCHMARK(buildDialog<melvoxUiVirtualPortConfigDialog_t>)->Name("buildPage/VirtualPortConfigDialog");
BENCHMARK((melvox_bench::buildForm<Ui_melvoxUiVirtualPortConfigDialog, QDialog>))
    ->Name("buildPage/VirtualPortConfigDialog/bare");
BENCHMARK(buildPlainDialog<melvoxUiDtmWarnDialog_t>)->Name("buildPage/DtmWarnDialog");
BENCHMARK((melvox_bench::buildForm<Ui_melvoxUiDtmWarnDialog, QDialog>))->Name("buildPage/DtmWarnDialog/bare");
BENCHMARK(buildPlainDialog<melvoxUiWiFiPasskeyDialog_t>)->Name("buildPage/WiFiPasskeyDialog");
BENCHMARK((melvox_bench::buildForm<Ui_melvoxUiWiFiPasskeyDialog, QDialog>))->Name("buildPage/WiFiPasskeyDialog/bare");

BENCHMARK(selectPort)->Name("selectPort/messages")->Arg(10)->Arg(20)->Arg(1000);
BENCHMARK(reportOutputs)->Name("reportOutput/messages")->Arg(10)->Arg(20)->Arg(1000);

MELVOX_BENCH_MAIN
