#include "receiver/solution.h"

#include "receiver/vehicle.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace melvox_receiver
{

namespace
{

int const STEP_TIME = 10000;      // milliseconds from one mode to the next better one
int const COMPLETING_TIME = 5000; // milliseconds before the solution is back

enum failure_t
{
    SOLUTION_AVAILABLE = 1,
    TOO_FEW_FOR_INIT = 2,
    INIT_COMPLETING = 4,
    TOO_FEW_MEASUREMENTS = 5,
    PDOP_TOO_HIGH = 6
};

qint64 const GPS_EPOCH = 315964800000; // 1980-01-06 00:00 UTC
qint64 const LEAP_SECONDS = 18000;     // milliseconds
qint64 const WEEK = 7 * 24 * 3600 * 1000;

int const NUM_CONSTELLATIONS = 4;
double const SATELLITES_OVERHEAD = 9.0; // of one constellation, with no mask
double const FEWEST_SATELLITES = 5.0;
double const BEST_PDOP = 1.3;

/** What tells one mode from another: deviations in metres, and what is told of the corrections. */
struct quality_t
{
    char const* name;
    double latError;
    double lonError;
    double heightError;
    double velocityNoise; //!< metres per second
    int navMode;
    int navSource;
    int stationId;
};

quality_t const QUALITIES[] = {
    {"none", 0.0, 0.0, 0.0, 0.0, 0, 0, 0},
    {"autonomous", 1.21, 1.04, 2.35, 0.03, 0, 0, 0},
    {"differential", 0.33, 0.29, 0.62, 0.01, 2, 9, 446},
    {"float", 0.11, 0.09, 0.21, 0.005, 3, 9, 12},
    {"fixed", 0.009, 0.008, 0.016, 0.002, 7, 9, 12},
};

double const FULL_TURN = 2.0 * std::acos(-1.0);

/** The ground rises and falls with moon and sun, here with the moon alone. */
double tide(qint64 at, double amplitude, double lag)
{
    double const moon = 44714000.0; // milliseconds from high to high
    return amplitude * std::cos(FULL_TURN * (std::fmod(double(at), moon) / moon - lag));
}

int constellationsInUse(settings_t const& settings)
{
    int count = 0;
    for (QVariant const& item : settings.value("measUse").toList())
        count += item.toMap().value("use").toBool() ? 1 : 0;
    return count;
}

double satellitesInUse(settings_t const& settings)
{
    double const mask = settings.value("elevationMask").toDouble();
    return constellationsInUse(settings) * SATELLITES_OVERHEAD * (1.0 - mask / 90.0);
}

/** Fewer satellites spread worse over the sky. */
double pdop(settings_t const& settings)
{
    double const most = NUM_CONSTELLATIONS * SATELLITES_OVERHEAD;
    return BEST_PDOP * std::sqrt(most / std::max(satellitesInUse(settings), 1.0));
}

bool anyCorrectionEnabled(settings_t const& settings)
{
    for (QVariant const& record : settings.value("correctionEnabled").toList())
    {
        if (record.toMap().value("enabled").toBool())
            return true;
    }
    return false;
}

bool isStatic(settings_t const& settings)
{
    QVariantMap const config = settings.value("dynamicConfig").toMap();
    return !config.value("autoMode").toBool() && config.value("mode").toInt() == 0;
}

bool smoothsVelocity(settings_t const& settings)
{
    QVariantMap const config = settings.value("dynamicConfig").toMap();
    return config.value("autoMode").toBool() && config.value("velocitySmoothing").toBool();
}

} // namespace

solution_t::solution_t() : m_best(DIFFERENTIAL), m_failure(TOO_FEW_FOR_INIT), m_climbFrom(DIFFERENTIAL), m_climbStart(0)
{
}

bool solution_t::setBest(qint64 now, QString const& mode)
{
    quality_t const* const found = std::find_if(std::begin(QUALITIES), std::end(QUALITIES),
                                                [&](quality_t const& quality) { return mode == quality.name; });
    if (found == std::end(QUALITIES))
        return false;
    solutionMode_t const before = climbed(now);
    m_best = solutionMode_t(found - QUALITIES);
    // A restart that is not over goes on.
    if (isRecovering(now))
        return true;
    m_climbFrom = std::min(std::max(before, AUTONOMOUS), m_best);
    m_climbStart = now;
    return true;
}

void solution_t::setFailure(int code)
{
    m_failure = code;
}

void solution_t::lose(qint64 now, int recovery)
{
    m_climbFrom = AUTONOMOUS;
    m_climbStart = now + recovery;
}

bool solution_t::isRecovering(qint64 at) const
{
    return at < m_climbStart;
}

solutionMode_t solution_t::climbed(qint64 at) const
{
    if (isRecovering(at))
        return NO_SOLUTION;
    qint64 const steps = (at - m_climbStart) / STEP_TIME;
    return solutionMode_t(std::min<qint64>(m_best, m_climbFrom + steps));
}

int solution_t::failure(settings_t const& settings, qint64 at) const
{
    if (isRecovering(at))
        return m_climbStart - at > COMPLETING_TIME ? TOO_FEW_FOR_INIT : INIT_COMPLETING;
    if (m_best == NO_SOLUTION)
        return m_failure;
    if (satellitesInUse(settings) < FEWEST_SATELLITES)
        return TOO_FEW_MEASUREMENTS;
    return pdop(settings) > settings.value("pdopLimit").toDouble() ? PDOP_TOO_HIGH : SOLUTION_AVAILABLE;
}

solutionMode_t solution_t::mode(settings_t const& settings, qint64 at) const
{
    if (failure(settings, at) != SOLUTION_AVAILABLE)
        return NO_SOLUTION;
    return anyCorrectionEnabled(settings) ? climbed(at) : std::min(climbed(at), AUTONOMOUS);
}

QVariantMap solution_t::info(settings_t const& settings, qint64 at)
{
    solutionMode_t const now = mode(settings, at);
    quality_t const& quality = QUALITIES[now];
    qint64 const gpsTime = at - GPS_EPOCH + LEAP_SECONDS;
    bool const available = now != NO_SOLUTION;
    QVariantMap info = {{"valid", true},
                        {"gpsWeek", int(gpsTime / WEEK)},
                        {"gpsTime", double(gpsTime % WEEK) / 1000.0},
                        {"navValid", available ? 1 : 0},
                        {"datum", 1},
                        {"geoid", settings.value("geoidalModel").toInt() == 0 ? 0 : 1},
                        {"navMode", quality.navMode},
                        {"navSource", quality.navSource},
                        {"stationId", quality.stationId},
                        {"failureCode", failure(settings, at)},
                        {"setDeltaNorth", available ? tide(at, 0.021, 0.1) : 0.0},
                        {"setDeltaEast", available ? tide(at, 0.034, 0.25) : 0.0},
                        {"setDeltaUp", available ? tide(at, 0.142, 0.0) : 0.0}};
    addErrors(info, settings, now);
    addVelocity(info, settings, now, at);
    return info;
}

void solution_t::addErrors(QVariantMap& info, settings_t const& settings, solutionMode_t mode)
{
    quality_t const& quality = QUALITIES[mode];
    double const scatter = std::clamp(1.0 + noise(0.05), 0.8, 1.2);
    double const scale = scatter * pdop(settings) / BEST_PDOP;
    info["latError"] = quality.latError * scale;
    info["lonError"] = quality.lonError * scale;
    info["heightError"] = quality.heightError * scale;
}

void solution_t::addVelocity(QVariantMap& info, settings_t const& settings, solutionMode_t mode, qint64 at)
{
    // In static mode the filter takes whatever it sees for noise.
    bool const moves = mode != NO_SOLUTION && !isStatic(settings);
    motion_t const motion = moves ? vehicleMotion(at) : motion_t();
    double const deviation = moves ? QUALITIES[mode].velocityNoise * (smoothsVelocity(settings) ? 0.25 : 1.0) : 0.0;
    info["velocityNorth"] = motion.north + noise(deviation);
    info["velocityEast"] = motion.east + noise(deviation);
    info["velocityUp"] = motion.up + noise(deviation);
}

double solution_t::noise(double deviation)
{
    // Limited, so that no single report is far off.
    std::normal_distribution<double> normal;
    return deviation * std::clamp(normal(m_random), -3.0, 3.0);
}

} // namespace melvox_receiver
