#ifndef BREL_COMMON_QT_UNITS_H
#define BREL_COMMON_QT_UNITS_H

namespace brel_common_qt
{

/** How the operator reads latitudes and longitudes. */
enum latLonFormat_t : int
{
    LATLON_FORMAT_DEGREE = 0,
    LATLON_FORMAT_DEGMIN = 1,
    LATLON_FORMAT_DEGMINSEC = 2
};

/** How the operator reads heights and distances; the receiver always speaks metres. */
enum distanceUnit_t : int
{
    DISTANCE_UNIT_METER = 0,
    DISTANCE_UNIT_US_SURVEY_FOOT = 1 //!< 1200/3937 m
};

/** How a latitude or longitude is written. */
struct latLonStringOptions_t
{
    explicit latLonStringOptions_t(latLonFormat_t format_ = LATLON_FORMAT_DEGREE)
        : format(format_), precision(-1), useDirection(true), zeroPad(false)
    {
    }

    latLonFormat_t format;
    int precision;     //!< decimals of the last part; -1: the default of the format
    bool useDirection; //!< N, S, E or W instead of a sign
    bool zeroPad;      //!< degrees, minutes and seconds to full width
};

} // namespace brel_common_qt

#endif
