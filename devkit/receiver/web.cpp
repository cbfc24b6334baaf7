#include "receiver/web.h"

namespace melvox_receiver
{

namespace
{

int const UPLOAD_ERROR = 0;
int const UPLOAD_IN_PROGRESS = 1;
int const UPLOAD_COMPLETE = 2;

double const LARGEST_PACKAGE = 256.0 * 1024 * 1024; // bytes

/** Of the whole, what drawing the package takes. */
double const FETCHING_SHARE = 0.6;

/** What follows when the package is there. */
struct phase_t
{
    char const* description;
    int duration;  //!< milliseconds
    bool restarts; //!< the receiver, at its beginning
    double done;   //!< of the whole, at its end
};

phase_t const PHASES[] = {{"Restarting the receiver (1 of 2)", 4000, true, 0.7},
                          {"Installing the package", 6000, false, 0.9},
                          {"Restarting the receiver (2 of 2)", 4000, true, 1.0}};
int const NUM_PHASES = int(sizeof PHASES / sizeof *PHASES);

QVariantMap stateRecord(int state, QString const& description)
{
    return {{"state", state}, {"description", description}};
}

} // namespace

web_t::web_t(receiver_t& owner)
    : behaviour_t(owner), m_fetch(owner), m_from(nullptr), m_size(0), m_phase(-1), m_left(0), m_restarting(false)
{
}

/** What a display asks when it comes back; the setting itself is not told here. */
behaviour_t::answer_t web_t::request(link_t* from, QString const& group)
{
    if (group != "webControl" || m_untold.isEmpty())
        return NOT_MINE;
    receiver.report(from, "webUiUploadState", m_untold);
    m_untold.clear();
    return NOT_MINE;
}

behaviour_t::answer_t web_t::command(link_t* from, QString const& group, QVariant const& value)
{
    if (group == "startWebUiUpload")
        return start(from, value);
    if (group == "cancelWebUiUpload")
    {
        cancel(from);
        return DONE;
    }
    return group == "fileBlock" ? go(m_fetch.take(from, value)) : NOT_MINE;
}

behaviour_t::answer_t web_t::start(link_t* from, QVariant const& value)
{
    QVariant taken;
    QString why;
    // A display that cannot read the file gives -1 for its size.
    rule_t const rule = record({{"path", text(4096)}, {"size", whole(-1, LARGEST_PACKAGE)}});
    outcome_t const outcome = take(rule, value, QVariant(), taken, why);
    if (outcome == MALFORMED)
        return UNREADABLE;
    if (isRunning())
    {
        receiver.report(from, "webUiUploadState", stateRecord(UPLOAD_IN_PROGRESS, "Another upload is in progress"));
        return DONE;
    }
    m_from = from;
    m_untold.clear();
    m_size = taken.toMap().value("size").toLongLong();
    if (outcome == REFUSED || m_size <= 0)
    {
        end(UPLOAD_ERROR, outcome == REFUSED ? "The package is too large"
                          : m_size < 0       ? "The package cannot be read"
                                             : "The package is empty");
        return DONE;
    }
    receiver.report("webUiUploadState", stateRecord(UPLOAD_IN_PROGRESS, "Receiving the package"));
    receiver.report("webUiUploadPercent", 0.0);
    m_fetch.start(from, taken.toMap().value("path").toString(), m_size);
    wantTicks(true);
    return DONE;
}

bool web_t::isRunning() const
{
    return m_fetch.isRunning() || m_phase >= 0;
}

void web_t::cancel(link_t* from)
{
    if (isRunning())
        end(UPLOAD_ERROR, "The upload was cancelled");
    else // Or a display that has missed the end would wait for it forever.
        receiver.report(from, "webUiUploadState", stateRecord(UPLOAD_ERROR, "No upload is in progress"));
}

void web_t::end(int state, QString const& description)
{
    m_fetch.stop();
    wantTicks(false);
    m_phase = -1;
    receiver.report("webUiUploadState", stateRecord(state, description));
    if (!m_from)
        m_untold = stateRecord(state, description);
    m_from = nullptr;
}

behaviour_t::answer_t web_t::go(fileFetch_t::progress_t progress)
{
    switch (progress)
    {
    case fileFetch_t::NOT_MINE:
        return NOT_MINE;
    case fileFetch_t::UNREADABLE:
        return UNREADABLE;
    case fileFetch_t::GOING_ON:
    case fileFetch_t::FINISHED:
        receiver.report("webUiUploadPercent", FETCHING_SHARE * double(m_fetch.received()) / double(m_size));
        break;
    case fileFetch_t::FAILED:
        break;
    }
    if (progress == fileFetch_t::FINISHED)
        enter(0);
    else if (progress == fileFetch_t::FAILED)
        end(UPLOAD_ERROR, m_fetch.error());
    return DONE;
}

void web_t::linkClosed(link_t* link)
{
    if (link != m_from)
        return;
    m_from = nullptr;
    // What has been drawn needs no display any more.
    if (m_fetch.isRunning())
        end(UPLOAD_ERROR, "The display is gone");
}

void web_t::restarted()
{
    if (!m_restarting && isRunning())
        end(UPLOAD_ERROR, "The receiver was restarted during the upload");
}

void web_t::enter(int phase)
{
    m_phase = phase;
    m_left = PHASES[phase].duration;
    receiver.report("webUiUploadState", stateRecord(UPLOAD_IN_PROGRESS, PHASES[phase].description));
    if (!PHASES[phase].restarts)
        return;
    m_restarting = true;
    receiver.restart();
    m_restarting = false;
}

void web_t::advance(int milliseconds)
{
    if (m_fetch.advance(milliseconds) == fileFetch_t::FAILED)
        end(UPLOAD_ERROR, m_fetch.error());
    if (m_phase < 0)
        return;
    m_left -= milliseconds;
    if (m_left > 0)
        return;
    receiver.report("webUiUploadPercent", PHASES[m_phase].done);
    if (m_phase + 1 < NUM_PHASES)
        enter(m_phase + 1);
    else
        end(UPLOAD_COMPLETE, "Upload complete");
}

} // namespace melvox_receiver
