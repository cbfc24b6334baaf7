#include "receiver/firmware.h"

namespace melvox_receiver
{

namespace
{

enum status_t
{
    NOT_STARTED = 0,
    IN_PROGRESS = 1,
    SUCCESS = 2,
    FAILURE = 3
};

int const UPDATE_ERROR = 0;
int const UPDATE_IN_PROGRESS = 1;
int const UPDATE_COMPLETE = 2;

double const LARGEST_FILE = 256.0 * 1024 * 1024; // bytes

/** By the numbers of the components. */
char const* const NAMES[] = {"BOOT1",     "BOOT2",     "NAV",     "MTEST",   "PIOBOOT1", "PIOBOOT2",
                             "PIOAPP",    "BLUETOOTH", "STM8",    "MFGPIOB", "MFGGNSS",  "OCEANTIDE",
                             "GEOIDGRID", "GPB",       "GEOID99", "GGM02",   "ALL"};

int const NUM_COMPONENTS = int(sizeof NAMES / sizeof *NAMES);

struct installed_t
{
    char const* component;
    char const* version;
};

installed_t const INSTALLED[] = {{"BOOT1", "2.0.4"},    {"BOOT2", "2.1.0"},    {"NAV", "1.14.40"},
                                 {"PIOBOOT1", "1.0.3"}, {"PIOBOOT2", "1.0.5"}, {"PIOAPP", "1.8.12"},
                                 {"BLUETOOTH", "4.2"},  {"STM8", "0.9.1"},     {"GEOIDGRID", "1.0.0"}};

/** A display that cannot read a file gives -1 for its size. */
rule_t updateRule()
{
    rule_t const component = record({{"fileIndex", whole(0, 4294967295.0)},
                                     {"component", whole(0, NUM_COMPONENTS - 1)},
                                     {"path", text(4096)},
                                     {"size", optional(whole(-1, LARGEST_FILE), 0)}});
    return record({{"components", listOf(component)},
                   {"combinedPath", text(4096)},
                   {"combinedSize", optional(whole(-1, LARGEST_FILE), 0)}});
}

} // namespace

firmware_t::firmware_t(receiver_t& owner)
    : behaviour_t(owner), m_fetch(owner), m_from(nullptr), m_combined(false), m_current(0), m_done(0), m_total(0)
{
}

behaviour_t::answer_t firmware_t::request(link_t* from, QString const& group)
{
    if (group != "firmwareVersions")
        return NOT_MINE;
    for (installed_t const& one : INSTALLED)
    {
        receiver.report(from, "firmwareVersion", QVariantMap{{"component", one.component}, {"version", one.version}});
    }
    return DONE;
}

behaviour_t::answer_t firmware_t::command(link_t* from, QString const& group, QVariant const& value)
{
    if (group == "startFirmwareUpdate")
        return start(from, value);
    return group == "fileBlock" ? go(m_fetch.take(from, value)) : NOT_MINE;
}

/** Told to start while it is at it, the receiver goes on with what it does. */
behaviour_t::answer_t firmware_t::start(link_t* from, QVariant const& value)
{
    QVariant taken;
    QString why;
    outcome_t const outcome = take(updateRule(), value, QVariant(), taken, why);
    if (outcome == MALFORMED)
        return UNREADABLE;
    if (m_from)
        return DONE;
    m_components.clear();
    if (outcome == REFUSED)
    {
        fail("A component is unknown, or its file is too large");
        return DONE;
    }
    QVariantMap const update = taken.toMap();
    QString const combinedPath = update.value("combinedPath").toString();
    m_combined = !combinedPath.isEmpty();
    m_total = m_combined ? update.value("combinedSize").toLongLong() : 0;
    m_done = 0;
    for (QVariant const& entry : update.value("components").toList())
    {
        QVariantMap const map = entry.toMap();
        m_components << component_t{map.value("component").toInt(),
                                    m_combined ? combinedPath : map.value("path").toString(),
                                    m_combined ? m_total : map.value("size").toLongLong(), NOT_STARTED};
        if (!m_combined)
            m_total += map.value("size").toLongLong();
    }
    m_from = from;
    m_current = 0;
    receiver.report("firmwareUpdatePercent", 0.0);
    fetchNext();
    return DONE;
}

void firmware_t::fetchNext()
{
    if (m_components.isEmpty())
    {
        fail("There is nothing to update");
        return;
    }
    component_t& next = m_components[m_current];
    if (next.size <= 0)
    {
        fail(QString(next.size == 0 ? "The file for %1 is empty" : "The file for %1 cannot be read")
                 .arg(NAMES[next.component]));
        return;
    }
    for (int i = m_current; i < (m_combined ? m_components.size() : m_current + 1); ++i)
        m_components[i].status = IN_PROGRESS;
    reportState(UPDATE_IN_PROGRESS,
                m_combined ? QString("Receiving the package") : QString("Receiving %1").arg(NAMES[next.component]));
    reportProgress();
    wantTicks(true);
    m_fetch.start(m_from, next.path, next.size);
}

behaviour_t::answer_t firmware_t::go(fileFetch_t::progress_t progress)
{
    switch (progress)
    {
    case fileFetch_t::NOT_MINE:
        return NOT_MINE;
    case fileFetch_t::UNREADABLE:
        return m_fetch.isRunning() ? UNREADABLE : NOT_MINE;
    case fileFetch_t::FAILED:
        fail(m_fetch.error());
        return DONE;
    case fileFetch_t::GOING_ON:
    case fileFetch_t::FINISHED:
        receiver.report("firmwareUpdatePercent", double(m_done + m_fetch.received()) / double(m_total));
        break;
    }
    if (progress == fileFetch_t::FINISHED)
        finishFile();
    return DONE;
}

void firmware_t::finishFile()
{
    m_done += m_fetch.received();
    for (int i = m_current; i < (m_combined ? m_components.size() : m_current + 1); ++i)
        m_components[i].status = SUCCESS;
    m_current = m_combined ? int(m_components.size()) : m_current + 1;
    if (m_current < m_components.size())
    {
        fetchNext();
        return;
    }
    m_from = nullptr;
    wantTicks(false);
    reportProgress();
    reportState(UPDATE_COMPLETE, "Firmware update complete");
}

void firmware_t::fail(QString const& error)
{
    m_fetch.stop();
    m_from = nullptr;
    wantTicks(false);
    for (component_t& component : m_components)
    {
        if (component.status != SUCCESS)
            component.status = FAILURE;
    }
    reportProgress();
    reportState(UPDATE_ERROR, error);
}

void firmware_t::reportState(int state, QString const& description)
{
    receiver.report("firmwareUpdateState", QVariantMap{{"state", state}, {"description", description}});
}

void firmware_t::reportProgress()
{
    QVariantList list;
    for (component_t const& component : m_components)
        list << QVariantMap{{"component", component.component}, {"status", component.status}};
    receiver.report("firmwareUpdateProgress", list);
}

void firmware_t::linkClosed(link_t* link)
{
    if (m_from && m_from == link)
        fail("The display is gone");
}

void firmware_t::restarted()
{
    if (m_from)
        fail("The receiver was restarted");
}

void firmware_t::advance(int milliseconds)
{
    if (m_fetch.advance(milliseconds) == fileFetch_t::FAILED)
        fail(m_fetch.error());
}

} // namespace melvox_receiver
