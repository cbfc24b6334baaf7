#include "link/journalCheck.h"

#include "link/jsonLine.h"
#include "link/secrets.h"

#include <QSet>

namespace melvox_link
{

namespace
{

QString const FILE_NAME = "(file)";

struct sent_t
{
    int line;
    QByteArray text;
    message_t message;
};

/** Names of files are made from the time of day and from where the display's drives are. */
message_t withoutFileNames(message_t message)
{
    if (message.group == "dumpProfile")
        message.value = FILE_NAME;
    if (message.value.userType() != QMetaType::QVariantMap)
        return message;
    QVariantMap map = message.value.toMap();
    for (char const* field : {"path", "combinedPath"})
    {
        if (!map.value(field).toString().isEmpty())
            map[field] = FILE_NAME;
    }
    message.value = map;
    return message;
}

sent_t comparable(message_t const& message, int line)
{
    message_t const kept = withoutSecrets(withoutFileNames(message));
    return {line, toLine(kept), kept};
}

QList<sent_t> sentOf(journal_t const& journal, message_t::kind_t kind)
{
    QList<sent_t> found;
    for (journalEntry_t const& entry : journal.entries)
    {
        if (entry.kind == journalEntry_t::SENT && entry.message().kind == kind)
            found << comparable(entry.message(), entry.line);
    }
    return found;
}

QList<sent_t> sentOf(QList<message_t> const& messages, message_t::kind_t kind)
{
    QList<sent_t> found;
    for (message_t const& message : messages)
    {
        if (message.kind == kind)
            found << comparable(message, 0);
    }
    return found;
}

/** The first one: what follows it follows from it. */
QStringList commandDifference(journal_t const& journal, QList<sent_t> const& then, QList<sent_t> const& now)
{
    int common = 0;
    while (common < then.size() && common < now.size() && then.at(common).text == now.at(common).text)
        ++common;
    if (common < then.size())
    {
        QString const expected =
            journal.place(then.at(common).line) + "the command \"" + toText(then.at(common).message) + "\" was ";
        return {common < now.size() ? expected + "\"" + toText(now.at(common).message) + "\" this time"
                                    : expected + "not sent"};
    }
    if (common == now.size() || !journal.isWhole)
        return {};
    int const after = then.isEmpty() ? 1 : then.last().line;
    return {journal.place(after) + "after this line the command \"" + toText(now.at(common).message) +
            "\" was sent, which the journal does not have"};
}

QStringList requestDifferences(journal_t const& journal, QList<sent_t> const& then, QList<sent_t> const& now)
{
    QSet<QString> asked;
    for (sent_t const& request : now)
        asked.insert(request.message.group);
    QStringList found;
    QSet<QString> known;
    for (sent_t const& request : then)
    {
        QString const group = request.message.group;
        if (!known.contains(group) && !asked.contains(group))
            found << journal.place(request.line) + "nobody asked for " + group;
        known.insert(group);
    }
    QStringList more = (asked - known).values();
    more.sort();
    if (!more.isEmpty() && journal.isWhole)
        found << journal.place(1) + "the pages asked for what the journal does not have: " + more.join(", ");
    return found;
}

} // namespace

QStringList differences(journal_t const& journal, QList<message_t> const& sent)
{
    return commandDifference(journal, sentOf(journal, message_t::COMMAND), sentOf(sent, message_t::COMMAND)) +
           requestDifferences(journal, sentOf(journal, message_t::REQUEST), sentOf(sent, message_t::REQUEST));
}

} // namespace melvox_link
