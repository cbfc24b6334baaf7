#include "supervisor.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>

namespace melvox_robustness
{

namespace
{

int const DEFAULT_STEPS = 10000;
int const LONGEST_SILENCE = 60000; // milliseconds
int const SHOWN = 4000;            // characters of what a crash printed

/** How a run went. */
struct outcome_t
{
    bool good = false;
    QString kind; //!< the name of the broken rule, or "crash"
    QString text;
    int lastStep = 0;
};

QString program()
{
    return QCoreApplication::applicationFilePath();
}

steps_t upTo(steps_t const& steps, int last)
{
    steps_t result;
    for (int step : steps)
    {
        if (step <= last)
            result.push_back(step);
    }
    return result;
}

/** Those since everything was made anew for the last time, which mostly are enough. */
steps_t lastRound(steps_t const& steps, int last, int round)
{
    int const begin = last / round * round - 1;
    steps_t result;
    for (int step : steps)
    {
        if (step >= begin && step <= last)
            result.push_back(step);
    }
    return result;
}

void readOutcome(QString const& output, outcome_t& outcome)
{
    QStringList const lines = output.split('\n');
    for (QString const& line : lines)
    {
        if (line.startsWith("at "))
            outcome.lastStep = line.mid(3).toInt() + PROGRESS;
        else if (line.startsWith("FAULT "))
        {
            outcome.lastStep = line.section(' ', 1, 1).toInt();
            outcome.text = line.section(' ', 2);
            outcome.kind = outcome.text.section(':', 0, 0);
        }
    }
}

/** Ends it when nothing was heard of it for too long: something waits for what never comes. */
bool comesToItsEnd(QProcess& child)
{
    if (!child.waitForStarted())
        qFatal("%s cannot be started", qPrintable(program()));
    qint64 heard = -1;
    while (!child.waitForFinished(LONGEST_SILENCE) && child.state() != QProcess::NotRunning)
    {
        if (child.bytesAvailable() == heard)
        {
            child.kill();
            child.waitForFinished();
            return false;
        }
        heard = child.bytesAvailable();
    }
    return true;
}

/** With these steps in place of the run's own. */
outcome_t runChild(run_t const& run, steps_t const& steps, QTemporaryDir const& folder, QString* told = nullptr)
{
    QFile list(folder.filePath("steps"));
    if (!list.open(QIODevice::WriteOnly))
        qFatal("%s: %s", qPrintable(list.fileName()), qPrintable(list.errorString()));
    list.write(toText(steps).toLatin1());
    list.close();
    QStringList arguments = {"--child",
                             "--seed",
                             QString::number(run.seed),
                             "--round",
                             QString::number(run.round),
                             "--only",
                             '@' + list.fileName()};
    if (!run.fault.isEmpty())
        arguments << "--fault" << run.fault;
    if (told || run.tells)
        arguments << "--tell";
    QProcess child;
    child.start(program(), arguments);
    bool const hangs = !comesToItsEnd(child);
    outcome_t outcome;
    outcome.good = !hangs && child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0;
    QString const output = QString::fromUtf8(child.readAllStandardOutput());
    if (told)
        *told = output;
    else if (run.tells)
        std::fputs(qPrintable(output), stdout);
    if (outcome.good)
        return outcome;
    outcome.kind = hangs ? "hang" : "crash";
    outcome.lastStep = steps.empty() ? 0 : steps.back();
    outcome.text = outcome.kind + ": " + QString::fromUtf8(child.readAllStandardError()).left(SHOWN);
    readOutcome(output, outcome);
    return outcome;
}

void tell(run_t const& run, steps_t const& steps, QTemporaryDir const& folder)
{
    QString told;
    runChild(run, steps, folder, &told);
    std::printf("%s\n%d steps are enough:\n  melvox_monkey --seed %llu --round %d%s --only %s\n", qPrintable(told),
                int(steps.size()), static_cast<unsigned long long>(run.seed), run.round,
                run.fault.isEmpty() ? "" : qPrintable(" --fault " + run.fault), qPrintable(toText(steps)));
}

} // namespace

bool parse(QStringList const& arguments, run_t& run)
{
    QCommandLineParser parser;
    parser.addOptions(
        {{"seed", "What the chances begin with.", "N", "1"},
         {"steps", "How many steps to do.", "N", QString::number(DEFAULT_STEPS)},
         {"only", "These steps, such as 0-499,612; @FILE: they are in a file.", "STEPS"},
         {"round", "After how many steps everything is made anew.", "N", QString::number(run.round)},
         {"fault", "A page with this fault is among the pages.", "NAME"},
         {"shrink", "For how many seconds to look for fewer steps that fail.", "N", QString::number(run.shrinkFor)},
         {"tell", "Print each step."},
         {"child", "Do it in this process."}});
    bool good = parser.parse(arguments) && parser.positionalArguments().isEmpty();
    bool numbers[4];
    run.seed = parser.value("seed").toULongLong(&numbers[0]);
    int const count = parser.value("steps").toInt(&numbers[1]);
    run.round = parser.value("round").toInt(&numbers[2]);
    run.shrinkFor = parser.value("shrink").toInt(&numbers[3]);
    run.fault = parser.value("fault");
    run.tells = parser.isSet("tell");
    run.isChild = parser.isSet("child");
    good = good && numbers[0] && numbers[1] && numbers[2] && numbers[3] && run.round > 0 && count >= 0;
    for (int i = 0; i < count; ++i)
        run.steps.push_back(i);
    QString only = parser.value("only");
    if (only.startsWith('@'))
    {
        QFile file(only.mid(1));
        good = good && file.open(QIODevice::ReadOnly);
        only = QString::fromLatin1(file.readAll());
    }
    if (parser.isSet("only"))
        good = good && fromText(only, run.steps);
    if (!good)
        std::fprintf(stderr, "%s\n%s", qPrintable(parser.errorText()), qPrintable(parser.helpText()));
    return good;
}

QString toText(steps_t const& steps)
{
    QStringList parts;
    for (std::size_t i = 0; i < steps.size();)
    {
        std::size_t last = i;
        while (last + 1 < steps.size() && steps[last + 1] == steps[last] + 1)
            ++last;
        parts << (last == i ? QString::number(steps[i]) : QString("%1-%2").arg(steps[i]).arg(steps[last]));
        i = last + 1;
    }
    return parts.join(",");
}

bool fromText(QString const& text, steps_t& steps)
{
    steps.clear();
    if (text.isEmpty())
        return true;
    QStringList const parts = text.split(',');
    for (QString const& part : parts)
    {
        bool firstGood, lastGood;
        int const first = part.section('-', 0, 0).toInt(&firstGood);
        int const last = part.section('-', -1).toInt(&lastGood);
        if (!firstGood || !lastGood || first < 0 || last < first)
            return false;
        for (int step = first; step <= last; ++step)
            steps.push_back(step);
    }
    return true;
}

int supervise(run_t const& run)
{
    QTemporaryDir const folder;
    QElapsedTimer clock;
    clock.start();
    outcome_t const first = runChild(run, run.steps, folder);
    double const seconds = clock.elapsed() / 1000.0;
    std::printf("seed %llu: %d steps, %.1f s, %.0f steps a second\n", static_cast<unsigned long long>(run.seed),
                int(run.steps.size()), seconds, run.steps.size() / seconds);
    if (first.good)
        return 0;
    std::printf("seed %llu fails at step %d\n%s\n", static_cast<unsigned long long>(run.seed), first.lastStep,
                qPrintable(first.text));
    std::fflush(stdout);
    clock.restart();
    auto const fails = [&](steps_t const& steps) { return runChild(run, steps, folder).kind == first.kind; };
    steps_t const late = lastRound(run.steps, first.lastStep, run.round);
    steps_t const fewer = shrunk(fails(late) ? late : upTo(run.steps, first.lastStep), fails,
                                 [&] { return clock.elapsed() > run.shrinkFor * 1000LL; });
    tell(run, fewer, folder);
    return 1;
}

} // namespace melvox_robustness
