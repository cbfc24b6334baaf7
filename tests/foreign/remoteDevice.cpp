#include "foreignPort.h"

#include <QTimer>

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

struct remotePort_t::privateData_t
{
    portLock_t lock = PORT_LOCK_NONE;
};

remotePort_t::remotePort_t(privateData_t* data, QObject* parent) : QObject(parent), m_data(data)
{
}

remotePort_t::~remotePort_t()
{
    delete m_data;
}

bool remotePort_t::isOpen() const
{
    return true;
}

portLock_t remotePort_t::lockState() const
{
    return m_data->lock;
}

void remotePort_t::setLockState(portLock_t state)
{
    QTimer::singleShot(0, this,
                       [this, state]
                       {
                           m_data->lock = state;
                           emit lockStateUpdated(state);
                       });
}

void remotePort_t::uploadData(QExplicitlySharedDataPointer<buffer_t>)
{
    QTimer::singleShot(0, this, [this] { emit uploadResult(UPLOAD_OK); });
}

// The pages ask whether a port is a serial one. None is here.
remoteSerialPort_t::~remoteSerialPort_t()
{
}

serialPortConfig_t const* remoteSerialPort_t::serialPortConfig() const
{
    return nullptr;
}

void remoteSerialPort_t::configure(serialPortConfig_t const&, bool)
{
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
    return false;
}

} // namespace brel_common_qt

namespace
{

struct port_t : brel_common_qt::remotePort_t
{
    port_t() : remotePort_t(new privateData_t, nullptr) {}
};

} // namespace

brel_common_qt::remotePort_t* foreign::createPort()
{
    return new port_t;
}
