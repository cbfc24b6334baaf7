#ifndef MELVOX_LINK_SERIAL_LINK_H
#define MELVOX_LINK_SERIAL_LINK_H

#include "link/retry.h"
#include "link/streamLink.h"

#include <QSerialPort>

namespace melvox_link
{

/** A link over a serial line or a pseudo-terminal, 8 data bits, no parity, which opens again by itself when the device
 *  was gone. */
class serialLink_t : public streamLink_t
{
    Q_OBJECT
    /** For those that know the link but not its kind. */
    Q_PROPERTY(int baud READ baud WRITE setBaud)

public:
    explicit serialLink_t(QString const& device, int baud = 115200, QObject* parent = nullptr);
    ~serialLink_t() override;

    /** Opens the device, and tries again until stop(). isOpen() tells at once how the first attempt went. */
    void start();
    void stop();

    /** Bits per second; takes effect at once. */
    int baud() const;
    void setBaud(int baud);

    /** The first pause between attempts and the longest one, in milliseconds. */
    void setPauses(int first, int longest);

    /** Why the last attempt failed. */
    QString errorText() const;

private:
    void openNow();
    void handle(QSerialPort::SerialPortError error);

    QSerialPort m_port;
    retry_t m_retry;
    QString m_errorText;
    bool m_started;
};

} // namespace melvox_link

#endif
