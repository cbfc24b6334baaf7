#ifndef MELVOX_LINK_TCP_SERVER_H
#define MELVOX_LINK_TCP_SERVER_H

#include "link/link.h"

#include <QHostAddress>
#include <QTcpServer>

namespace melvox_link
{

/** The receiver's side of links over TCP: accepts displays, each with a link of its own. */
class tcpServer_t : public QObject
{
    Q_OBJECT

public:
    explicit tcpServer_t(QObject* parent = nullptr);
    ~tcpServer_t() override;

    /** Port 0: any that is free. False, and errorText() tells, when it cannot be. */
    bool listen(QHostAddress const& address, quint16 port);
    QString errorText() const;

    /** Where it listens, "tcp:127.0.0.1:5000". */
    QString description() const;
    quint16 port() const;

    static int const MOST_DISPLAYS = 32; //!< further ones are turned away

signals:
    /** A display has come. The link is the server's, which deletes it soon after it has closed. */
    void accepted(melvox_link::link_t* link);

private:
    void accept();

    QTcpServer m_server;
    int m_displays;
};

} // namespace melvox_link

#endif
