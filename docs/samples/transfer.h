#ifndef SAMPLES_TRANSFER_H
#define SAMPLES_TRANSFER_H

#include "brel_common_qt/remoteMelvoxDevice.h"

#include <QByteArray>
#include <QObject>

#include <cstring>

// begin transfer
/** Sends the receiver one block of bytes with the link to itself. */
class transfer_t : public QObject
{
    Q_OBJECT

public:
    transfer_t(brel_common_qt::remotePort_t* port, QByteArray const& bytes)
        : m_port(port), m_bytes(bytes), m_state(IDLE)
    {
        connect(port, SIGNAL(lockStateUpdated(brel_common_qt::portLock_t)), this,
                SLOT(takeLock(brel_common_qt::portLock_t)));
        connect(port, SIGNAL(uploadResult(brel_common_qt::uploadStatus_t)), this,
                SLOT(takeResult(brel_common_qt::uploadStatus_t)));
    }

    void start()
    {
        m_state = ASKED;
        m_port->setLockState(brel_common_qt::PORT_LOCK_FRAMEWORK);
    }

signals:
    void ended(bool good);

private slots:
    void takeLock(brel_common_qt::portLock_t lock)
    {
        // Others ask for the lock too, and everybody hears what came of it.
        if (m_state != ASKED)
            return;
        if (lock != brel_common_qt::PORT_LOCK_FRAMEWORK)
            return end(false);
        m_state = SENDING;
        QExplicitlySharedDataPointer<brel_common_qt::buffer_t> block(new brel_common_qt::buffer_t(m_bytes.size()));
        std::memcpy(block->data(), m_bytes.constData(), m_bytes.size());
        block->setLength(m_bytes.size());
        m_port->uploadData(block);
    }

    void takeResult(brel_common_qt::uploadStatus_t status)
    {
        if (m_state == SENDING)
            end(status == brel_common_qt::UPLOAD_OK);
    }

private:
    enum state_t
    {
        IDLE,
        ASKED,
        SENDING
    };

    void end(bool good)
    {
        // On every way out, but only what one has.
        if (m_state == SENDING)
            m_port->setLockState(brel_common_qt::PORT_LOCK_NONE);
        m_state = IDLE;
        emit ended(good);
    }

    brel_common_qt::remotePort_t* m_port;
    QByteArray m_bytes;
    state_t m_state;
};
// end

#endif
