#include "receiver/heading.h"

#include "receiver/vehicle.h"

#include <algorithm>
#include <cmath>

namespace melvox_receiver
{

namespace
{

double const BASELINE = 1.992; // metres
double const BASELINE_NOISE = 0.002;
double const HEADING_RMS[] = {0.0, 0.9, 0.4, 0.2, 0.08}; // degrees, by mode

/** The angle from the vehicle's axis to the line between the antennas. */
double alignmentAngle(settings_t const& settings)
{
    QVariantMap const alignment = settings.value("antennaAlignment").toMap();
    double const angles[] = {90.0, 0.0, alignment.value("angle").toDouble()};
    return angles[std::clamp(alignment.value("mode").toInt(), 0, 2)];
}

} // namespace

QVariant heading_t::info(settings_t const& settings, solutionMode_t mode, qint64 at)
{
    if (mode == NO_SOLUTION)
        return QVariant();
    double const angle = alignmentAngle(settings);
    double const rms = HEADING_RMS[mode];
    // Not -angle, which would be a negative zero along the axis.
    double const attitude = 0.0 - angle;
    double const raw = std::fmod(vehicleMotion(at).course + angle + noise(rms) + 360.0, 360.0);
    return QVariantMap{{"rawHeading", raw},
                       {"attitude", attitude},
                       {"baseline", BASELINE + noise(BASELINE_NOISE)},
                       {"headingRms", rms}};
}

double heading_t::noise(double deviation)
{
    std::normal_distribution<double> normal;
    return deviation * std::clamp(normal(m_random), -3.0, 3.0);
}

} // namespace melvox_receiver
