#include "bench.h"

#include "melvox_ui/melvoxUiAntennaConfigDialog.h"
#include "melvox_ui/melvoxUiAntennaIdentification.h"
#include "melvox_ui/melvoxUiBasePositionDialog.h"
#include "melvox_ui/melvoxUiCorrectionSatSelectDialog.h"
#include "melvox_ui/melvoxUiCorrectionsReceiver.h"
#include "melvox_ui/melvoxUiCustomSatDialog.h"
#include "melvox_ui/melvoxUiDifferentialConfiguration.h"
#include "ui_melvoxUiAntennaConfigDialog.h"
#include "ui_melvoxUiAntennaIdentification.h"
#include "ui_melvoxUiBasePositionDialog.h"
#include "ui_melvoxUiCorrectionSatSelectDialog.h"
#include "ui_melvoxUiCorrectionsReceiver.h"
#include "ui_melvoxUiCustomSatDialog.h"
#include "ui_melvoxUiDifferentialConfiguration.h"

using namespace brel_common_qt_gui;
using melvox_bench::bareDialog_t;
using melvox_bench::buildDialog;
using melvox_bench::buildForm;
using melvox_bench::buildForms;
using melvox_bench::buildPage;

namespace
{

typedef bareDialog_t<Ui_melvoxUiCorrectionSatSelectDialog> bareSatSelect_t;
typedef bareDialog_t<Ui_melvoxUiBasePositionDialog> bareBasePosition_t;
typedef bareDialog_t<Ui_melvoxUiAntennaConfigDialog> bareAntennaConfig_t;

void refreshStatistics(benchmark::State& state)
{
    melvox_bench::receiver_t receiver;
    melvoxUiCorrectionsReceiver_t page(receiver.device.get());
    int const satellites = int(state.range(0));
    QVariantMap const reports[] = {melvox_bench::satelliteStatistics(satellites, false),
                                   melvox_bench::satelliteStatistics(satellites, true)};
    receiver.link.report("correctionSatStats", reports[0]);
    page.show();
    QCoreApplication::processEvents();
    bool other = false;
    for (auto _ : state)
    {
        other = !other;
        receiver.link.report("correctionSatStats", reports[other]);
    }
}

} // namespace

BENCHMARK(buildPage<melvoxUiCorrectionsReceiver_t>)->Name("buildPage/CorrectionsReceiver");
BENCHMARK((buildForms<Ui_melvoxUiCorrectionsReceiver, bareSatSelect_t>))->Name("buildPage/CorrectionsReceiver/bare");
BENCHMARK(buildPage<melvoxUiDifferentialConfiguration_t>)->Name("buildPage/DifferentialConfiguration");
BENCHMARK((buildForms<Ui_melvoxUiDifferentialConfiguration, bareBasePosition_t>))
    ->Name("buildPage/DifferentialConfiguration/bare");
BENCHMARK(buildPage<melvoxUiAntennaIdentification_t>)->Name("buildPage/AntennaIdentification");
BENCHMARK((buildForms<Ui_melvoxUiAntennaIdentification, bareAntennaConfig_t>))
    ->Name("buildPage/AntennaIdentification/bare");
BENCHMARK(buildDialog<melvoxUiCorrectionSatSelectDialog_t>)->Name("buildPage/CorrectionSatSelectDialog");
BENCHMARK((buildForm<Ui_melvoxUiCorrectionSatSelectDialog, QDialog>))->Name("buildPage/CorrectionSatSelectDialog/bare");
BENCHMARK(buildDialog<melvoxUiCustomSatDialog_t>)->Name("buildPage/CustomSatDialog");
BENCHMARK((buildForm<Ui_melvoxUiCustomSatDialog, QDialog>))->Name("buildPage/CustomSatDialog/bare");
BENCHMARK(buildDialog<melvoxUiBasePositionDialog_t>)->Name("buildPage/BasePositionDialog");
BENCHMARK((buildForm<Ui_melvoxUiBasePositionDialog, QDialog>))->Name("buildPage/BasePositionDialog/bare");
BENCHMARK(buildDialog<melvoxUiAntennaConfigDialog_t>)->Name("buildPage/AntennaConfigDialog");
BENCHMARK((buildForm<Ui_melvoxUiAntennaConfigDialog, QDialog>))->Name("buildPage/AntennaConfigDialog/bare");

BENCHMARK(refreshStatistics)->Name("refreshStatistics/satellites")->Arg(10)->Arg(100)->Arg(1000);

MELVOX_BENCH_MAIN
