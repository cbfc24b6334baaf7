#ifndef MELVOX_SCENARIOS_SCENARIO_H
#define MELVOX_SCENARIOS_SCENARIO_H

#include "link/faultFilter.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

namespace melvox_scenarios
{

/** A USB drive that is plugged in or pulled out. */
struct driveChange_t
{
    QString name;
    bool plugged;
    QMap<QString, QByteArray> files; //!< by their path on the drive
};

/** What becomes another way at one moment. What is not said stays as it is. */
struct moment_t
{
    qint64 at = 0;                    //!< simulated milliseconds after the start
    QMap<QString, QVariant> settings; //!< by group; of a keyed group the list of records
    QVariantMap situations;           //!< by name, see receiver_t::setSituation()
    bool clearFaults = false;         //!< before `faults` are set
    QList<melvox_link::faultSetting_t> faults;
    std::optional<int> faultDelay; //!< milliseconds, see faultFilter_t::setDelay()
    std::optional<unsigned int> activePort;
    QString linkKind; //!< one of linkKinds(), or empty
    std::optional<unsigned int> baud;
    std::optional<int> latency; //!< milliseconds
    std::optional<bool> connected;
    std::optional<double> speed;
    QList<driveChange_t> drives;
};

/** A named situation to show, to reproduce and to test with. */
struct scenario_t
{
    QString name;
    QString title;
    QString shows;
    QList<moment_t> moments; //!< the beginning, then the steps in the order of their times
};

/** What can be at the end of the display's cable: "serial", "tcp", "other". */
QStringList linkKinds();
/** What usually is there when the display comes in over this port of the receiver. */
QString usualLinkKind(unsigned int port);

/** "COM1" to "ETH8"; the index is the receiver's number of the port. */
QStringList portNames();

/** The simulated clock's limit. */
double const FASTEST_SPEED = 1000.0;

} // namespace melvox_scenarios

#endif
