#include "receiver/nmea.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

namespace melvox_receiver
{

namespace
{

double const KNOT = 1852.0 / 3600.0; // metres per second
double const KMH = 1.0 / 3.6;

int const MOST_IN_GGA = 12;
int const SATELLITES_PER_GSA = 12;
int const SATELLITES_PER_GSV = 4;
double const LARGEST_DOP = 99.9;

char const* const TALKERS[NUM_CONSTELLATIONS] = {"GP", "GL", "GA", "GB"};
int const SYSTEM_IDS[NUM_CONSTELLATIONS] = {1, 2, 3, 4};
char const* const MODE_LETTERS[] = {"N", "A", "D", "F", "R"};
int const GGA_QUALITIES[] = {0, 1, 2, 5, 4};
int const GSA_FIXES[] = {1, 3, 3, 3, 3};

typedef QByteArrayList fields_t;

QByteArray number(double value, int decimals)
{
    return QByteArray::number(value, 'f', decimals);
}

QByteArray padded(int value, int width)
{
    return QByteArray::number(value).rightJustified(width, '0');
}

QByteArray timeOfDay(fix_t const& fix)
{
    QDateTime const time = QDateTime::fromMSecsSinceEpoch(fix.at, Qt::UTC);
    return time.toString("hhmmss").toLatin1() + '.' + padded(time.time().msec() / 10, 2);
}

QByteArray date(fix_t const& fix, char const* format)
{
    return QDateTime::fromMSecsSinceEpoch(fix.at, Qt::UTC).toString(format).toLatin1();
}

/** Rounded as a whole, so that minutes never read 60. */
QByteArray degreesAndMinutes(double degrees, int width, int decimals)
{
    qint64 const scale = std::llround(std::pow(10.0, decimals));
    qint64 const minutes = std::llround(std::fabs(degrees) * 60.0 * double(scale));
    return padded(int(minutes / scale / 60), width) + padded(int(minutes / scale % 60), 2) + '.' +
           QByteArray::number(minutes % scale).rightJustified(decimals, '0');
}

fields_t position(fix_t const& fix, nmeaOptions_t const& options)
{
    if (fix.mode == NO_SOLUTION)
        return {"", "", "", ""};
    int const decimals = options.highPrecision ? 7 : 4;
    return {degreesAndMinutes(fix.place.latitude, 2, decimals), fix.place.latitude < 0 ? "S" : "N",
            degreesAndMinutes(fix.place.longitude, 3, decimals), fix.place.longitude < 0 ? "W" : "E"};
}

bool usesCorrections(fix_t const& fix)
{
    return fix.mode >= DIFFERENTIAL;
}

fields_t correctionFields(fix_t const& fix, nmeaOptions_t const& options)
{
    if (!usesCorrections(fix))
        return {"", ""};
    return {number(fix.correctionAge / options.ageDivisor, 1), padded(fix.stationId % 10000, 4)};
}

int countOf(QList<satellite_t> const& satellites, int constellation)
{
    return int(std::count_if(satellites.begin(), satellites.end(),
                             [&](satellite_t const& s) { return s.constellation == constellation; }));
}

QByteArray dop(double value)
{
    return number(std::min(value, LARGEST_DOP), 1);
}

QByteArray talker(fix_t const& fix, nmeaOptions_t const& options)
{
    if (!options.forcedTalker.isEmpty())
        return options.forcedTalker;
    return countOf(fix.used, GPS) == fix.used.size() ? "GP" : "GN";
}

QByteArray talkerOf(int constellation, nmeaOptions_t const& options)
{
    return options.forcedTalker.isEmpty() ? QByteArray(TALKERS[constellation]) : options.forcedTalker;
}

fields_t dtm(fix_t const&, nmeaOptions_t const&)
{
    return {"W84", "", "0.0000", "N", "0.0000", "E", "0.000", "W84"};
}

fields_t gbs(fix_t const& fix, nmeaOptions_t const&)
{
    if (fix.mode == NO_SOLUTION)
        return {timeOfDay(fix), "", "", "", "", "", "", "", "", ""};
    return {timeOfDay(fix),
            number(fix.latError, 3),
            number(fix.lonError, 3),
            number(fix.heightError, 3),
            "",
            "",
            "",
            "",
            "",
            ""};
}

fields_t heights(fix_t const& fix, nmeaOptions_t const& options)
{
    int const decimals = options.highPrecision ? 3 : 1;
    return {number(fix.place.height - fix.geoidHeight, decimals), number(fix.geoidHeight, decimals)};
}

fields_t gga(fix_t const& fix, nmeaOptions_t const& options)
{
    bool const available = fix.mode != NO_SOLUTION;
    fields_t const height = available ? heights(fix, options) : fields_t{"", ""};
    int const quality = fix.mode == DIFFERENTIAL ? options.satelliteQuality : GGA_QUALITIES[fix.mode];
    return fields_t{timeOfDay(fix)} + position(fix, options) +
           fields_t{QByteArray::number(quality),
                    padded(std::min(int(fix.used.size()), MOST_IN_GGA), 2),
                    available ? dop(fix.hdop) : "",
                    height[0],
                    "M",
                    height[1],
                    "M"} +
           correctionFields(fix, options);
}

fields_t gll(fix_t const& fix, nmeaOptions_t const& options)
{
    return position(fix, options) +
           fields_t{timeOfDay(fix), fix.mode == NO_SOLUTION ? "V" : "A", MODE_LETTERS[fix.mode]};
}

fields_t gns(fix_t const& fix, nmeaOptions_t const& options)
{
    QByteArray modes;
    for (int c = 0; c < NUM_CONSTELLATIONS; ++c)
        modes += countOf(fix.used, c) > 0 ? MODE_LETTERS[fix.mode] : "N";
    bool const available = fix.mode != NO_SOLUTION;
    fields_t const height = available ? heights(fix, options) : fields_t{"", ""};
    return fields_t{timeOfDay(fix)} + position(fix, options) +
           fields_t{modes, padded(int(fix.used.size()), 2), available ? dop(fix.hdop) : "", height[0], height[1]} +
           correctionFields(fix, options) + fields_t{"V"};
}

fields_t gst(fix_t const& fix, nmeaOptions_t const&)
{
    if (fix.mode == NO_SOLUTION)
        return {timeOfDay(fix), "", "", "", "", "", "", ""};
    bool const northMajor = fix.latError >= fix.lonError;
    double const rms = std::sqrt((fix.latError * fix.latError + fix.lonError * fix.lonError) / 2.0);
    return {timeOfDay(fix),
            number(rms, 3),
            number(std::max(fix.latError, fix.lonError), 3),
            number(std::min(fix.latError, fix.lonError), 3),
            northMajor ? "0.0" : "90.0",
            number(fix.latError, 3),
            number(fix.lonError, 3),
            number(fix.heightError, 3)};
}

fields_t hdt(fix_t const& fix, nmeaOptions_t const&)
{
    return {fix.headingValid ? number(fix.heading, 2) : "", "T"};
}

double courseOverGround(fix_t const& fix)
{
    double const degrees = std::atan2(fix.motion.east, fix.motion.north) * 45.0 / std::atan(1.0);
    return std::fmod(degrees + 360.0, 360.0);
}

fields_t rmc(fix_t const& fix, nmeaOptions_t const& options)
{
    bool const available = fix.mode != NO_SOLUTION;
    return fields_t{timeOfDay(fix), available ? "A" : "V"} + position(fix, options) +
           fields_t{available ? number(fix.speed / KNOT, 3) : "",
                    available ? number(courseOverGround(fix), 2) : "",
                    date(fix, "ddMMyy"),
                    "",
                    "",
                    MODE_LETTERS[fix.mode],
                    "V"};
}

fields_t rot(fix_t const& fix, nmeaOptions_t const&)
{
    return {number(fix.turnRate, 1), fix.headingValid ? "A" : "V"};
}

fields_t vtg(fix_t const& fix, nmeaOptions_t const&)
{
    if (fix.mode == NO_SOLUTION)
        return {"", "T", "", "M", "", "N", "", "K", "N"};
    return {number(courseOverGround(fix), 2),
            "T",
            "",
            "M",
            number(fix.speed / KNOT, 3),
            "N",
            number(fix.speed / KMH, 3),
            "K",
            MODE_LETTERS[fix.mode]};
}

fields_t zda(fix_t const& fix, nmeaOptions_t const&)
{
    return {timeOfDay(fix), date(fix, "dd"), date(fix, "MM"), date(fix, "yyyy"), "00", "00"};
}

fields_t navigationMode(fix_t const& fix, nmeaOptions_t const&)
{
    return {timeOfDay(fix), QByteArray::number(fix.navMode), QByteArray::number(fix.navSource),
            padded(fix.stationId, 4), MODE_LETTERS[fix.mode]};
}

fields_t earthTide(fix_t const& fix, nmeaOptions_t const&)
{
    return {timeOfDay(fix), number(fix.tideNorth, 4), number(fix.tideEast, 4), number(fix.tideUp, 4)};
}

fields_t vectorHeading(fix_t const& fix, nmeaOptions_t const&)
{
    fields_t const time = {timeOfDay(fix), date(fix, "ddMMyy")};
    if (!fix.headingValid)
        return time + fields_t{"", "", "", ""};
    return time +
           fields_t{number(fix.heading, 2), number(fix.pitch, 2), number(fix.baseline, 3), number(fix.headingRms, 2)};
}

QByteArrayList gsa(fix_t const& fix, nmeaOptions_t const& options)
{
    QByteArrayList sentences;
    for (int c = 0; c < NUM_CONSTELLATIONS; ++c)
    {
        fields_t numbers;
        for (satellite_t const& satellite : fix.used)
        {
            if (satellite.constellation == c && numbers.size() < SATELLITES_PER_GSA)
                numbers << padded(satellite.number, 2);
        }
        // Without any satellite there is still one sentence that says so.
        if (numbers.isEmpty() && (c != GPS || !fix.used.isEmpty()))
            continue;
        while (numbers.size() < SATELLITES_PER_GSA)
            numbers << "";
        fields_t const body = fields_t{talker(fix, options) + "GSA", "A", QByteArray::number(GSA_FIXES[fix.mode])} +
                              numbers +
                              fields_t{dop(fix.pdop), dop(fix.hdop), dop(fix.vdop), QByteArray::number(SYSTEM_IDS[c])};
        sentences << nmeaSentence(body.join(','));
    }
    return sentences;
}

QByteArrayList gsvOf(int constellation, QList<satellite_t> const& satellites, nmeaOptions_t const& options)
{
    QByteArrayList sentences;
    int const count = int(satellites.size());
    int const total = (count + SATELLITES_PER_GSV - 1) / SATELLITES_PER_GSV;
    for (int sentence = 0; sentence < total; ++sentence)
    {
        fields_t body = {talkerOf(constellation, options) + "GSV", QByteArray::number(total),
                         QByteArray::number(sentence + 1), padded(count, 2)};
        for (satellite_t const& satellite : satellites.mid(sentence * SATELLITES_PER_GSV, SATELLITES_PER_GSV))
        {
            body << padded(satellite.number, 2) << padded(satellite.elevation, 2) << padded(satellite.azimuth, 3)
                 << padded(satellite.signal, 2);
        }
        body << "1";
        sentences << nmeaSentence(body.join(','));
    }
    return sentences;
}

QByteArrayList gsv(fix_t const& fix, nmeaOptions_t const& options)
{
    QByteArrayList sentences;
    for (int c = 0; c < NUM_CONSTELLATIONS; ++c)
    {
        QList<satellite_t> satellites;
        for (satellite_t const& satellite : fix.view)
        {
            if (satellite.constellation == c)
                satellites << satellite;
        }
        sentences += gsvOf(c, satellites, options);
    }
    return sentences;
}

/** How far each satellite's range is off, in the order of GSA: some of the height's error, strewn over them. */
QByteArrayList grs(fix_t const& fix, nmeaOptions_t const& options)
{
    QByteArrayList sentences;
    for (int c = 0; c < NUM_CONSTELLATIONS; ++c)
    {
        fields_t residuals;
        for (satellite_t const& satellite : fix.used)
        {
            double const residual = fix.heightError * std::sin(double(satellite.number) + double(fix.at) / 60000.0);
            if (satellite.constellation == c && residuals.size() < SATELLITES_PER_GSA)
                residuals << number(std::clamp(residual, -99.9, 99.9), 1);
        }
        if (residuals.isEmpty())
            continue;
        while (residuals.size() < SATELLITES_PER_GSA)
            residuals << "";
        fields_t const body = fields_t{talker(fix, options) + "GRS", timeOfDay(fix), "1"} + residuals +
                              fields_t{QByteArray::number(SYSTEM_IDS[c]), "1"};
        sentences << nmeaSentence(body.join(','));
    }
    return sentences;
}

struct single_t
{
    char const* type;
    fields_t (*fields)(fix_t const&, nmeaOptions_t const&);
};

/** Types with a talker before them. */
single_t const STANDARD[] = {{"DTM", dtm}, {"GBS", gbs}, {"GGA", gga}, {"GLL", gll}, {"GNS", gns}, {"GST", gst},
                             {"HDT", hdt}, {"RMC", rmc}, {"ROT", rot}, {"VTG", vtg}, {"ZDA", zda}};

single_t const PROPRIETARY[] = {{"PZLQDTM", dtm},       {"PZLQGGA", gga},
                                {"PZLQGST", gst},       {"PZLQMDE", navigationMode},
                                {"PZLQSET", earthTide}, {"PTPSRVHD", vectorHeading}};

} // namespace

nmeaOptions_t nmeaOptions(settings_t const& settings)
{
    QVariantMap const gga = settings.value("ggaMode").toMap();
    double const divisors[] = {1.0, 10.0, 60.0};
    char const* const talkers[] = {"", "GP", "GL"};
    nmeaOptions_t options;
    options.highPrecision = gga.value("mode").toInt() == 0;
    options.satelliteQuality = gga.value("quality").toInt() == 1 ? 2 : 5;
    options.ageDivisor = divisors[std::clamp(gga.value("scaling").toInt(), 0, 2)];
    options.forcedTalker = talkers[std::clamp(settings.value("talkerIdMode").toInt(), 0, 2)];
    return options;
}

QByteArray nmeaSentence(QByteArray const& body)
{
    unsigned char sum = 0;
    for (char c : body)
        sum ^= static_cast<unsigned char>(c);
    return '$' + body + '*' + QByteArray::number(sum, 16).toUpper().rightJustified(2, '0') + "\r\n";
}

QByteArrayList nmeaSentences(QByteArray const& type, fix_t const& fix, nmeaOptions_t const& options)
{
    if (type == "GSA")
        return gsa(fix, options);
    if (type == "GSV")
        return gsv(fix, options);
    if (type == "GRS")
        return grs(fix, options);
    for (single_t const& entry : STANDARD)
    {
        if (type == entry.type)
            return {nmeaSentence((fields_t{talker(fix, options) + type} + entry.fields(fix, options)).join(','))};
    }
    for (single_t const& entry : PROPRIETARY)
    {
        if (type == entry.type)
            return {nmeaSentence((fields_t{type} + entry.fields(fix, options)).join(','))};
    }
    return {};
}

} // namespace melvox_receiver
