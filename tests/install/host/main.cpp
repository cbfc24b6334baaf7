/** A host as somebody else writes it, on an installation alone: it makes everything that the library shows. */
#include "pageCreator.h"
#include "platform.h"

#include <allPages.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLabel>
#include <QTextEdit>

#include <cstdio>

using namespace brel_common_qt_gui;

namespace
{

int const PATIENCE = 5000; //!< milliseconds

int makePages(brel_common_qt::remoteMelvoxDevice_t* device)
{
#define MELVOX_PAGE(name) {#name, melvox_test::creator<name##_t>()},
    static melvox_test::page_t const PAGES[] = {MELVOX_ALL_PAGES(MELVOX_PAGE)};
#undef MELVOX_PAGE
    int made = 0;
    for (melvox_test::page_t const& page : PAGES)
    {
        if (!page.create)
            continue;
        QWidget* const widget = page.create(device);
        widget->show();
        QApplication::processEvents();
        delete widget;
        ++made;
    }
    return made;
}

void makeHelpers(brel_common_qt::remoteMelvoxDevice_t* device)
{
    QTextEdit box;
    melvoxUiFirmwareSelector_t selector(static_cast<QObject*>(0));
    melvoxUiFirmwarePackage_t package(QFileInfo("none"));
    melvoxUiProfileDumper_t dumper(device, 0);
    melvoxUiProfileLoader_t loader(device, 0);
    melvoxUiFirmwareVersionDisplay_t versions(device, &box, 0);
    QApplication::processEvents();
}

/** Does what the receiver tells arrive on the page? */
bool showsWhatTheReceiverTells(brel_common_qt::remoteMelvoxDevice_t* device)
{
    melvoxUiSolutionControl_t page(device);
    QLabel const* const label = page.findChild<QLabel*>("elevationMaskLabel");
    host::tellElevationMask(device, 12.5);
    QElapsedTimer timer;
    timer.start();
    while (label && label->text() != "12.5" && timer.elapsed() < PATIENCE)
        QApplication::processEvents();
    return label && label->text() == "12.5";
}

} // namespace

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    brel_common_qt::remoteMelvoxDevice_t device(host::createPort());
    int const pages = makePages(&device);
    makeHelpers(&device);
    if (!showsWhatTheReceiverTells(&device))
    {
        std::fprintf(stderr, "the page does not show what the receiver tells\n");
        return 1;
    }
    std::printf("%d pages\n", pages);
    return 0;
}
