#include "link/tcpLink.h"

namespace melvox_link
{

tcpLink_t::tcpLink_t(QString const& host, quint16 port, QObject* parent)
    : streamLink_t(QString("tcp:%1:%2").arg(host.contains(':') ? '[' + host + ']' : host).arg(port), parent),
      m_host(host), m_port(port), m_retry([this]() { connectNow(); }), m_started(false)
{
    connect(&m_socket, &QTcpSocket::connected, this,
            [this]()
            {
                m_socket.setSocketOption(QAbstractSocket::LowDelayOption, 1);
                m_socket.setSocketOption(QAbstractSocket::KeepAliveOption, 1);
                m_retry.succeeded();
                attach(&m_socket);
            });
    connect(&m_socket, &QTcpSocket::disconnected, this, &tcpLink_t::lose);
    connect(&m_socket, &QAbstractSocket::errorOccurred, this, &tcpLink_t::lose);
}

tcpLink_t::~tcpLink_t()
{
    // Its end is nobody's news any more.
    m_socket.disconnect(this);
}

void tcpLink_t::start()
{
    if (m_started)
        return;
    m_started = true;
    connectNow();
}

void tcpLink_t::stop()
{
    m_started = false;
    m_retry.stop();
    m_socket.abort();
    detach();
}

void tcpLink_t::setPauses(int first, int longest)
{
    m_retry.setPauses(first, longest);
}

QString tcpLink_t::errorText() const
{
    return m_socket.errorString();
}

void tcpLink_t::connectNow()
{
    m_socket.abort();
    m_socket.connectToHost(m_host, m_port);
}

void tcpLink_t::lose()
{
    detach();
    if (m_started && m_socket.state() != QAbstractSocket::ConnectedState)
        m_retry.failed();
}

} // namespace melvox_link
