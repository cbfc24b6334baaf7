#ifndef MELVOX_LINK_SERIAL_LINK_H
#define MELVOX_LINK_SERIAL_LINK_H

#include "link/retry.h"
#include "link/streamLink.h"

#include <QSerialPort>

namespace melvox_link
{

/** A link over a serial line or a pseudo-terminal, with 8 data bits, no parity and 1 stop bit at first, which opens
 *  again by itself when the device was gone. */
class serialLink_t : public streamLink_t
{
    Q_OBJECT

public:
    explicit serialLink_t(QString const& device, int baud = 115200, QObject* parent = nullptr);
    ~serialLink_t() override;

    /** Opens the device, and tries again until stop(). isOpen() tells at once how the first attempt went. */
    void start();
    void stop();

    bool line(melvox_link::line_t& line) const override;
    void setLine(melvox_link::line_t const& line) override;

    /** The first pause between attempts and the longest one, in milliseconds. */
    void setPauses(int first, int longest);

    /** Why the last attempt failed. */
    QString errorText() const;

private:
    void openNow();
    bool hasSentAll() const;
    void applyLine();
    void handle(QSerialPort::SerialPortError error);

    QSerialPort m_port;
    line_t m_line; //!< as it was set last, perhaps not yet in effect
    QTimer m_lineTimer;
    retry_t m_retry;
    QString m_errorText;
    bool m_started;
};

} // namespace melvox_link

#endif
