#ifndef BREL_COMMON_QT_REMOTE_DEVICE_H
#define BREL_COMMON_QT_REMOTE_DEVICE_H

#include "brel_common_qt/brelCommonQtExport.h"
#include "brel_common_qt/melvoxPortConfig.h"

#include <QExplicitlySharedDataPointer>
#include <QMetaType>
#include <QObject>
#include <QSharedData>

#include <vector>

namespace brel_common_qt
{

/** Who has the link to the receiver for himself. */
enum portLock_t : int
{
    PORT_LOCK_NONE = 0,
    PORT_LOCK_FRAMEWORK = 1,
    PORT_LOCK_PLUGIN = 2
};

/** Result of one remotePort_t::uploadData(). */
enum uploadStatus_t : int
{
    UPLOAD_OK = 0,
    UPLOAD_ERROR = 1,
    UPLOAD_PORT_CLOSED = 2
};

/** A block of raw bytes, shared between whoever fills and whoever sends it. */
class BREL_COMMON_QT_EXPORT buffer_t : public QSharedData
{
public:
    explicit buffer_t(unsigned int capacity);

    char* data();
    char const* data() const;
    unsigned int capacity() const;
    unsigned int length() const;
    /** At most the capacity. */
    void setLength(unsigned int length);

private:
    std::vector<char> m_bytes;
    unsigned int m_length;
};

/** The display's end of the link to the receiver. */
class BREL_COMMON_QT_EXPORT remotePort_t : public QObject
{
    Q_OBJECT

public:
    ~remotePort_t();

    bool isOpen() const;
    brel_common_qt::portLock_t lockState() const;

    /** Asks for the lock, or gives it back with PORT_LOCK_NONE. Returns at once; lockStateUpdated() tells the outcome,
     *  which need not be what was asked for. */
    void setLockState(brel_common_qt::portLock_t state);

    /** Sends one block as it is. Returns at once; uploadResult() tells the outcome. One block at a time. */
    void uploadData(QExplicitlySharedDataPointer<brel_common_qt::buffer_t> data);

signals:
    void openChanged(bool open);
    void lockStateUpdated(brel_common_qt::portLock_t state);
    void uploadResult(brel_common_qt::uploadStatus_t status);

protected:
    struct privateData_t;
    explicit remotePort_t(privateData_t* data, QObject* parent);

    privateData_t* m_data;

private:
    Q_DISABLE_COPY(remotePort_t)

    friend class remoteDevice_t;
    friend class remoteMelvoxDevice_t;
};

/** Line settings of the display's own serial port. */
struct serialPortConfig_t
{
    unsigned int baud; //!< bits per second
    charSize_t charSize;
    parity_t parity;
    stopBits_t stopBits;
    flow_t flow;
};

/** A link over a serial line; remoteDevice_t::port() is one when the display is connected that way. */
class BREL_COMMON_QT_EXPORT remoteSerialPort_t : public remotePort_t
{
    Q_OBJECT

public:
    ~remoteSerialPort_t();

    /** Null while not known. Valid until the next change. */
    brel_common_qt::serialPortConfig_t const* serialPortConfig() const;

    /** Moves both ends of the line to new settings: the receiver is told first, then this end follows.
     *  `localOnly` leaves the receiver as it is. Nothing happens while serialPortConfig() is null, or for a rate of 0. */
    void configure(brel_common_qt::serialPortConfig_t const& config, bool localOnly);

protected:
    explicit remoteSerialPort_t(privateData_t* data, QObject* parent);

private:
    Q_DISABLE_COPY(remoteSerialPort_t)
};

/** What any remote device has: a port, and messages that come in over it. */
class BREL_COMMON_QT_EXPORT remoteDevice_t : public QObject
{
    Q_OBJECT

public:
    ~remoteDevice_t();

    /** Never null; the device's own. */
    brel_common_qt::remotePort_t* port() const;

    /** True while the device is reached through a TCP connection. */
    bool isPortTcpConnect() const;

signals:
    /** A message of a numbered stream came in: 0 position, velocity and time, 1 heading, 2 correction satellites,
     *  3 any other. */
    void messageReceived(int stream);

protected:
    /** Takes the port over. */
    explicit remoteDevice_t(brel_common_qt::remotePort_t* port, QObject* parent);

private:
    Q_DISABLE_COPY(remoteDevice_t)

    remotePort_t* m_port;
};

} // namespace brel_common_qt

Q_DECLARE_METATYPE(brel_common_qt::portLock_t)
Q_DECLARE_METATYPE(brel_common_qt::uploadStatus_t)

#endif
