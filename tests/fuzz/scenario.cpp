#include "fuzz.h"

#include "scenarios/scenario.h"
#include "scenarios/scenarioReader.h"

using melvox_fuzz::hold;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    melvox_scenarios::scenario_t scenario;
    QString error;
    QByteArray const text(reinterpret_cast<char const*>(data), int(size));
    if (!melvox_scenarios::readScenario("scenario.json", text, scenario, error))
        hold(error.startsWith("scenario.json"), "what is refused is refused with its place");
    return 0;
}
