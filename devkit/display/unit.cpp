#include "display/unit.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "link/faultFilter.h"
#include "link/linkTap.h"
#include "link/localLink.h"
#include "link/replayLink.h"
#include "link/serialLink.h"
#include "link/tcpLink.h"
#include "receiver/receiver.h"

namespace melvox_display
{

namespace
{

melvox_kit::linkKind_t kindOf(connection_t const& connection)
{
    switch (connection.kind)
    {
    case connection_t::TCP:
        return melvox_kit::LINK_TCP;
    case connection_t::REPLAY:
        return connection.journal->header.value("tcp").toBool() ? melvox_kit::LINK_TCP : melvox_kit::LINK_SERIAL;
    case connection_t::SERIAL:
    case connection_t::SIMULATED:
        return melvox_kit::LINK_SERIAL;
    }
    return melvox_kit::LINK_OTHER;
}

} // namespace

unit_t::unit_t(connection_t const& connection, melvox_receiver::simClock_t::mode_t clock)
    : m_kind(kindOf(connection)), m_baud(USUAL_BAUD), m_clock(std::make_unique<melvox_receiver::simClock_t>(clock)),
      m_replay(nullptr), m_started(false), m_wasOpen(false)
{
    melvox_link::link_t* link = createLink(connection);
    m_filter = std::make_unique<melvox_link::faultFilter_t>(link);
    m_tap = std::make_unique<melvox_link::linkTap_t>(m_filter.get());
    createDevice();
    connect(m_tap.get(), &melvox_link::link_t::openChanged, this, &unit_t::takeOpen);
}

unit_t::~unit_t()
{
    // The proxy first: it stands on the link.
    m_device.reset();
    m_tap.reset();
    m_filter.reset();
}

void unit_t::createDevice()
{
    brel_common_qt::remotePort_t* port = melvox_kit::createPort(m_tap.get(), m_kind);
    m_device = std::make_unique<brel_common_qt::remoteMelvoxDevice_t>(port);
}

melvox_link::link_t* unit_t::createSimulated()
{
    m_pair = std::make_unique<melvox_link::localLinkPair_t>();
    m_pair->setLatency(USUAL_LATENCY);
    arrangeLine();
    renewReceiver();
    return m_pair->displayEnd();
}

void unit_t::arrangeLine()
{
    for (melvox_link::localLink_t* end : {m_pair->displayEnd(), m_pair->receiverEnd()})
    {
        if (m_kind == melvox_kit::LINK_SERIAL)
            end->makeSerial({m_baud, 8, 'N', 1});
        else
            end->makePlain();
    }
}

void unit_t::renewReceiver()
{
    m_receiver.reset();
    m_receiver = std::make_unique<melvox_receiver::receiver_t>(m_pair->receiverEnd(), m_clock.get());
    m_receiver->startReports();
    m_receiver->setSituation("profileFolder", m_profileFolder);
}

bool unit_t::keepProfiles(QString const& folder)
{
    m_profileFolder = folder;
    return m_receiver->setSituation("profileFolder", folder);
}

void unit_t::setBaud(unsigned int baud)
{
    m_baud = baud;
    arrangeLine();
}

void unit_t::setLinkKind(melvox_kit::linkKind_t kind)
{
    if (kind == m_kind)
        return;
    emit deviceAboutToGo();
    m_device.reset();
    m_kind = kind;
    arrangeLine();
    createDevice();
    emit deviceReplaced();
    if (m_tap->isOpen())
        takeOpen(true);
}

template <typename link_t> melvox_link::link_t* unit_t::keepStream(std::unique_ptr<link_t> link)
{
    link_t* stream = link.get();
    // The stream lives on in m_stream; cppcheck does not follow the move.
    // cppcheck-suppress danglingLifetime
    m_startStream = [stream]() { stream->start(); };
    m_stream = std::move(link);
    // cppcheck-suppress returnDanglingLifetime
    return stream;
}

melvox_link::link_t* unit_t::createLink(connection_t const& connection)
{
    switch (connection.kind)
    {
    case connection_t::TCP:
        return keepStream(std::make_unique<melvox_link::tcpLink_t>(connection.host, quint16(connection.port)));
    case connection_t::SERIAL:
        return keepStream(std::make_unique<melvox_link::serialLink_t>(connection.device, connection.baud));
    case connection_t::REPLAY:
        return createReplay(connection);
    case connection_t::SIMULATED:
        break;
    }
    return createSimulated();
}

melvox_link::link_t* unit_t::createReplay(connection_t const& connection)
{
    auto link = std::make_unique<melvox_link::replayLink_t>(connection.journal);
    link->setSpeed(connection.replaySpeed);
    m_replay = link.get();
    return keepStream(std::move(link));
}

void unit_t::start()
{
    m_started = true;
    if (m_tap->isOpen())
        takeOpen(true);
    else if (m_startStream)
        m_startStream();
}

bool unit_t::isSimulated() const
{
    // Real receivers speak to the maker's proxy; the kit's messages are spoken by simulated ones only.
    return true;
}

QString unit_t::description() const
{
    return m_receiver ? tr("receiver in this program") : m_tap->description();
}

linkState_t unit_t::linkState() const
{
    if (m_started && m_tap->isOpen())
        return linkState_t::CONNECTED;
    return m_wasOpen ? (m_stream ? linkState_t::RECONNECTING : linkState_t::INTERRUPTED) : linkState_t::CONNECTING;
}

void unit_t::takeOpen(bool open)
{
    if (!m_started)
        return;
    m_wasOpen = m_wasOpen || open;
    emit linkStateChanged();
    // What was known may have changed while nobody could tell. Not at once: the other end may hear of it after this one.
    if (open)
        QMetaObject::invokeMethod(this, &unit_t::askForEverything, Qt::QueuedConnection);
}

void unit_t::askForEverything()
{
    if (m_tap->isOpen())
        m_device->queryAll();
}

} // namespace melvox_display
