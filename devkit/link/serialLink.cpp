#include "link/serialLink.h"

#include <sys/ioctl.h>

namespace melvox_link
{

namespace
{

int const LOOK_INTERVAL = 5; // milliseconds

}

serialLink_t::serialLink_t(QString const& device, int baud, QObject* parent)
    : streamLink_t("serial:" + device, parent), m_line{static_cast<unsigned int>(baud), 8, 'N', 1},
      m_retry([this]() { openNow(); }), m_started(false)
{
    m_port.setPortName(device);
    m_lineTimer.setInterval(LOOK_INTERVAL);
    connect(&m_lineTimer, &QTimer::timeout, this,
            [this]()
            {
                if (hasSentAll())
                    applyLine();
            });
    applyLine();
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

bool serialLink_t::line(line_t& line) const
{
    line = m_line;
    return true;
}

void serialLink_t::setLine(line_t const& line)
{
    m_line = line;
    // What the port has taken over is not yet on the wire, and nobody tells when it is.
    if (hasSentAll())
        applyLine();
    else
        m_lineTimer.start();
}

bool serialLink_t::hasSentAll() const
{
    int waiting = 0;
    if (!m_port.isOpen())
        return true;
    return m_port.bytesToWrite() == 0 && (::ioctl(int(m_port.handle()), TIOCOUTQ, &waiting) != 0 || waiting == 0);
}

void serialLink_t::applyLine()
{
    m_lineTimer.stop();
    m_port.setBaudRate(qint32(m_line.baud));
    m_port.setDataBits(m_line.dataBits == 7 ? QSerialPort::Data7 : QSerialPort::Data8);
    m_port.setParity(m_line.parity == 'O'   ? QSerialPort::OddParity
                     : m_line.parity == 'E' ? QSerialPort::EvenParity
                                            : QSerialPort::NoParity);
    m_port.setStopBits(m_line.stopBits == 2 ? QSerialPort::TwoStop : QSerialPort::OneStop);
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
