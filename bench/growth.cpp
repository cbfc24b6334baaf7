#include "allForms.h"
#include "allPages.h"
#include "loads.h"

#include "brel_common_qt/melvoxFirmware.h"
#include "display/displayStyle.h"
#include "display/displayWindow.h"
#include "display/uiSettings.h"
#include "display/unit.h"
#include "support/everything.h"
#include "support/pageCreator.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QMainWindow>
#include <QPaintEvent>
#include <QProcess>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

// How costs grow with what there is to do, what pages hold in memory, and how long the display takes to start, as tables.

using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_bench::MEGABYTE;
using melvox_bench::receiver_t;

namespace
{

int const REPETITIONS = 9;
int const STARTS = 21;
int const WATCH_MILLISECONDS = 3000;
double const KIB = 1024;
QSize const SCREEN(800, 480);

#define MELVOX_PAGE(name) {#name, melvox_test::creator<name##_t>()},
melvox_test::page_t const PAGES[] = {MELVOX_ALL_PAGES(MELVOX_PAGE)};
#undef MELVOX_PAGE

typedef std::unique_ptr<QWidget> widgetPtr_t;

double processorSeconds()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

/** The median of what it takes by the clock on the wall: where threads, files or other programs do the work. */
double wallMilliseconds(std::function<void()> const& work)
{
    std::vector<double> times;
    for (int i = 0; i < REPETITIONS; ++i)
    {
        QElapsedTimer timer;
        timer.start();
        work();
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    return median(times);
}

double processorMicroseconds(std::function<void()> const& work)
{
    std::vector<double> times;
    for (int i = 0; i < REPETITIONS; ++i)
    {
        double const start = processorSeconds();
        work();
        times.push_back((processorSeconds() - start) * 1e6);
    }
    return median(times);
}

void head(char const* title, char const* columns)
{
    std::printf("\n**%s**\n\n|%s|\n|", title, columns);
    for (char const* at = columns; *at; ++at)
    {
        if (*at == '|')
            std::printf(" ---: |");
    }
    std::printf(" ---: |\n");
}

double refreshMicroseconds(int rows)
{
    receiver_t receiver;
    melvoxUiCorrectionsReceiver_t page(receiver.device.get());
    QVariantMap const reports[] = {melvox_bench::satelliteStatistics(rows, false),
                                   melvox_bench::satelliteStatistics(rows, true)};
    receiver.link.report("correctionSatStats", reports[0]);
    page.show();
    QCoreApplication::processEvents();
    bool other = false;
    return processorMicroseconds([&]() { receiver.link.report("correctionSatStats", reports[other = !other]); });
}

void showRows()
{
    head("Rows of a table, processor time for each", " rows | refresh of statistics, µs | report of an output, µs ");
    for (int rows : {10, 100, 1000})
    {
        melvox_bench::outputs_t outputs(rows);
        double interval = 1;
        double const reports = processorMicroseconds(
            [&]()
            {
                interval += 1;
                for (int i = 0; i < rows; ++i)
                    outputs.report(1, i, interval);
            });
        std::printf("| %d | %.1f | %.1f |\n", rows, refreshMicroseconds(rows) / rows, reports / rows);
    }
}

std::vector<widgetPtr_t> buildAllPages(receiver_t& receiver)
{
    std::vector<widgetPtr_t> pages;
    for (melvox_test::page_t const& page : PAGES)
    {
        if (page.create)
            pages.emplace_back(page.create(receiver.device.get()));
    }
    return pages;
}

/** The share of one processor that all pages take when the receiver tells all that it can tell so often. */
double reportShare(receiver_t& receiver, int perSecond)
{
    int told = 0;
    QTimer teller;
    teller.setTimerType(Qt::PreciseTimer);
    QObject::connect(&teller, &QTimer::timeout,
                     [&]()
                     {
                         ++told;
                         if (told % 2)
                             melvox_test::reportEverything(&receiver.link);
                         else
                             melvox_test::reportTheLongest(&receiver.link);
                         receiver.link.clear();
                     });
    QEventLoop loop;
    QTimer::singleShot(WATCH_MILLISECONDS, &loop, &QEventLoop::quit);
    double const start = processorSeconds();
    teller.start(1000 / perSecond);
    loop.exec();
    double const used = processorSeconds() - start;
    // A busy machine tells less often than it should, so what one telling takes counts.
    return told ? used / told * perSecond : 0;
}

void showReports()
{
    receiver_t receiver;
    std::vector<widgetPtr_t> const pages = buildAllPages(receiver);
    for (widgetPtr_t const& page : pages)
        page->show();
    melvox_test::reportEverything(&receiver.link);
    melvox_test::reportTheLongest(&receiver.link);
    QCoreApplication::processEvents();
    head("All pages at once, all on screen, when the receiver tells everything it can tell",
         " times a second | share of one processor | for each time, ms ");
    for (int perSecond : {1, 3, 10, 30, 100})
    {
        double const share = reportShare(receiver, perSecond);
        std::printf("| %d | %.1f %% | %.2f |\n", perSecond, share * 100, share / perSecond * 1000);
    }
}

void showFiles()
{
    head("Files on a drive", " files | scan, ms | `QDirIterator` alone, ms | ratio | scan, µs for each ");
    for (int files : {10, 100, 1000, 10000, 100000})
    {
        QString const path = melvox_bench::drive(files);
        melvox_bench::driveScan_t scan(path);
        double const scanned = wallMilliseconds([&]() { scan.run(); });
        double const listed = wallMilliseconds([&]() { melvox_bench::listDrive(path); });
        std::printf("| %d | %.2f | %.2f | %.2f | %.2f |\n", files, scanned, listed, scanned / listed,
                    scanned * 1000 / files);
    }
}

/** The most memory that the program has had since forgetPeak(), KiB. */
long peakKiB()
{
    QFile file("/proc/self/status");
    file.open(QIODevice::ReadOnly);
    for (QByteArray const& line : file.readAll().split('\n'))
    {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toLong();
    }
    return 0;
}

void forgetPeak()
{
    QFile file("/proc/self/clear_refs");
    if (file.open(QIODevice::WriteOnly))
        file.write("5");
}

void showFirmware()
{
    head("Scan of a firmware file", " MB | ms | ms for each MB | memory taken meanwhile, KiB ");
    for (int size : {1, 10, 50, 200})
    {
        QString const path = melvox_bench::firmwareFile(size * MEGABYTE);
        auto const scan = [&]()
        {
            QList<melvoxFirmwareScanRecord_t> records;
            melvoxFirmwareScanFile(path, records, melvox_bench::PRODUCT);
        };
        scan();
        forgetPeak();
        long const before = peakKiB();
        double const time = wallMilliseconds(scan);
        std::printf("| %d | %.1f | %.2f | %ld |\n", size, time, time / size, peakKiB() - before);
        QFile::remove(path);
    }
}

/** Which widget a form is set up on is in its signature. */
template <typename form_t, typename widget_t> struct bareForm_t : widget_t
{
    bareForm_t() { form.setupUi(this); }
    form_t form;
};

template <typename form_t, typename widget_t> widgetPtr_t build(void (form_t::*)(widget_t*))
{
    return std::make_unique<bareForm_t<form_t, widget_t>>();
}

#define MELVOX_FORM(name) {#name, []() { return build(&Ui_##name::setupUi); }},
struct form_t
{
    char const* name;
    widgetPtr_t (*create)();
};
form_t const FORMS[] = {MELVOX_ALL_FORMS(MELVOX_FORM)};
#undef MELVOX_FORM

form_t const* formOf(char const* page)
{
    for (form_t const& form : FORMS)
    {
        if (QLatin1String(form.name) == QLatin1String(page))
            return &form;
    }
    return nullptr;
}

/** Bytes that a widget keeps. The first one makes what is made once. */
qint64 keptBytes(std::function<widgetPtr_t()> const& create)
{
    create();
    qint64 const before = melvox_bench::heldBytes();
    widgetPtr_t const widget = create();
    return melvox_bench::heldBytes() - before;
}

void showMemory()
{
    receiver_t receiver;
    head("Memory of pages and dialogs against their bare forms, before they are shown", " | KiB | form, KiB | ratio ");
    qint64 pages = 0;
    qint64 forms = 0;
    for (melvox_test::page_t const& page : PAGES)
    {
        form_t const* const form = formOf(page.name);
        if (!page.create || !form)
            continue;
        qint64 const whole = keptBytes([&]() { return widgetPtr_t(page.create(receiver.device.get())); });
        qint64 const bare = keptBytes(form->create);
        std::printf("| %s | %.0f | %.0f | %.2f |\n", page.name, whole / KIB, bare / KIB, double(whole) / bare);
        pages += whole;
        forms += bare;
    }
    std::printf("| all | %.0f | %.0f | %.2f |\n", pages / KIB, forms / KIB, double(pages) / forms);
}

/** As every process of this machine counts it. */
double clockMilliseconds()
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

/** Once the window is painted, prints when that was and how long the processor was busy till then, and leaves. */
class leaveWhenPainted_t : public QObject
{
public:
    explicit leaveWhenPainted_t(QObject* parent) : QObject(parent), m_left(false) {}

    bool eventFilter(QObject* object, QEvent* event) override
    {
        if (event->type() == QEvent::Paint && object->isWidgetType() && !m_left)
        {
            m_left = true;
            // Behind what else is painted with it.
            QMetaObject::invokeMethod(this, &leaveWhenPainted_t::leave, Qt::QueuedConnection);
        }
        return QObject::eventFilter(object, event);
    }

private:
    void leave()
    {
        std::printf("%.3f %.3f\n", clockMilliseconds(), processorSeconds() * 1e3);
        QCoreApplication::quit();
    }

    bool m_left;
};

int startEmpty()
{
    QMainWindow window;
    window.resize(SCREEN);
    window.show();
    return QApplication::exec();
}

int startDisplay(QApplication& application)
{
    using namespace melvox_display;
    applyDisplayStyle(application);
    unit_t unit(connection_t{});
    uiSettings_t settings(melvox_bench::place("settings"));
    displayWindow_t window(allPages(), &unit, &settings, SCREEN);
    unit.start();
    window.showFirstPage(QString());
    window.show();
    return QApplication::exec();
}

struct start_t
{
    double wall;
    double processor;
};

start_t measureStart(QString const& which)
{
    std::vector<double> wall, processor;
    for (int i = 0; i < STARTS; ++i)
    {
        QProcess program;
        double const begun = clockMilliseconds();
        program.start(QCoreApplication::applicationFilePath(), {which});
        if (!program.waitForFinished(-1) || program.exitCode() != 0)
            qFatal("%s %s fails", qPrintable(program.program()), qPrintable(which));
        QList<QByteArray> const told = program.readAllStandardOutput().trimmed().split(' ');
        wall.push_back(told.value(0).toDouble() - begun);
        processor.push_back(told.value(1).toDouble());
    }
    return {median(wall), median(processor)};
}

void showStart()
{
    head("From the start of the program to its first painted window", " | by the clock, ms | processor time, ms ");
    start_t const display = measureStart("--display");
    start_t const empty = measureStart("--empty");
    std::printf("| display on a simulated receiver | %.0f | %.0f |\n", display.wall, display.processor);
    std::printf("| empty main window | %.0f | %.0f |\n", empty.wall, empty.processor);
    std::printf("| ratio, at most 2 | %.2f | %.2f |\n", display.wall / empty.wall, display.processor / empty.processor);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    QString const which = QString::fromLocal8Bit(argc > 1 ? argv[1] : "");
    if (which == "--empty" || which == "--display")
    {
        application.installEventFilter(new leaveWhenPainted_t(&application));
        return which == "--empty" ? startEmpty() : startDisplay(application);
    }
    struct
    {
        char const* name;
        void (*show)();
    } const subjects[] = {{"rows", showRows},         {"reports", showReports}, {"files", showFiles},
                          {"firmware", showFirmware}, {"memory", showMemory},   {"start", showStart}};
    for (auto const& subject : subjects)
    {
        if (which.isEmpty() || which == subject.name)
            subject.show();
        std::fflush(stdout);
    }
    return 0;
}
