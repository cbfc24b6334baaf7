#include "receiver/fix.h"

#include <algorithm>
#include <cmath>

namespace melvox_receiver
{

namespace
{

double const GEOID_HEIGHT = -35.2; // metres, where the vehicle drives

double const BEST_PDOP = 1.3;
double const MOST_SATELLITES = 36.0;

// Corrections come in frames of ten seconds and are a little old when they come.
qint64 const CORRECTION_INTERVAL = 10000; // milliseconds
double const CORRECTION_LATENCY = 3.0;    // seconds

char const* const MEAS_NAMES[NUM_CONSTELLATIONS] = {"GPS", "GLO", "GAL", "BEI"};

bool isInUse(settings_t const& settings, constellation_t constellation)
{
    for (QVariant const& item : settings.value("measUse").toList())
    {
        if (item.toMap().value("name") == QString(MEAS_NAMES[constellation]))
            return item.toMap().value("use").toBool();
    }
    return true;
}

void addSatellites(fix_t& fix, settings_t const& settings)
{
    double const mask = settings.value("elevationMask").toDouble();
    fix.view = satellitesInView(fix.at);
    for (satellite_t const& satellite : fix.view)
    {
        bool const usable = satellite.elevation >= mask && isInUse(settings, satellite.constellation);
        if (usable && fix.mode != NO_SOLUTION)
            fix.used << satellite;
    }
    // The geometry is taken for the same whatever the satellites are; only their number counts.
    fix.pdop = BEST_PDOP * std::sqrt(MOST_SATELLITES / std::max(double(fix.used.size()), 1.0));
    fix.hdop = 0.6 * fix.pdop;
    fix.vdop = 0.8 * fix.pdop;
}

void addSolution(fix_t& fix, QVariantMap const& info)
{
    fix.navMode = info.value("navMode").toInt();
    fix.navSource = info.value("navSource").toInt();
    fix.stationId = info.value("stationId").toInt();
    fix.latError = info.value("latError", 1.0).toDouble();
    fix.lonError = info.value("lonError", 1.0).toDouble();
    fix.heightError = info.value("heightError", 2.0).toDouble();
    fix.tideNorth = info.value("setDeltaNorth").toDouble();
    fix.tideEast = info.value("setDeltaEast").toDouble();
    fix.tideUp = info.value("setDeltaUp").toDouble();
    if (!info.contains("velocityNorth"))
        return;
    fix.motion.north = info.value("velocityNorth").toDouble();
    fix.motion.east = info.value("velocityEast").toDouble();
    fix.motion.up = info.value("velocityUp").toDouble();
}

void addHeading(fix_t& fix, QVariantMap const& info)
{
    fix.headingValid = !info.isEmpty();
    fix.heading = info.value("rawHeading").toDouble();
    fix.pitch = info.value("attitude").toDouble();
    fix.baseline = info.value("baseline").toDouble();
    fix.headingRms = info.value("headingRms").toDouble();
}

} // namespace

fix_t fixAt(receiver_t& receiver, qint64 at)
{
    settings_t const& settings = receiver.settings();
    QVariant const mode = receiver.ask("solutionMode", at);
    fix_t fix = fix_t();
    fix.at = at;
    fix.mode = mode.isValid() ? solutionMode_t(mode.toInt()) : AUTONOMOUS;
    fix.place = vehiclePlace(at);
    fix.geoidHeight = settings.value("geoidalModel").toInt() == 0 ? 0.0 : GEOID_HEIGHT;
    fix.motion = vehicleMotion(at);
    fix.turnRate = 60.0 * std::remainder(vehicleMotion(at + 1000).course - fix.motion.course, 360.0);
    fix.correctionAge = CORRECTION_LATENCY + double(at % CORRECTION_INTERVAL) / 1000.0;
    addSolution(fix, receiver.ask("extendedNavInfo", at).toMap());
    fix.speed = std::hypot(fix.motion.north, fix.motion.east);
    addHeading(fix, receiver.ask("vhdInfo", at).toMap());
    addSatellites(fix, settings);
    return fix;
}

} // namespace melvox_receiver
