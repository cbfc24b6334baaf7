#ifndef MELVOX_LINK_STREAM_LINK_H
#define MELVOX_LINK_STREAM_LINK_H

#include "link/link.h"

#include <QByteArray>
#include <QIODevice>
#include <QPointer>

namespace melvox_link
{

/** Messages as lines of JSON over a device. A line that is no message is counted, logged in the category
 *  "melvox.link" and passed over. What the other side does not take in for long is lost. */
class streamLink_t : public link_t
{
    Q_OBJECT

public:
    /** Over a device that is open: the link is open until the device closes. The device stays the caller's. */
    streamLink_t(QIODevice* device, QString const& description, QObject* parent = nullptr);
    ~streamLink_t() override;

    bool isOpen() const override;
    QString description() const override;
    void send(melvox_link::message_t const& message) override;

    /** Closes the device; a display opens its way anew. */
    void setCut(bool cut) override;

    int ignoredLines() const;

    static int const LONGEST_LINE = 1024 * 1024;    //!< bytes; longer ones are passed over
    static int const MOST_UNSENT = 8 * 1024 * 1024; //!< bytes that wait; messages beyond are lost
    static int const LONGEST_REPORTED_TEXT = 200;   //!< bytes of a line that lineIgnored() gives

signals:
    /** Why, and the beginning of the line. */
    void lineIgnored(QString const& reason, QByteArray const& text);

protected:
    /** Closed until attach(). */
    streamLink_t(QString const& description, QObject* parent);

    /** The device is open now, or is no longer; what is half read is forgotten. */
    void attach(QIODevice* device);
    void detach();
    void setDescription(QString const& description);

private:
    void read();
    void takeBuffer();
    void takeLine(QByteArray const& line);
    void ignore(QString const& reason, QByteArray const& line);

    QString m_description;
    QPointer<QIODevice> m_device;
    bool m_attached;
    QByteArray m_buffer;
    bool m_skipping; //!< in a line that is too long, up to its end
    int m_ignoredLines;
};

} // namespace melvox_link

#endif
