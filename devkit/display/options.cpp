#include "display/options.h"

#include "firmware/programOptions.h"
#include "scenarios/scenarioReader.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>

namespace melvox_display
{

namespace
{

using namespace brel_common_qt;

QSize const SMALLEST(640, 400);
QSize const LARGEST(7680, 4320);
double const FASTEST_REPLAY = 1000.0;

QString tr(char const* text)
{
    return QCoreApplication::translate("options", text);
}

QList<QCommandLineOption> knownOptions()
{
    return {
        {"page", tr("Starts on this page."), tr("NAME")},
        {"connect",
         tr("The receiver: tcp:HOST:PORT or serial:DEVICE[:BAUD]. Without it, a simulated receiver in this program."),
         tr("WHERE")},
        {"size", tr("Size of the unit's screen in pixels, 1024x600 unless told."), tr("WxH")},
        {"usb",
         tr("Each folder in this one is a USB drive; real: the removable drives of this machine are. Without it, files "
            "are chosen in a file dialog."),
         "DIR|real"},
        {"scenario", tr("Starts the simulated receiver in this situation, one of the kit's or one from a file."),
         tr("NAME|FILE")},
        {"speed", tr("Lets the simulated receiver's time run so many times as fast."), tr("N")},
        {"tour", tr("Walks all pages and dialogs, writes pictures of them to this folder and ends."), tr("DIR")},
        {"units", tr("Heights and distances in m or ft, for this run."), "m|ft"},
        {"format", tr("Positions in deg, dm or dms, for this run."), "deg|dm|dms"},
        {"settings", tr("Keeps the user-interface settings in this file."), tr("FILE")},
        {"record", tr("Writes a journal of all messages and all that the operator does to this file."), tr("FILE")},
        {"replay", tr("The receiver is played from this journal."), tr("FILE")},
        {"replay-actions", tr("With --replay: the operator is played too.")},
        {"replay-speed", tr("With --replay: 2 plays at twice the speed, 0 as fast as the display follows."),
         tr("FACTOR")},
        {"profiles", tr("The simulated receiver keeps its profiles in this folder."), tr("DIR")},
        {QStringList{"h", "help"}, tr("Shows this text.")},
        {QStringList{"v", "version"}, tr("Shows the version.")},
    };
}

/** Empty, or what is wrong. */
QString readPage(QString const& text, QStringList const& pages, options_t& options)
{
    options.page = text;
    if (pages.contains(text))
        return QString();
    return tr("There is no page \"%1\". The pages are: %2.").arg(text, pages.join(", "));
}

bool readPort(QString const& text, connection_t& connection)
{
    bool isNumber = false;
    connection.port = text.toInt(&isNumber);
    return isNumber && connection.port >= 1 && connection.port <= 65535;
}

bool readTcp(QString const& place, connection_t& connection)
{
    int const colon = place.lastIndexOf(':');
    connection.kind = connection_t::TCP;
    connection.host = place.left(qMax(0, colon));
    if (connection.host.startsWith('[') && connection.host.endsWith(']'))
        connection.host = connection.host.mid(1, connection.host.size() - 2);
    return !connection.host.isEmpty() && readPort(place.mid(colon + 1), connection);
}

bool readSerial(QString const& place, connection_t& connection)
{
    int const colon = place.lastIndexOf(':');
    connection.kind = connection_t::SERIAL;
    connection.device = colon < 0 ? place : place.left(colon);
    if (connection.device.isEmpty())
        return false;
    if (colon < 0)
        return true;
    bool isNumber = false;
    connection.baud = place.mid(colon + 1).toInt(&isNumber);
    return isNumber && connection.baud > 0;
}

QString readConnection(QString const& text, options_t& options)
{
    connection_t& connection = options.connection;
    bool const good = text.startsWith("tcp:")      ? readTcp(text.mid(4), connection)
                      : text.startsWith("serial:") ? readSerial(text.mid(7), connection)
                                                   : false;
    if (good)
        return QString();
    return tr("--connect takes tcp:HOST:PORT (such as tcp:192.168.0.7:5000) or serial:DEVICE[:BAUD] (such as "
              "serial:/dev/ttyS0:115200), not \"%1\".")
        .arg(text);
}

QString readSize(QString const& text, options_t& options)
{
    QStringList const parts = text.split('x');
    bool isWidth = false;
    bool isHeight = false;
    QSize const size(parts.value(0).toInt(&isWidth), parts.value(1).toInt(&isHeight));
    bool const good = parts.size() == 2 && isWidth && isHeight && size.expandedTo(SMALLEST) == size &&
                      size.boundedTo(LARGEST) == size;
    if (!good)
        return tr("--size takes a width and a height in pixels such as 1024x600 or 800x480, at least %1x%2, not "
                  "\"%3\".")
            .arg(SMALLEST.width())
            .arg(SMALLEST.height())
            .arg(text);
    options.size = size;
    return QString();
}

QString readUnits(QString const& text, options_t& options)
{
    if (text == "m")
        options.units = DISTANCE_UNIT_METER;
    else if (text == "ft")
        options.units = DISTANCE_UNIT_US_SURVEY_FOOT;
    else
        return tr("--units takes m or ft, not \"%1\".").arg(text);
    return QString();
}

QString readFormat(QString const& text, options_t& options)
{
    QStringList const known = {"deg", "dm", "dms"};
    if (!known.contains(text))
        return tr("--format takes deg, dm or dms, not \"%1\".").arg(text);
    options.format = static_cast<latLonFormat_t>(known.indexOf(text));
    return QString();
}

QString readUsb(QString const& text, options_t& options)
{
    options.realDrives = text == "real";
    if (options.realDrives)
        return QString();
    options.usbDir = text;
    if (QFileInfo(text).isDir())
        return QString();
    return tr("--usb takes a folder whose folders are the drives, or real for those of this machine; there is no "
              "folder "
              "\"%1\".")
        .arg(text);
}

QString readScenario(QString const& text, options_t& options)
{
    QString error;
    melvox_scenarios::scenario_t scenario;
    if (melvox_scenarios::loadScenario(text, scenario, error))
        options.scenario = scenario;
    return error;
}

QString readClockSpeed(QString const& text, options_t& options)
{
    bool isNumber = false;
    options.speed = text.toDouble(&isNumber);
    if (isNumber && *options.speed > 0.0 && *options.speed <= melvox_scenarios::FASTEST_SPEED)
        return QString();
    return tr("--speed takes a number above 0, at most %1, not \"%2\".").arg(melvox_scenarios::FASTEST_SPEED).arg(text);
}

/** What needs the receiver in this very program. */
QString checkReceiver(QCommandLineParser const& parser)
{
    for (char const* option : {"scenario", "speed"})
    {
        if (parser.isSet("connect") && parser.isSet(option))
            return tr("--%1 is for the receiver in this program; with --connect, give it to melvox_receiver.")
                .arg(option);
    }
    return QString();
}

QString readFileName(QString const& option, QString const& text, QString& name)
{
    name = text;
    return text.isEmpty() ? tr("%1 needs a name.").arg(option) : QString();
}

QString readSpeed(QString const& text, options_t& options)
{
    bool isNumber = false;
    double const speed = text.toDouble(&isNumber);
    options.connection.replaySpeed = speed;
    if (isNumber && speed >= 0.0 && speed <= FASTEST_REPLAY)
        return QString();
    return tr("--replay-speed takes a factor from 0 to %1, not \"%2\".").arg(FASTEST_REPLAY).arg(text);
}

QString readReplay(QCommandLineParser const& parser, options_t& options)
{
    QStringList faults;
    options.replayActions = parser.isSet("replay-actions");
    if (parser.isSet("replay-speed"))
        faults << readSpeed(parser.value("replay-speed"), options);
    if (!parser.isSet("replay"))
        return options.replayActions || parser.isSet("replay-speed") ? tr("--replay-actions and --replay-speed need "
                                                                          "--replay FILE.")
                                                                     : QString();
    faults << readFileName("--replay", parser.value("replay"), options.replayFile);
    for (char const* name : {"connect", "page", "size", "scenario", "speed", "units", "format", "settings", "tour"})
    {
        if (parser.isSet(name))
            faults << tr("A journal brings what --%1 says of its own: leave it out with --replay.").arg(name);
    }
    faults.removeAll(QString());
    return faults.value(0);
}

QString readProfiles(QString const& text, options_t& options)
{
    options.profileFolder = text;
    if (text.isEmpty())
        return tr("%1 needs a name.").arg("--profiles");
    if (options.connection.kind == connection_t::SIMULATED && options.replayFile.isEmpty())
        return QString();
    return tr("--profiles is for the receiver in this program, which --connect and --replay do without.");
}

QString readValues(QCommandLineParser const& parser, QStringList const& pages, options_t& options)
{
    QStringList faults;
    if (parser.isSet("page"))
        faults << readPage(parser.value("page"), pages, options);
    if (parser.isSet("connect"))
        faults << readConnection(parser.value("connect"), options);
    if (parser.isSet("size"))
        faults << readSize(parser.value("size"), options);
    if (parser.isSet("usb"))
        faults << readUsb(parser.value("usb"), options);
    faults << checkReceiver(parser);
    if (parser.isSet("scenario"))
        faults << readScenario(parser.value("scenario"), options);
    if (parser.isSet("speed"))
        faults << readClockSpeed(parser.value("speed"), options);
    if (parser.isSet("tour"))
        faults << readFileName("--tour", parser.value("tour"), options.tourDir);
    if (parser.isSet("units"))
        faults << readUnits(parser.value("units"), options);
    if (parser.isSet("format"))
        faults << readFormat(parser.value("format"), options);
    if (parser.isSet("settings"))
        faults << readFileName("--settings", parser.value("settings"), options.settingsFile);
    if (parser.isSet("record"))
        faults << readFileName("--record", parser.value("record"), options.recordFile);
    faults << readReplay(parser, options);
    if (parser.isSet("profiles"))
        faults << readProfiles(parser.value("profiles"), options);
    faults.removeAll(QString());
    return faults.value(0);
}

/** One sentence for the first thing that the parser did not understand. */
QString misunderstood(QCommandLineParser const& parser)
{
    QStringList const unknown = parser.unknownOptionNames();
    QString const fault =
        unknown.isEmpty()
            ? parser.errorText()
            : tr("There is no option \"%1\"").arg((unknown.first().size() > 1 ? "--" : "-") + unknown.first());
    return melvox_firmware::misunderstood(fault, knownOptions());
}

QString helpText(QStringList const& pages)
{
    QString text = tr("Usage: %1 [options]").arg("melvox_display") + "\n" +
                   tr("The display unit of a machine with a Melvox receiver.") + "\n\n";
    for (QCommandLineOption const& option : knownOptions())
    {
        QString const head = "--" + option.names().constLast() + " " + option.valueName();
        text += "  " + head.leftJustified(24) + option.description() + "\n";
    }
    return text + "\n" + tr("Pages: %1").arg(pages.join(", ")) + "\n";
}

parsedOptions_t answer(parsedOptions_t::result_t result, QString const& text)
{
    parsedOptions_t parsed;
    parsed.result = result;
    parsed.text = text;
    return parsed;
}

} // namespace

parsedOptions_t parseOptions(QStringList const& arguments, QStringList const& pages)
{
    QCommandLineParser parser;
    parser.addOptions(knownOptions());
    bool const understood = parser.parse(arguments);
    if (understood && parser.isSet("help"))
        return answer(parsedOptions_t::SHOW, helpText(pages));
    if (understood && parser.isSet("version"))
        return answer(parsedOptions_t::SHOW, QString("melvox_display %1\n").arg(MELVOX_VERSION));
    if (!understood)
        return answer(parsedOptions_t::REFUSE, misunderstood(parser));
    QStringList const others = parser.positionalArguments();
    if (!others.isEmpty())
        return answer(parsedOptions_t::REFUSE,
                      melvox_firmware::misunderstood(tr("\"%1\" is no option").arg(others.first()), knownOptions()));
    parsedOptions_t parsed;
    parsed.text = readValues(parser, pages, parsed.options);
    parsed.result = parsed.text.isEmpty() ? parsedOptions_t::RUN : parsedOptions_t::REFUSE;
    return parsed;
}

} // namespace melvox_display
