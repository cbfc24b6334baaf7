#ifndef MELVOX_ROBUSTNESS_SUPERVISOR_H
#define MELVOX_ROBUSTNESS_SUPERVISOR_H

#include "shrink.h"

#include <QString>
#include <QStringList>

namespace melvox_robustness
{

/** A run tells where it is at every so many steps. */
int const PROGRESS = 500;

/** What a run is to do. */
struct run_t
{
    quint64 seed = 1;
    steps_t steps;
    int round = 2500;    //!< after so many steps everything is made anew
    QString fault;       //!< a fault to find, see faultyPage_t
    int shrinkFor = 120; //!< seconds
    bool tells = false;
    bool isChild = false;
};

/** Prints what is wrong and returns false when these are no options of ours. */
bool parse(QStringList const& arguments, run_t& run);

/** "0-499,612". */
QString toText(steps_t const& steps);
bool fromText(QString const& text, steps_t& steps);

/** Lets a process of its own do the run, since that may crash. When it fails, finds as few steps as it can that fail in
 *  the same way, and prints them. Returns the exit code of the program. */
int supervise(run_t const& run);

} // namespace melvox_robustness

#endif
