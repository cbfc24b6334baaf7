#include "link/ptyPort.h"

#include "link/ptyDevice.h"

namespace melvox_link
{

ptyPort_t::ptyPort_t(QObject* parent) : streamLink_t(QString(), parent), m_device(new ptyDevice_t)
{
    connect(m_device.data(), &ptyDevice_t::arrived, this, [this]() { attach(m_device.data()); });
    connect(m_device.data(), &ptyDevice_t::left, this, &ptyPort_t::detach);
}

ptyPort_t::~ptyPort_t()
{
    m_device->disconnect(this);
}

bool ptyPort_t::create()
{
    if (!m_device->create())
        return false;
    setDescription("serial:" + m_device->path());
    return true;
}

QString ptyPort_t::errorText() const
{
    return m_device->errorString();
}

QString ptyPort_t::path() const
{
    return m_device->path();
}

} // namespace melvox_link
