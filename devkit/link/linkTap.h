#ifndef MELVOX_LINK_LINK_TAP_H
#define MELVOX_LINK_LINK_TAP_H

#include "link/link.h"

#include <QPointer>

namespace melvox_link
{

/** A link over another one that tells of every message that passes, for monitors and recorders. The other link stays
 *  the caller's; once it is gone the tap is closed. */
class linkTap_t : public link_t
{
    Q_OBJECT

public:
    explicit linkTap_t(melvox_link::link_t* link, QObject* parent = 0);
    ~linkTap_t();

    bool isOpen() const override;
    QString description() const override;
    void send(melvox_link::message_t const& message) override;
    bool line(melvox_link::line_t& line) const override;
    void setLine(melvox_link::line_t const& line) override;
    void setCut(bool cut) override;

signals:
    /** Comes before the message is handed on. */
    void passed(melvox_link::message_t const& message, bool fromDisplay);

private slots:
    void take(melvox_link::message_t const& message);

private:
    QPointer<link_t> m_link;
};

/** Requests and commands come from a display, reports and events from a receiver. */
bool isFromDisplay(message_t const& message);

} // namespace melvox_link

#endif
