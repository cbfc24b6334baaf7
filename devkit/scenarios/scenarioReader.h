#ifndef MELVOX_SCENARIOS_SCENARIO_READER_H
#define MELVOX_SCENARIOS_SCENARIO_READER_H

#include "scenarios/scenario.h"

namespace melvox_scenarios
{

/** The names of the scenarios that come with the kit. */
QStringList scenarioNames();

/** Reads one of those by its name, or a file of one's own, which is told by a slash or by ".json" at its end. All of it
 *  is tried on a receiver beforehand. False, and `error` one sentence with file, line and reason, when any of it makes
 *  no sense. Needs no application object. */
bool loadScenario(QString const& nameOrFile, scenario_t& scenario, QString& error);

/** Reads a text; `file` is what errors call it. */
bool readScenario(QString const& file, QByteArray const& text, scenario_t& scenario, QString& error);

} // namespace melvox_scenarios

#endif
