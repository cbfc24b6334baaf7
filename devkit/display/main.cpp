#include "display/displayStyle.h"
#include "display/displayWindow.h"
#include "display/driveRack.h"
#include "display/options.h"
#include "display/pageRegistry.h"
#include "display/recording.h"
#include "display/replay.h"
#include "display/simulation.h"
#include "display/tour.h"
#include "display/uiSettings.h"
#include "display/unit.h"

#include <QApplication>

#include <cstdio>

namespace
{

using namespace melvox_display;

int const EXIT_REFUSED = 2;

int refuse(QString const& text)
{
    std::fprintf(stderr, "melvox_display: %s\n", qPrintable(text));
    return EXIT_REFUSED;
}

int answer(parsedOptions_t const& parsed)
{
    if (parsed.result == parsedOptions_t::REFUSE)
        return refuse(parsed.text);
    std::printf("%s\n", qPrintable(parsed.text));
    return 0;
}

/** False when it cannot even begin, and nothing is to be started. */
bool isReady(options_t& options, recording_t& recording, replay_t& replay)
{
    QString fault;
    if (!options.replayFile.isEmpty() && !replay.load(options, allPages(), fault))
    {
        std::fprintf(stderr, "melvox_display: %s\n", qPrintable(fault));
        return false;
    }
    if (!options.replayFile.isEmpty() && !replay.note().isEmpty())
        std::fprintf(stderr, "melvox_display: %s\n", qPrintable(replay.note()));
    if (options.recordFile.isEmpty() || recording.open(options.recordFile, fault))
        return true;
    std::fprintf(stderr, "melvox_display: --record: %s.\n", qPrintable(fault));
    return false;
}

void tellHowItWent(replay_t const& replay)
{
    for (QString const& difference : replay.differences())
        std::fprintf(stderr, "melvox_display: %s\n", qPrintable(difference));
    std::printf("The journal is over. Differences: %d\n", int(replay.differences().size()));
    std::fflush(stdout);
}

int run(options_t const& options, recording_t& recording, replay_t& replay)
{
    // Before any page, and pictures of the drives' dialogs need drives, or the lack of them.
    driveRack_t drives(options.usbDir);
    if (options.realDrives)
        drives.openReal();
    else if (!options.tourDir.isEmpty() || options.hasDrives)
        drives.open();
    unit_t unit(options.connection);
    if (!options.profileFolder.isEmpty() && !unit.keepProfiles(options.profileFolder))
        return refuse(QCoreApplication::translate("options",
                                                  "--profiles takes a folder that this program may make, read "
                                                  "and write, not \"%1\".")
                          .arg(options.profileFolder));
    simulation_t simulation(unit, drives, options.speed);
    if (options.scenario)
        simulation.start(*options.scenario);
    uiSettings_t settings(options.settingsFile);
    settings.applyPreferences(options);
    if (!options.recordFile.isEmpty())
        recording.begin(options, unit, settings);
    displayWindow_t window(allPages(), &unit, &settings, options.size, &simulation);
    if (unit.replay())
    {
        replay.play(window, unit);
        QObject::connect(&replay, &replay_t::ended, [&replay]() { tellHowItWent(replay); });
    }
    unit.start();
    window.showFirstPage(options.page);
    if (!options.recordFile.isEmpty())
        recording.watch(window, options.page);
    window.show();
    int const result = options.tourDir.isEmpty() ? QApplication::exec() : walkTour(window, unit, options.tourDir);
    recording.end();
    return result;
}

/** What the toolkit takes for itself. */
QStringList withoutToolkitOptions(QStringList arguments)
{
    QStringList const taken = {"platform", "platformpluginpath", "platformtheme", "plugin",
                               "style",    "stylesheet",         "display",       "geometry",
                               "session",  "qwindowgeometry"};
    for (int i = 1; i < arguments.size();)
    {
        QString name = arguments.at(i);
        while (name.startsWith('-'))
            name.remove(0, 1);
        bool const isTaken = arguments.at(i).startsWith('-') && taken.contains(name.section('=', 0, 0));
        if (isTaken && !name.contains('=') && i + 1 < arguments.size())
            arguments.removeAt(i + 1);
        if (isTaken)
            arguments.removeAt(i);
        else
            ++i;
    }
    return arguments;
}

/** Pictures need no screen. */
void goWithoutScreen()
{
    bool const chosen = qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    bool const hasScreen = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
#ifdef Q_OS_LINUX
    if (!chosen && !hasScreen)
        qputenv("QT_QPA_PLATFORM", "offscreen");
#else
    Q_UNUSED(chosen);
    Q_UNUSED(hasScreen);
#endif
}

} // namespace

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    // Help and refusals must come out where there is no screen to start an application on.
    parsedOptions_t parsed = parseOptions(withoutToolkitOptions(arguments), pageNames(allPages()));
    if (parsed.result != parsedOptions_t::RUN)
        return answer(parsed);
    recording_t recording;
    replay_t replay;
    if (!isReady(parsed.options, recording, replay))
        return EXIT_REFUSED;
    if (!parsed.options.tourDir.isEmpty())
        goWithoutScreen();

    QCoreApplication::setApplicationName("melvox_display");
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    applyDisplayStyle(application);
    return run(parsed.options, recording, replay);
}
