#include "brel_common_qt_gui/guiSettings.h"

namespace brel_common_qt_gui
{

using namespace brel_common_qt;

guiSettings_t::guiSettings_t() : m_latLonFormat(LATLON_FORMAT_DEGREE), m_distanceUnit(DISTANCE_UNIT_METER)
{
}

guiSettings_t::~guiSettings_t()
{
}

guiSettings_t& guiSettings_t::get()
{
    static guiSettings_t instance;
    return instance;
}

latLonFormat_t guiSettings_t::latLonFormat() const
{
    return m_latLonFormat;
}

distanceUnit_t guiSettings_t::distanceUnit() const
{
    return m_distanceUnit;
}

void guiSettings_t::setLatLonFormat(latLonFormat_t format)
{
    if (format == m_latLonFormat)
        return;
    m_latLonFormat = format;
    emit latLonFormatChanged();
}

void guiSettings_t::setDistanceUnit(distanceUnit_t unit)
{
    if (unit == m_distanceUnit)
        return;
    m_distanceUnit = unit;
    emit distanceUnitChanged();
}

} // namespace brel_common_qt_gui
