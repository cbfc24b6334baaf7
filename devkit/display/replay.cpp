#include "display/replay.h"

#include "display/displayWindow.h"
#include "display/options.h"
#include "display/unit.h"
#include "link/journalCheck.h"
#include "link/replayLink.h"

#include <QFile>

namespace melvox_display
{

namespace
{

using melvox_link::journalEntry_t;

} // namespace

replay_t::replay_t(QObject* parent)
    : QObject(parent), m_journal(std::make_shared<melvox_link::journal_t>()), m_unit(nullptr), m_withActions(false),
      m_isOver(false)
{
}

replay_t::~replay_t() = default;

bool replay_t::load(options_t& options, pageRegistry_t const& pages, QString& fault)
{
    QStringList const names = pageNames(pages);
    if (!melvox_link::readJournal(options.replayFile, *m_journal, fault) || !readActions(names, fault))
        return false;
    QString reason;
    if (!readHeader(options, names, reason) || !writeSettings(options, reason))
    {
        fault = m_journal->place(1) + reason;
        return false;
    }
    options.connection.kind = connection_t::REPLAY;
    options.connection.journal = m_journal;
    m_withActions = options.replayActions;
    return true;
}

bool replay_t::readActions(QStringList const& pages, QString& fault)
{
    for (std::size_t i = 0; i < m_journal->entries.size(); ++i)
    {
        journalEntry_t const& entry = m_journal->entries[i];
        if (entry.kind != journalEntry_t::ACTION)
            continue;
        QString reason;
        action_t action;
        if (fromMap(entry.action(), action, reason) && !pages.contains(action.page))
            reason = QString("there is no page \"%1\"; the pages are: %2").arg(action.page, pages.join(", "));
        if (!reason.isEmpty())
        {
            fault = m_journal->place(entry.line) + reason;
            return false;
        }
        m_actions.insert(int(i), action);
    }
    return true;
}

/** The header says them as the command line does. */
bool replay_t::readHeader(options_t& options, QStringList const& pages, QString& reason)
{
    QStringList arguments = {"melvox_display"};
    for (char const* name : {"size", "units", "format"})
        arguments << QString("--%1=%2").arg(name, m_journal->header.value(name).toString());
    parsedOptions_t const parsed = parseOptions(arguments, pages);
    reason = parsed.text;
    if (parsed.result != parsedOptions_t::RUN)
        return false;
    options.size = parsed.options.size;
    options.units = parsed.options.units;
    options.format = parsed.options.format;
    options.hasDrives = options.hasDrives || m_journal->header.value("usb").toBool();
    options.page = m_actions.isEmpty() ? QString() : m_actions.first().page;
    return true;
}

/** Those of whoever replays are neither used nor changed. */
bool replay_t::writeSettings(options_t& options, QString& reason)
{
    m_folder = std::make_unique<QTemporaryDir>();
    options.settingsFile = m_folder->filePath("display.conf");
    QByteArray const settings = m_journal->header.value("settings").toString().toUtf8();
    QFile file(options.settingsFile);
    if (!file.open(QIODevice::WriteOnly) || file.write(settings) != settings.size())
        reason = QString("the settings cannot be put into %1: %2").arg(options.settingsFile, file.errorString());
    return reason.isEmpty();
}

void replay_t::play(displayWindow_t& window, unit_t& unit)
{
    m_unit = &unit;
    m_player = std::make_unique<actionPlayer_t>(&window);
    if (m_withActions)
        connect(unit.replay(), &melvox_link::replayLink_t::reached, this, &replay_t::act);
    connect(unit.replay(), &melvox_link::replayLink_t::ended, this, &replay_t::finish);
}

void replay_t::act(int index)
{
    // What follows one that could not be done would only fail for its sake.
    if (!m_differences.isEmpty())
        return;
    QString reason;
    if (!m_player->perform(m_actions.value(index), reason))
        m_differences << m_journal->place(m_journal->entries[std::size_t(index)].line) + reason;
}

void replay_t::finish()
{
    if (m_withActions && m_differences.isEmpty())
        m_differences = melvox_link::differences(*m_journal, m_unit->replay()->sent());
    m_isOver = true;
    emit ended();
}

} // namespace melvox_display
