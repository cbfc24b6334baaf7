#ifndef MELVOX_KIT_PORT_ENDPOINT_H
#define MELVOX_KIT_PORT_ENDPOINT_H

#include "brel_common_qt/remoteDevice.h"
#include "kitPort.h"
#include "link/link.h"

#include <QList>
#include <QPointer>

namespace melvox_kit
{

/** What a remotePort_t of the kit stands on: the link, the lock, and what has to wait for the lock. */
class portEndpoint_t : public QObject
{
    Q_OBJECT

public:
    portEndpoint_t(melvox_link::link_t* link, linkKind_t kind);

    bool isOpen() const;
    linkKind_t kind() const { return m_kind; }
    brel_common_qt::portLock_t lock() const { return m_lock; }

    /** Waits while the lock is held; a request that waits already is not queued twice. */
    void send(melvox_link::message_t const& message);
    /** What belongs to the transfer that the lock is for. */
    void sendNow(melvox_link::message_t const& message);

    /** What waits goes out right behind a release: were the answer to it lost, nothing would ever be sent again. */
    void requestLock(brel_common_qt::portLock_t lock);
    void upload(QByteArray const& bytes);

    brel_common_qt::serialPortConfig_t const* line();
    void setLine(brel_common_qt::serialPortConfig_t const& config, bool localOnly);

signals:
    /** Every message that is not the port's own business. */
    void received(melvox_link::message_t const& message);
    void openChanged(bool open);
    void lockStateUpdated(brel_common_qt::portLock_t state);
    void uploadResult(brel_common_qt::uploadStatus_t status);

private slots:
    void take(melvox_link::message_t const& message);
    void takeOpen(bool open);
    void refuseLock();
    void refuseUpload();

private:
    bool isHeldBack() const { return m_lock != brel_common_qt::PORT_LOCK_NONE && !m_releasing; }
    void takeLock(brel_common_qt::portLock_t lock);
    void loseAll();
    void sendWaiting();

    QPointer<melvox_link::link_t> m_link;
    linkKind_t m_kind;
    brel_common_qt::portLock_t m_lock;
    bool m_lockAsked;
    bool m_releasing;
    bool m_uploading;
    QList<melvox_link::message_t> m_waiting;
    brel_common_qt::serialPortConfig_t m_line;
};

} // namespace melvox_kit

/** The private record of every port of the kit. */
struct brel_common_qt::remotePort_t::privateData_t
{
    privateData_t(melvox_link::link_t* link, melvox_kit::linkKind_t kind) : endpoint(link, kind) {}

    melvox_kit::portEndpoint_t endpoint;
};

#endif
