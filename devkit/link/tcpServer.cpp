#include "link/tcpServer.h"

#include "link/streamLink.h"

#include <QTcpSocket>

namespace melvox_link
{

namespace
{

QString describe(QHostAddress const& address, quint16 port)
{
    bool const v6 = address.protocol() == QAbstractSocket::IPv6Protocol;
    return QString(v6 ? "tcp:[%1]:%2" : "tcp:%1:%2").arg(address.toString()).arg(port);
}

} // namespace

tcpServer_t::tcpServer_t(QObject* parent) : QObject(parent), m_displays(0)
{
    connect(&m_server, &QTcpServer::newConnection, this, &tcpServer_t::accept);
}

tcpServer_t::~tcpServer_t() = default;

bool tcpServer_t::listen(QHostAddress const& address, quint16 port)
{
    return m_server.listen(address, port);
}

QString tcpServer_t::errorText() const
{
    return m_server.errorString();
}

QString tcpServer_t::description() const
{
    return describe(m_server.serverAddress(), m_server.serverPort());
}

quint16 tcpServer_t::port() const
{
    return m_server.serverPort();
}

void tcpServer_t::accept()
{
    while (QTcpSocket* const socket = m_server.nextPendingConnection())
    {
        if (m_displays == MOST_DISPLAYS)
        {
            socket->abort();
            socket->deleteLater();
            continue;
        }
        ++m_displays;
        socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        socket->setSocketOption(QAbstractSocket::KeepAliveOption, 1);
        auto* const link = new streamLink_t(socket, describe(socket->peerAddress(), socket->peerPort()), this);
        socket->setParent(link);
        connect(socket, &QTcpSocket::disconnected, socket, &QTcpSocket::close);
        connect(link, &link_t::openChanged, this,
                [this, link](bool open)
                {
                    if (open)
                        return;
                    --m_displays;
                    link->deleteLater();
                });
        emit accepted(link);
    }
}

} // namespace melvox_link
