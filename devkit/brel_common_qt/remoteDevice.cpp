#include "brel_common_qt/remoteDevice.h"

#include "portEndpoint.h"

#include <algorithm>

namespace brel_common_qt
{

buffer_t::buffer_t(unsigned int capacity) : m_bytes(capacity), m_length(0)
{
}

char* buffer_t::data()
{
    return m_bytes.data();
}

char const* buffer_t::data() const
{
    return m_bytes.data();
}

unsigned int buffer_t::capacity() const
{
    return static_cast<unsigned int>(m_bytes.size());
}

unsigned int buffer_t::length() const
{
    return m_length;
}

void buffer_t::setLength(unsigned int length)
{
    m_length = std::min(length, capacity());
}

remotePort_t::remotePort_t(privateData_t* data, QObject* parent) : QObject(parent), m_data(data)
{
    QObject* endpoint = &m_data->endpoint;
    connect(endpoint, SIGNAL(openChanged(bool)), SIGNAL(openChanged(bool)));
    connect(endpoint, SIGNAL(lockStateUpdated(brel_common_qt::portLock_t)),
            SIGNAL(lockStateUpdated(brel_common_qt::portLock_t)));
    connect(endpoint, SIGNAL(uploadResult(brel_common_qt::uploadStatus_t)),
            SIGNAL(uploadResult(brel_common_qt::uploadStatus_t)));
}

remotePort_t::~remotePort_t()
{
    delete m_data;
}

bool remotePort_t::isOpen() const
{
    return m_data->endpoint.isOpen();
}

portLock_t remotePort_t::lockState() const
{
    return m_data->endpoint.lock();
}

void remotePort_t::setLockState(portLock_t state)
{
    m_data->endpoint.requestLock(state);
}

void remotePort_t::uploadData(QExplicitlySharedDataPointer<buffer_t> data)
{
    m_data->endpoint.upload(data ? QByteArray(data->data(), int(data->length())) : QByteArray());
}

remoteSerialPort_t::remoteSerialPort_t(privateData_t* data, QObject* parent) : remotePort_t(data, parent)
{
}

remoteSerialPort_t::~remoteSerialPort_t()
{
}

serialPortConfig_t const* remoteSerialPort_t::serialPortConfig() const
{
    return m_data->endpoint.line();
}

void remoteSerialPort_t::configure(serialPortConfig_t const& config, bool localOnly)
{
    m_data->endpoint.setLine(config, localOnly);
}

remoteDevice_t::remoteDevice_t(remotePort_t* port, QObject* parent) : QObject(parent), m_port(port)
{
    m_port->setParent(this);
}

remoteDevice_t::~remoteDevice_t()
{
}

remotePort_t* remoteDevice_t::port() const
{
    return m_port;
}

bool remoteDevice_t::isPortTcpConnect() const
{
    return m_port->m_data->endpoint.kind() == melvox_kit::LINK_TCP;
}

} // namespace brel_common_qt

namespace melvox_kit
{

namespace
{

// The constructors of the ports are not for everybody.
struct anyPort_t : brel_common_qt::remotePort_t
{
    anyPort_t(melvox_link::link_t* link, linkKind_t kind, QObject* parent)
        : remotePort_t(new privateData_t(link, kind), parent)
    {
    }
};

struct serialPort_t : brel_common_qt::remoteSerialPort_t
{
    serialPort_t(melvox_link::link_t* link, QObject* parent)
        : remoteSerialPort_t(new privateData_t(link, LINK_SERIAL), parent)
    {
    }
};

} // namespace

brel_common_qt::remotePort_t* createPort(melvox_link::link_t* link, linkKind_t kind, QObject* parent)
{
    if (kind == LINK_SERIAL)
        return new serialPort_t(link, parent);
    return new anyPort_t(link, kind, parent);
}

} // namespace melvox_kit
