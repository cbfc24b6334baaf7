#include "link/serialLink.h"

namespace melvox_link
{

serialLink_t::serialLink_t(QString const& device, int baud, QObject* parent)
    : streamLink_t("serial:" + device, parent), m_retry([this]() { openNow(); }), m_started(false)
{
    m_port.setPortName(device);
    m_port.setBaudRate(baud);
    connect(&m_port, &QSerialPort::errorOccurred, this, &serialLink_t::handle);
}

serialLink_t::~serialLink_t()
{
    m_port.disconnect(this);
}

void serialLink_t::start()
{
    if (m_started)
        return;
    m_started = true;
    openNow();
}

void serialLink_t::stop()
{
    m_started = false;
    m_retry.stop();
    detach();
    m_port.close();
}

int serialLink_t::baud() const
{
    return m_port.baudRate();
}

void serialLink_t::setBaud(int baud)
{
    m_port.setBaudRate(baud);
}

void serialLink_t::setPauses(int first, int longest)
{
    m_retry.setPauses(first, longest);
}

QString serialLink_t::errorText() const
{
    return m_errorText;
}

void serialLink_t::openNow()
{
    if (m_port.open(QIODevice::ReadWrite))
    {
        m_retry.succeeded();
        attach(&m_port);
        return;
    }
    m_errorText = m_port.errorString();
    m_retry.failed();
}

/** A port whose other end is gone repeats its error without end, so it is closed at the first one. */
void serialLink_t::handle(QSerialPort::SerialPortError error)
{
    bool const lost = error == QSerialPort::ReadError || error == QSerialPort::WriteError ||
                      error == QSerialPort::ResourceError || error == QSerialPort::PermissionError;
    if (!lost || !m_port.isOpen() || !isOpen())
        return;
    m_errorText = m_port.errorString();
    detach();
    m_port.close();
    if (m_started)
        m_retry.failed();
}

} // namespace melvox_link
