#ifndef MELVOX_LINK_TCP_LINK_H
#define MELVOX_LINK_TCP_LINK_H

#include "link/retry.h"
#include "link/streamLink.h"

#include <QTcpSocket>

namespace melvox_link
{

/** A display's link to a receiver over TCP, which connects again by itself, after pauses from a quarter of a second to
 *  four. */
class tcpLink_t : public streamLink_t
{
    Q_OBJECT

public:
    tcpLink_t(QString const& host, quint16 port, QObject* parent = nullptr);
    ~tcpLink_t() override;

    /** Begins to connect, and goes on until stop(). */
    void start();
    void stop();

    /** The first pause between attempts and the longest one, in milliseconds. */
    void setPauses(int first, int longest);

    /** Why the last attempt failed. */
    QString errorText() const;

private:
    void connectNow();
    void lose();

    QString m_host;
    quint16 m_port;
    QTcpSocket m_socket;
    retry_t m_retry;
    bool m_started;
};

} // namespace melvox_link

#endif
