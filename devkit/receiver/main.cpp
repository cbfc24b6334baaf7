#include "firmware/programOptions.h"
#include "link/ptyPort.h"
#include "link/serialLink.h"
#include "link/tcpServer.h"
#include "receiver/displays.h"
#include "receiver/outputPlace.h"
#include "receiver/receiver.h"
#include "receiver/stopSignals.h"
#include "scenarios/scenarioReader.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QTextStream>

#include <memory>
#include <vector>

using namespace melvox_link;
using namespace melvox_receiver;

namespace
{

int const EXIT_WRONG_USE = 2;
unsigned int const FIRST_SERIAL_PORT = 0;
unsigned int const NUM_SERIAL_PORTS = 4;

QString tr(char const* text)
{
    return QCoreApplication::translate("melvox_receiver", text);
}

int fail(int code, QString const& text)
{
    QTextStream(stderr) << "melvox_receiver: " << text << '\n';
    return code;
}

/** One line for each place, which programs may read: "listening on tcp:127.0.0.1:5000". */
void tellPlace(QString const& place)
{
    QTextStream(stdout) << "listening on " << place << '\n';
}

/** The receiver with all its ways in. */
class program_t
{
public:
    program_t()
        : m_receiver(&m_clock), m_displays(m_receiver), m_player(m_displays, m_clock), m_serialPorts(0),
          m_tcpDisplays(0)
    {
    }

    /** From now on the receiver tells its solution and its heading by itself. */
    void report();

    /** Before any display comes. */
    void play(melvox_scenarios::scenario_t const& scenario, std::optional<double> speed);
    void setSpeed(double speed) { m_clock.setSpeed(speed); }

    bool listenTcp(QString const& text, QString& error);
    bool openPty(QString& error);
    bool openSerial(QString const& device, QString& error);
    bool openOutput(QString const& text, QString& error);
    bool keepProfiles(QString const& folder, QString& error);

private:
    unsigned int nextSerialPort() { return FIRST_SERIAL_PORT + m_serialPorts++ % NUM_SERIAL_PORTS; }

    // The receiver goes first, before the links that it is told of.
    simClock_t m_clock;
    std::vector<std::unique_ptr<QObject>> m_places;
    receiver_t m_receiver;
    displays_t m_displays;
    melvox_scenarios::scenarioPlayer_t m_player;
    std::vector<std::unique_ptr<outputPlace_t>> m_outputs;
    unsigned int m_serialPorts;
    unsigned int m_tcpDisplays;
};

void program_t::report()
{
    m_receiver.startReports();
}

void program_t::play(melvox_scenarios::scenario_t const& scenario, std::optional<double> speed)
{
    m_player.start(scenario, speed);
    QStringList const left = leftToDisplays(scenario);
    if (!left.isEmpty())
        QTextStream(stdout) << "playing " << scenario.name << " without what is the display's: " << left.join(", ")
                            << '\n';
}

bool program_t::listenTcp(QString const& text, QString& error)
{
    int const colon = int(text.lastIndexOf(':'));
    QHostAddress address(QHostAddress::LocalHost);
    bool isNumber = false;
    quint16 const port = text.mid(colon + 1).toUShort(&isNumber);
    if (!isNumber || (colon >= 0 && !address.setAddress(text.left(colon))))
    {
        error = tr("\"%1\" is no TCP port: give a number from 0 to 65535, with an address and a colon before it if "
                   "displays come from other machines.")
                    .arg(text);
        return false;
    }
    auto server = std::make_unique<tcpServer_t>();
    if (!server->listen(address, port))
    {
        error = tr("cannot listen on TCP port %1 (%2): choose another one, or 0 for any that is free.")
                    .arg(text, server->errorText());
        return false;
    }
    QObject::connect(server.get(), &tcpServer_t::accepted, &m_receiver,
                     [this](link_t* link)
                     {
                         unsigned int const count = NUM_PORTS - FIRST_VIRTUAL_PORT;
                         m_displays.add(link, FIRST_VIRTUAL_PORT + m_tcpDisplays++ % count);
                     });
    tellPlace(server->description());
    m_places.push_back(std::move(server));
    return true;
}

bool program_t::openPty(QString& error)
{
    auto port = std::make_unique<ptyPort_t>();
    if (!port->create())
    {
        error =
            tr("the system gives no pseudo-terminal (%1): close some programs and try again.").arg(port->errorText());
        return false;
    }
    m_displays.add(port.get(), nextSerialPort());
    tellPlace(port->description());
    m_places.push_back(std::move(port));
    return true;
}

bool program_t::openSerial(QString const& device, QString& error)
{
    auto link = std::make_unique<serialLink_t>(device);
    link->start();
    if (!link->isOpen())
    {
        error = tr("cannot open the serial device %1 (%2): check its name and that no other program has it open.")
                    .arg(device, link->errorText());
        return false;
    }
    m_displays.add(link.get(), nextSerialPort());
    tellPlace(link->description());
    m_places.push_back(std::move(link));
    return true;
}

bool program_t::openOutput(QString const& text, QString& error)
{
    std::unique_ptr<outputPlace_t> place = makeOutputPlace(m_receiver, text, error);
    if (!place)
        return false;
    QTextStream(stdout) << "putting out " << text.section('=', 0, 0) << " on " << place->description() << '\n';
    m_receiver.setSituation("outputs", true);
    m_outputs.push_back(std::move(place));
    return true;
}

bool program_t::keepProfiles(QString const& folder, QString& error)
{
    if (!folder.isEmpty() && m_receiver.setSituation("profileFolder", folder))
        return true;
    error = tr("cannot keep profiles in the folder \"%1\": give one that this program may make, read and write.")
                .arg(folder);
    return false;
}

bool openPlaces(program_t& program, QCommandLineParser const& parser, QString& error)
{
    for (QString const& text : parser.values("tcp"))
    {
        if (!program.listenTcp(text, error))
            return false;
    }
    for (QString const& name : parser.optionNames())
    {
        if (name == "pty" && !program.openPty(error))
            return false;
    }
    for (QString const& device : parser.values("serial"))
    {
        if (!program.openSerial(device, error))
            return false;
    }
    for (QString const& text : parser.values("output"))
    {
        if (!program.openOutput(text, error))
            return false;
    }
    return true;
}

/** What the options say of situation and time. */
struct play_t
{
    std::optional<melvox_scenarios::scenario_t> scenario;
    std::optional<double> speed;
};

bool readPlay(QCommandLineParser const& parser, play_t& play, QString& error)
{
    if (parser.isSet("speed"))
    {
        bool isNumber = false;
        play.speed = parser.value("speed").toDouble(&isNumber);
        if (!isNumber || *play.speed <= 0.0 || *play.speed > melvox_scenarios::FASTEST_SPEED)
        {
            error = tr("--speed takes a number above 0, at most %1, not \"%2\".")
                        .arg(melvox_scenarios::FASTEST_SPEED)
                        .arg(parser.value("speed"));
            return false;
        }
    }
    if (!parser.isSet("scenario"))
        return true;
    play.scenario.emplace();
    return melvox_scenarios::loadScenario(parser.value("scenario"), *play.scenario, error);
}

QList<QCommandLineOption> knownOptions()
{
    // Help is not the parser's own, which promises more of Qt's options than there are.
    return {
        {{"h", "help"}, tr("Lists the options.")},
        {{"v", "version"}, tr("Prints the version.")},
        {"tcp", tr("Listen on a TCP port of this machine, 0: any that is free."), "[address:]port"},
        {"pty", tr("Make a pseudo-terminal, a serial line without wires.")},
        {"serial", tr("Use a serial device."), "device"},
        {"output",
         tr("Let other programs read what the receiver puts out on a port, COM1 to ETH8, over TCP or a "
            "pseudo-terminal."),
         "port=tcp:[address:]port|port=pty"},
        {"profiles", tr("Keep the profiles in this folder; without it they are forgotten in the end."), "folder"},
        {"scenario", tr("Start in this situation, one of the kit's or one from a file."), "name|file"},
        {"speed", tr("Let the time run so many times as fast."), "number"},
        {"quiet", tr("Tell nothing unless asked, and put nothing out unless there is an --output.")},
    };
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName("melvox_receiver");
    QCoreApplication::setApplicationVersion(MELVOX_VERSION);

    QCommandLineParser parser;
    parser.setApplicationDescription(tr("A simulated Melvox receiver. Displays reach it at the places that the options "
                                        "name; each may be given several times."));
    parser.addOptions(knownOptions());
    if (!parser.parse(QCoreApplication::arguments()))
        return fail(EXIT_WRONG_USE, melvox_firmware::misunderstood(parser.errorText(), knownOptions()));
    if (parser.isSet("version"))
        parser.showVersion();
    if (parser.isSet("help"))
        parser.showHelp();
    if (!parser.positionalArguments().isEmpty())
        return fail(EXIT_WRONG_USE,
                    melvox_firmware::misunderstood(
                        tr("\"%1\" is no option").arg(parser.positionalArguments().constFirst()), knownOptions()));
    if (!parser.isSet("tcp") && !parser.isSet("pty") && !parser.isSet("serial"))
        return fail(EXIT_WRONG_USE, tr("say where displays reach the receiver, with --tcp PORT, --pty or --serial "
                                       "DEVICE."));

    QString error;
    play_t play;
    if (!readPlay(parser, play, error))
        return fail(EXIT_WRONG_USE, error);
    stopSignals_t stopSignals;
    QObject::connect(&stopSignals, &stopSignals_t::stop, &application, &QCoreApplication::quit);
    program_t program;
    if (!parser.isSet("quiet"))
        program.report();
    if (parser.isSet("profiles") && !program.keepProfiles(parser.value("profiles"), error))
        return fail(EXIT_FAILURE, error);
    if (play.scenario)
        program.play(*play.scenario, play.speed);
    else if (play.speed)
        program.setSpeed(*play.speed);
    if (!openPlaces(program, parser, error))
        return fail(EXIT_FAILURE, error);
    return application.exec();
}
