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
int const NUM_COMPONENTS = 17;
int const PRODUCT = 8;
int const ANY_PRODUCT = 0;

int const WRITING = 3000; // milliseconds for one component
/** Of the whole, what drawing the files takes; the rest is writing. */
double const FETCHING_SHARE = 0.7;

int const POWER_CUT = 10; // seconds

char const* const INCOMPLETE = "incomplete";

QMap<int, QString> const DELIVERED = {{0, "2.0.4"},  {1, "2.1.0"}, {2, "1.14.40"}, {4, "1.0.3"}, {5, "1.0.5"},
                                      {6, "1.8.12"}, {7, "4.2"},   {8, "0.9.1"},   {12, "1.0.0"}};

QString nameOf(int component)
{
    return melvox_firmware::componentName(component);
}

rule_t updateRule()
{
    rule_t const component = record({{"fileIndex", whole(0, 65535)},
                                     {"component", whole(0, NUM_COMPONENTS - 1)},
                                     {"path", text(4096)},
                                     // A display that cannot read the file gives -1 for its size.
                                     {"size", optional(whole(-1, LARGEST_FILE), 0)}});
    return record({{"components", listOf(component)},
                   {"combinedPath", text(4096)},
                   {"combinedSize", optional(whole(-1, LARGEST_FILE), 0)}});
}

QVariantMap versionRecord(int component, QString const& version)
{
    return {{"component", nameOf(component)}, {"version", version}};
}

/** Which component of an update somebody means. */
bool isComponentChoice(QVariant const& value)
{
    if (isNumber(value))
        return value.toInt() >= 1 && value.toInt() <= NUM_COMPONENTS && value.toDouble() == value.toInt();
    if (value.userType() != QMetaType::QString)
        return false;
    return value.toString().isEmpty() || melvox_firmware::componentFromName(value.toString().toStdString()) >= 0;
}

QVariantMap stateRecord(int state, QString const& description)
{
    return {{"state", state}, {"description", description}};
}

} // namespace

firmware_t::firmware_t(receiver_t& owner)
    : behaviour_t(owner), m_fetch(owner), m_from(nullptr), m_running(false), m_combined(false), m_current(0),
      m_checked(0), m_writing(-1), m_done(0), m_total(0), m_runningVersions(DELIVERED), m_storedVersions(DELIVERED)
{
}

behaviour_t::answer_t firmware_t::request(link_t* from, QString const& group)
{
    if (group != "firmwareVersions")
        return NOT_MINE;
    for (auto it = m_runningVersions.begin(); it != m_runningVersions.end(); ++it)
        receiver.report(from, "firmwareVersion", versionRecord(it.key(), it.value()));
    if (!m_untold.isEmpty())
        receiver.report(from, "firmwareUpdateState", m_untold);
    m_untold.clear();
    return DONE;
}

behaviour_t::answer_t firmware_t::command(link_t* from, QString const& group, QVariant const& value)
{
    if (group == "startFirmwareUpdate")
        return start(from, value);
    return group == "fileBlock" ? go(m_fetch.take(from, value)) : NOT_MINE;
}

QStringList firmware_t::situations() const
{
    return {"failingFirmware", "powerCutInFirmware", "firmwareVersions"};
}

behaviour_t::answer_t firmware_t::situation(QString const& name, QVariant const& value)
{
    if (name == "firmwareVersions")
        return setVersions(value);
    if (!isComponentChoice(value))
        return UNREADABLE;
    (name == "failingFirmware" ? m_failing : m_powerCutIn) = value;
    return DONE;
}

behaviour_t::answer_t firmware_t::setVersions(QVariant const& versions)
{
    QVariantMap const map = versions.toMap();
    for (auto it = map.begin(); it != map.end(); ++it)
    {
        if (melvox_firmware::componentFromName(it.key().toStdString()) < 0 || it->userType() != QMetaType::QString)
            return UNREADABLE;
    }
    for (auto it = map.begin(); it != map.end(); ++it)
    {
        int const component = melvox_firmware::componentFromName(it.key().toStdString());
        m_runningVersions[component] = m_storedVersions[component] = it->toString();
        receiver.report("firmwareVersion", versionRecord(component, it->toString()));
    }
    return map.isEmpty() ? UNREADABLE : DONE;
}

/** The component that is being written. */
bool firmware_t::isMeant(QVariant const& which) const
{
    if (isNumber(which))
        return which.toInt() == m_current + 1;
    return nameOf(m_components.at(m_current).component).compare(which.toString(), Qt::CaseInsensitive) == 0;
}

/** Told to start while it is at it, the receiver goes on with what it does. */
behaviour_t::answer_t firmware_t::start(link_t* from, QVariant const& value)
{
    QVariant taken;
    QString why;
    outcome_t const outcome = take(updateRule(), value, QVariant(), taken, why);
    if (outcome == MALFORMED)
        return UNREADABLE;
    if (m_running)
        return DONE;
    m_components.clear();
    m_from = from;
    if (outcome == REFUSED)
    {
        fail("A component is unknown, or its file is too large");
        return DONE;
    }
    readUpdate(taken.toMap());
    QString const refusal = whyNot(from);
    if (!refusal.isEmpty())
    {
        fail(refusal);
        return DONE;
    }
    m_running = true;
    m_untold.clear();
    reportPercent();
    wantTicks(true);
    fetchNext();
    return DONE;
}

void firmware_t::readUpdate(QVariantMap const& update)
{
    QString const combinedPath = update.value("combinedPath").toString();
    m_combined = !combinedPath.isEmpty();
    m_total = m_combined ? update.value("combinedSize").toLongLong() : 0;
    m_done = 0;
    m_current = 0;
    m_checked = 0;
    m_writing = -1;
    for (QVariant const& entry : update.value("components").toList())
    {
        QVariantMap const map = entry.toMap();
        m_components << component_t{map.value("component").toInt(),
                                    map.value("fileIndex").toUInt(),
                                    m_combined ? combinedPath : map.value("path").toString(),
                                    m_combined ? m_total : map.value("size").toLongLong(),
                                    NOT_STARTED,
                                    QString()};
        if (!m_combined)
            m_total += qMax(qint64(0), map.value("size").toLongLong());
    }
}

/** Empty when the update can begin. */
QString firmware_t::whyNot(link_t* from) const
{
    if (receiver.lockOf(from) == 0)
        return "The port is not locked for the update";
    if (m_components.isEmpty())
        return "There is nothing to update";
    for (component_t const& component : m_components)
    {
        if (component.size <= 0)
            return QString(component.size == 0 ? "The file for %1 is empty" : "The file for %1 cannot be read")
                .arg(nameOf(component.component));
    }
    return QString();
}

/** How many components come from the same file, from this one on. */
int firmware_t::filesOf(int first) const
{
    return m_combined ? int(m_components.size()) - first : 1;
}

void firmware_t::fetchNext()
{
    component_t& next = m_components[m_checked];
    if (!m_from)
    {
        fail("The display is gone");
        return;
    }
    reportState(UPDATE_IN_PROGRESS,
                m_combined ? QString("Receiving the package") : QString("Receiving %1").arg(nameOf(next.component)));
    m_reader = melvox_firmware::packageReader_t();
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
        break;
    }
    QByteArray const data = m_fetch.takeData();
    m_reader.feed(data.constData(), std::size_t(data.size()));
    if (progress == fileFetch_t::FINISHED)
        m_done += m_fetch.received();
    reportPercent();
    if (progress == fileFetch_t::FINISHED)
        finishFile();
    return DONE;
}

void firmware_t::finishFile()
{
    int const count = filesOf(m_checked);
    QString const damage = checkFile(m_checked, count);
    if (!damage.isEmpty())
    {
        fail(damage);
        return;
    }
    m_checked += count;
    if (m_checked < m_components.size())
        fetchNext();
    else
        writeNext();
}

/** Empty when the file that was drawn holds what it was said to hold. */
QString firmware_t::checkFile(int first, int count)
{
    if (!m_reader.finish())
        return QString("The file is damaged: %1").arg(QString::fromStdString(m_reader.error()));
    for (int i = first; i < first + count; ++i)
    {
        component_t& component = m_components[i];
        QString const name = nameOf(component.component);
        if (component.fileIndex >= m_reader.parts().size() ||
            m_reader.parts()[component.fileIndex].component != component.component)
            return QString("The file does not hold %1").arg(name);
        melvox_firmware::part_t const& part = m_reader.parts()[component.fileIndex];
        if (part.product != PRODUCT && part.product != ANY_PRODUCT)
            return QString("%1 is made for product %2, not for this one").arg(name).arg(part.product);
        component.version = QString::fromStdString(part.version);
    }
    return QString();
}

void firmware_t::writeNext()
{
    component_t& next = m_components[m_current];
    next.status = IN_PROGRESS;
    m_writing = WRITING;
    m_storedVersions[next.component] = INCOMPLETE;
    reportState(UPDATE_IN_PROGRESS, QString("Writing %1").arg(nameOf(next.component)));
    reportProgress();
}

void firmware_t::finishWriting()
{
    component_t& written = m_components[m_current];
    bool const good = !isMeant(m_failing);
    written.status = good ? SUCCESS : FAILURE;
    if (good)
        m_storedVersions[written.component] = written.version;
    ++m_current;
    m_writing = -1;
    reportProgress();
    if (m_current < m_components.size())
        writeNext();
    else
        finish();
}

void firmware_t::finish()
{
    QStringList failed;
    for (component_t const& component : m_components)
    {
        if (component.status != SUCCESS)
            failed << nameOf(component.component);
    }
    if (failed.isEmpty())
        end(UPDATE_COMPLETE, "Firmware update complete");
    else
        end(UPDATE_ERROR, QString("Could not be written: %1").arg(failed.join(", ")));
}

void firmware_t::fail(QString const& error)
{
    for (component_t& component : m_components)
    {
        if (component.status != SUCCESS)
            component.status = FAILURE;
    }
    reportProgress();
    end(UPDATE_ERROR, error);
}

void firmware_t::end(int state, QString const& description)
{
    m_fetch.stop();
    wantTicks(false);
    m_running = false;
    m_writing = -1;
    reportState(state, description);
    if (!m_from)
        m_untold = stateRecord(state, description);
    m_from = nullptr;
}

void firmware_t::reportState(int state, QString const& description)
{
    receiver.report("firmwareUpdateState", stateRecord(state, description));
}

void firmware_t::reportProgress()
{
    QVariantList list;
    for (component_t const& component : m_components)
        list << QVariantMap{{"component", component.component}, {"status", component.status}};
    receiver.report("firmwareUpdateProgress", list);
}

void firmware_t::reportPercent()
{
    double const fetched = m_total > 0 ? double(m_done + (m_fetch.isRunning() ? m_fetch.received() : 0)) / m_total : 0;
    double const writing = m_writing >= 0 ? 1 - double(m_writing) / WRITING : 0;
    double const written = (m_current + writing) / qMax(1, int(m_components.size()));
    receiver.report("firmwareUpdatePercent", fetched * FETCHING_SHARE + written * (1 - FETCHING_SHARE));
}

void firmware_t::linkClosed(link_t* link)
{
    if (!m_running || m_from != link)
        return;
    m_from = nullptr;
    // What has been drawn and checked needs no display any more.
    if (m_writing < 0)
        fail("The display is gone");
}

void firmware_t::restarted()
{
    if (m_running)
    {
        bool const writing = m_writing >= 0;
        QString const name = writing ? nameOf(m_components.at(m_current).component) : QString();
        fail(writing ? QString("The power was lost while %1 was written; update it again").arg(name)
                     : QString("The power was lost during the update"));
    }
    m_runningVersions = m_storedVersions;
    for (auto it = m_runningVersions.begin(); it != m_runningVersions.end(); ++it)
        receiver.report("firmwareVersion", versionRecord(it.key(), it.value()));
}

void firmware_t::advance(int milliseconds)
{
    if (m_fetch.advance(milliseconds) == fileFetch_t::FAILED)
    {
        fail(m_fetch.error());
        return;
    }
    if (m_writing < 0)
        return;
    m_writing = qMax(0, m_writing - milliseconds);
    reportPercent();
    if (m_writing <= WRITING / 2 && isMeant(m_powerCutIn))
    {
        m_powerCutIn.clear();
        receiver.setSituation("powerCut", POWER_CUT);
    }
    else if (m_writing == 0)
    {
        finishWriting();
    }
}

} // namespace melvox_receiver
