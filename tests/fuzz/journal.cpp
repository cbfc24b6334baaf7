#include "fuzz.h"

#include "link/journal.h"

#include <QFile>
#include <QTemporaryDir>

using melvox_fuzz::hold;
using melvox_link::journalEntry_t;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    static QTemporaryDir const folder;
    static QString const path = folder.filePath("journal.jsonl");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(reinterpret_cast<char const*>(data), qint64(size)) != qint64(size))
        std::abort();
    file.close();
    melvox_link::journal_t journal;
    QString fault;
    if (!melvox_link::readJournal(path, journal, fault))
    {
        hold(!fault.isEmpty(), "whatever is refused is refused for a reason");
        return 0;
    }
    for (journalEntry_t const& entry : journal.entries)
    {
        if (entry.kind == journalEntry_t::SENT || entry.kind == journalEntry_t::RECEIVED)
            melvox_link::toText(entry.message());
        else if (entry.kind == journalEntry_t::ACTION)
            entry.action();
        hold(entry.line > 0, "each entry has its line");
    }
    return 0;
}
