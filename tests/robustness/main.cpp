#include "faultyPage.h"
#include "supervisor.h"
#include "world.h"

#include "display/pageRegistry.h"

#include <QApplication>

#include <cstdio>

using namespace melvox_robustness;

namespace
{

world_t* theWorld = nullptr;

/** What the offscreen plug-in always says, and what page and port tell the host on purpose. */
bool isExpected(QString const& text)
{
    return text.contains("propagateSizeHints") || text.contains("the display's own link is no serial line") ||
           text.contains("0 is no rate");
}

/** Any other warning is a fault of the step that caused it. */
void handle(QtMsgType type, QMessageLogContext const&, QString const& text)
{
    if (type == QtDebugMsg || type == QtInfoMsg || isExpected(text))
        return;
    if (theWorld)
        theWorld->setFault("warning: " + text);
    else
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

QWidget* createFaultyPage(brel_common_qt::remoteMelvoxDevice_t* device)
{
    return new faultyPage_t(device);
}

/** All pages of the display; with a fault to find, the faulty one and a few. */
melvox_display::pageRegistry_t pagesFor(QString const& fault)
{
    melvox_display::pageRegistry_t const& all = melvox_display::allPages();
    if (fault.isEmpty())
        return all;
    faultyPage_t::setFault(fault);
    return {{"faulty", "Faulty", melvox_display::subsystem_t::DISPLAY, createFaultyPage}, all.at(0), all.at(3)};
}

int run(run_t const& what)
{
    melvox_display::pageRegistry_t const pages = pagesFor(what.fault);
    world_t world(pages, what.seed, what.round);
    theWorld = &world;
    for (int step : what.steps)
    {
        if (step % PROGRESS == 0)
        {
            std::printf("at %d\n", step);
            std::fflush(stdout);
        }
        QString const done = world.step(step);
        if (what.tells)
            std::printf("%d: %s\n", step, qPrintable(done));
        if (!world.fault().isEmpty())
        {
            std::printf("FAULT %d %s\n", step, qPrintable(world.fault()));
            std::fflush(stdout);
            return 1;
        }
    }
    theWorld = nullptr;
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    run_t what;
    if (!parse(arguments, what))
        return 2;
    if (!what.isChild)
    {
        QCoreApplication const application(argc, argv);
        return supervise(what);
    }
    QApplication const application(argc, argv);
    qInstallMessageHandler(handle);
    return run(what);
}
