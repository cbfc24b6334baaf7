#include "fuzz.h"

#include "application.h"

#include "brel_common_qt_gui/distanceEdit.h"
#include "brel_common_qt_gui/guiSettings.h"
#include "brel_common_qt_gui/latitudeEdit.h"
#include "brel_common_qt_gui/longitudeEdit.h"

#include <QLineEdit>

#include <cmath>

using namespace brel_common_qt_gui;
using melvox_fuzz::hold;

namespace
{

double const ALMOST = 1e-9;

/** Types one line of the text into each field, as a paste does: the validators have their say. */
void type(QWidget* edit, QStringList const& lines)
{
    QList<QLineEdit*> const fields = edit->findChildren<QLineEdit*>();
    for (int i = 0; i < fields.size(); ++i)
    {
        fields.at(i)->selectAll();
        fields.at(i)->insert(lines.value(i));
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    melvox_fuzz::needApplication();
    if (size < 1)
        return 0;
    guiSettings_t::get().setLatLonFormat(brel_common_qt::latLonFormat_t(data[0] % 3));
    QStringList const lines = QString::fromUtf8(reinterpret_cast<char const*>(data + 1), int(size) - 1).split('\n');
    // Made once: that costs more than all the rest. What was typed before is put away.
    static latitudeEdit_t latitude;
    static longitudeEdit_t longitude;
    static distanceEdit_t distance;
    latitude.setLatitude(0);
    longitude.setLongitude(0);
    distance.setDistance(0, brel_common_qt::DISTANCE_UNIT_METER);
    type(&latitude, lines);
    type(&longitude, lines);
    type(&distance, lines);
    hold(std::fabs(latitude.degrees()) <= 90 + ALMOST, "a latitude is within its limits");
    hold(std::fabs(longitude.degrees()) <= 180 + ALMOST, "a longitude is within its limits");
    hold(std::isfinite(distance.meters()), "a distance is a number");
    double const before = longitude.degrees();
    longitude.setLongitude(before);
    hold(longitude.degrees() == before, "a longitude that was read is the same when it is set");
    return 0;
}
