#include "proxycheck/program.h"

#include "proxycheck/adapter.h"
#include "proxycheck/proxyCheck.h"

#include <QTextStream>

#include <cstdio>

namespace melvox_proxycheck
{

namespace
{

int const CLEAN = 0;
int const FINDINGS = 1;
int const WRONG_ARGUMENTS = 2;

int const USUAL_WAIT = 1000; // milliseconds
int const LONGEST_WAIT = 600000;

char const* const HELP =
    "melvox_proxy_check [--group NAME]... [--wait MS]\n"
    "Checks whether the receiver proxy that it is linked with keeps the contract of remoteMelvoxDevice_t.\n"
    "\n"
    "  --group NAME  check this group alone; may be given more than once\n"
    "  --list        print the names of all groups\n"
    "  --wait MS     how long an expected signal or message may take (1000)\n"
    "  --help        print this\n"
    "\n"
    "Prints one line for each finding: the group, where it was looked, what was expected, what was seen. A group's\n"
    "check ends with its first finding. Ends with 0 when nothing is wrong, 1 with findings, 2 when the arguments are\n"
    "wrong.\n";

struct arguments_t
{
    arguments_t() : wait(USUAL_WAIT), help(false), list(false) {}

    QStringList groups; //!< empty: all
    int wait;
    bool help;
    bool list;
    QString error;
};

QString takeGroup(QString const& name, QStringList& groups)
{
    if (!groupNames().contains(name))
        return QString("there is no group \"%1\"; the groups are: %2").arg(name, groupNames().join(", "));
    groups << name;
    return QString();
}

QString takeWait(QString const& text, int& wait)
{
    bool good = false;
    wait = text.toInt(&good);
    if (good && wait > 0 && wait <= LONGEST_WAIT)
        return QString();
    return QString("--wait takes a whole number of milliseconds from 1 to %1, not \"%2\"").arg(LONGEST_WAIT).arg(text);
}

arguments_t parse(QStringList const& words)
{
    arguments_t arguments;
    for (int i = 0; i < words.size() && arguments.error.isEmpty(); ++i)
    {
        QString const& word = words.at(i);
        bool const takesValue = word == "--group" || word == "--wait";
        if (takesValue && i + 1 == words.size())
            arguments.error = word + " needs a value";
        else if (word == "--group")
            arguments.error = takeGroup(words.at(++i), arguments.groups);
        else if (word == "--wait")
            arguments.error = takeWait(words.at(++i), arguments.wait);
        else if (word == "--list")
            arguments.list = true;
        else if (word == "--help")
            arguments.help = true;
        else
            arguments.error = QString("unknown: %1; known are --group, --list, --wait and --help").arg(word);
    }
    return arguments;
}

int check(arguments_t const& arguments, adapter_t& adapter, QTextStream& out)
{
    int checked = 0;
    int found = 0;
    QStringList left;
    for (QString const& group : arguments.groups.isEmpty() ? groupNames() : arguments.groups)
    {
        if (!adapter.supports(group))
        {
            left << group;
            continue;
        }
        QList<finding_t> const findings = checkGroup(group, adapter, arguments.wait);
        for (finding_t const& finding : findings)
            out << toText(finding) << '\n';
        // What comes after may take long, or never return.
        out.flush();
        ++checked;
        found += int(findings.size());
    }
    out << checked << (checked == 1 ? " group checked, " : " groups checked, ") << found
        << (found == 1 ? " finding\n" : " findings\n");
    if (!left.isEmpty())
        out << "not checked, because the adapter does not support them: " << left.join(", ") << '\n';
    return found == 0 ? CLEAN : FINDINGS;
}

} // namespace

int run(QStringList const& words, adapter_t& adapter)
{
    QTextStream out(stdout);
    arguments_t const arguments = parse(words);
    if (!arguments.error.isEmpty())
    {
        QTextStream(stderr) << "melvox_proxy_check: " << arguments.error << '\n';
        return WRONG_ARGUMENTS;
    }
    if (arguments.help)
        out << HELP;
    else if (arguments.list)
        out << groupNames().join("\n") << '\n';
    else
        return check(arguments, adapter, out);
    return CLEAN;
}

} // namespace melvox_proxycheck
