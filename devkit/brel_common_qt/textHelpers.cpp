#include "brel_common_qt/textHelpers.h"

#include "brel_common_qt/kitFormat.h"

#include <GeographicLib/DMS.hpp>

#include <QCoreApplication>
#include <QStringList>

#include <cmath>

namespace brel_common_qt
{

QString const YesString("Yes");
QString const NoString("No");
QString const NoneString("None");
QString const UnknownString("Unknown");
QString const NoDataString("---");
QString const utcString(" UTC");

} // namespace brel_common_qt

namespace melvox_kit
{

using namespace brel_common_qt;

int defaultAnglePrecision(latLonFormat_t format)
{
    switch (format)
    {
    case LATLON_FORMAT_DEGMIN:
        return 7;
    case LATLON_FORMAT_DEGMINSEC:
        return 5;
    default:
        return 9;
    }
}

QStringList angleParts(double degrees, latLonFormat_t format, int precision)
{
    GeographicLib::DMS::component last = GeographicLib::DMS::DEGREE;
    if (format == LATLON_FORMAT_DEGMIN)
        last = GeographicLib::DMS::MINUTE;
    else if (format == LATLON_FORMAT_DEGMINSEC)
        last = GeographicLib::DMS::SECOND;
    unsigned int const decimals = precision < 0 ? defaultAnglePrecision(format) : precision;
    std::string const text = GeographicLib::DMS::Encode(degrees, last, decimals, GeographicLib::DMS::NONE, ':');
    return QString::fromLatin1(text.c_str()).split(QLatin1Char(':'));
}

namespace
{

// The foot of the United States' land surveys is a little longer than that of 0.3048 m.
double const FEET_PER_METRE_NUMERATOR = 3937;
double const FEET_PER_METRE_DENOMINATOR = 1200;

} // namespace

double fromMetres(double metres, distanceUnit_t unit)
{
    if (unit != DISTANCE_UNIT_US_SURVEY_FOOT)
        return metres;
    return metres * FEET_PER_METRE_NUMERATOR / FEET_PER_METRE_DENOMINATOR;
}

double toMetres(double distance, distanceUnit_t unit)
{
    if (unit != DISTANCE_UNIT_US_SURVEY_FOOT)
        return distance;
    return distance * FEET_PER_METRE_DENOMINATOR / FEET_PER_METRE_NUMERATOR;
}

QString unitSymbol(distanceUnit_t unit)
{
    return QLatin1String(unit == DISTANCE_UNIT_US_SURVEY_FOOT ? "ft" : "m");
}

} // namespace melvox_kit

namespace brel_common_qt
{

namespace
{

/** How latitudes and longitudes differ. */
struct axis_t
{
    double limit; //!< degrees
    int degreeDigits;
    char positive;
    char negative;
};

axis_t const LATITUDE = {90, 2, 'N', 'S'};
axis_t const LONGITUDE = {360, 3, 'E', 'W'};

bool isZero(QStringList const& parts)
{
    QString const text = parts.join(QString());
    for (int i = 0; i < text.size(); ++i)
    {
        if (text.at(i) != QLatin1Char('0') && text.at(i) != QLatin1Char('.'))
            return false;
    }
    return true;
}

/** Gives the digits before the decimal point this width. */
QString padded(QString const& part, int digits)
{
    int const point = part.indexOf(QLatin1Char('.'));
    int const missing = digits - (point < 0 ? part.size() : point);
    return QString(qMax(0, missing), QLatin1Char('0')) + part;
}

QString unpadded(QString const& part)
{
    int zeros = 0;
    while (zeros + 1 < part.size() && part.at(zeros) == QLatin1Char('0') && part.at(zeros + 1).isDigit())
        ++zeros;
    return part.mid(zeros);
}

QString withSymbols(QStringList const& parts, axis_t const& axis, bool zeroPad)
{
    // One char each for the minute and second signs, as people type them.
    static char const* const symbols[] = {"\xC2\xB0", "'", "\""};
    QStringList texts;
    for (int i = 0; i < parts.size(); ++i)
    {
        QString const text = zeroPad ? padded(parts.at(i), i == 0 ? axis.degreeDigits : 2) : unpadded(parts.at(i));
        // NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage): an angle has three parts at most
        texts << text + QString::fromUtf8(symbols[i]);
    }
    return texts.join(QLatin1String(" "));
}

QString angleString(double degrees, latLonStringOptions_t const& options, axis_t const& axis)
{
    if (!(std::fabs(degrees) <= axis.limit))
        return NoDataString;
    QStringList const parts = melvox_kit::angleParts(std::fabs(degrees), options.format, options.precision);
    // What is rounded to nothing is neither south nor west of anything.
    bool const negative = degrees < 0 && !isZero(parts);
    QString const text = withSymbols(parts, axis, options.zeroPad);
    if (options.useDirection)
        return text + QLatin1Char(' ') + QLatin1Char(negative ? axis.negative : axis.positive);
    return negative ? QLatin1Char('-') + text : text;
}

/** The same meridian, -180 to 180 degrees. */
double nearerWayRound(double longitude)
{
    if (longitude > 180 && longitude <= 360)
        return longitude - 360;
    if (longitude < -180 && longitude >= -360)
        return longitude + 360;
    return longitude;
}

} // namespace

QString baudString(unsigned int baud)
{
    return QString::number(baud);
}

QString parityString(parity_t parity)
{
    switch (parity)
    {
    case PARITY_N:
        return NoneString;
    case PARITY_O:
        return QCoreApplication::translate("brel_common_qt", "Odd");
    case PARITY_E:
        return QCoreApplication::translate("brel_common_qt", "Even");
    }
    return UnknownString;
}

QString charSizeString(charSize_t charSize)
{
    switch (charSize)
    {
    case CHAR_SIZE_7:
        return QLatin1String("7");
    case CHAR_SIZE_8:
        return QLatin1String("8");
    }
    return UnknownString;
}

QString stopBitsString(stopBits_t stopBits)
{
    switch (stopBits)
    {
    case STOP_1:
        return QLatin1String("1");
    case STOP_2:
        return QLatin1String("2");
    }
    return UnknownString;
}

QString latitudeString(double degrees, latLonStringOptions_t const& options)
{
    return angleString(degrees, options, LATITUDE);
}

QString longitudeString(double degrees, latLonStringOptions_t const& options)
{
    return angleString(nearerWayRound(degrees), options, LONGITUDE);
}

QString distanceString(double metres, distanceUnit_t unit, int decimals)
{
    double const distance = melvox_kit::fromMetres(metres, unit);
    if (std::isnan(distance) || std::isinf(distance))
        return NoDataString;
    QString number = QString::number(distance, 'f', qMax(0, decimals));
    if (number.startsWith(QLatin1Char('-')) && isZero(QStringList(number.mid(1))))
        number.remove(0, 1);
    return number + QLatin1Char(' ') + melvox_kit::unitSymbol(unit);
}

} // namespace brel_common_qt
