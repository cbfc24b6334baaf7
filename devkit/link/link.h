#ifndef MELVOX_LINK_LINK_H
#define MELVOX_LINK_LINK_H

#include "link/message.h"

#include <QObject>
#include <QString>

namespace melvox_link
{

/** Line settings of a serial link. */
struct line_t
{
    unsigned int baud;
    int dataBits;
    char parity; //!< 'N', 'O' or 'E'
    int stopBits;
};

/** "115200 8N1". */
QString lineText(line_t const& line);

/** One end of a way to the other side. The display's end carries requests and commands away and reports and events
 *  in; the receiver's end the other way round. */
class link_t : public QObject
{
    Q_OBJECT

public:
    explicit link_t(QObject* parent = 0);
    ~link_t();

    virtual bool isOpen() const = 0;

    /** What a person would call the other side: "simulated receiver", "tcp:192.168.0.7:5000". */
    virtual QString description() const = 0;

    /** Messages sent while the link is not open are lost. Never delivers inside the call. */
    virtual void send(melvox_link::message_t const& message) = 0;

    /** The line settings of a serial link; false for any other. */
    virtual bool line(melvox_link::line_t& line) const;
    /** Takes effect once what was sent before has gone out. Nothing happens on a link that is not serial. */
    virtual void setLine(melvox_link::line_t const& line);

    /** Cuts the way, as when a cable is pulled, or joins it again. What is under way is lost. Ways that cannot be joined
     *  from this side are found again by the other one. Nothing happens on a link that cannot be cut. */
    virtual void setCut(bool cut);

signals:
    void received(melvox_link::message_t const& message);
    void openChanged(bool open);

private:
    Q_DISABLE_COPY(link_t)
};

} // namespace melvox_link

#endif
