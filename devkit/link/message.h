#ifndef MELVOX_LINK_MESSAGE_H
#define MELVOX_LINK_MESSAGE_H

#include <QMetaType>
#include <QString>
#include <QVariant>

namespace melvox_link
{

/** What passes between the proxy and a receiver. */
struct message_t
{
    enum kind_t
    {
        REQUEST, //!< display to receiver: report this group
        COMMAND, //!< display to receiver: take this value, or do this
        REPORT,  //!< receiver to display: this is the group's value now
        EVENT    //!< receiver to display: this happened
    };

    message_t() : kind(EVENT) {}
    message_t(kind_t kind_, QString const& group_, QVariant const& value_ = QVariant())
        : kind(kind_), group(group_), value(value_)
    {
    }

    kind_t kind;
    QString group;
    /** Plain values only: bool, int, uint, double, QString, QByteArray, and lists and maps of them. */
    QVariant value;
};

/** "request", "command", "report", "event". */
QString kindName(message_t::kind_t kind);
bool kindFromName(QString const& name, message_t::kind_t& kind);

/** One line for people: "elevationMask 12.5", "ntripPPP mode=1 protocol=0", "measUse [name=GPS use=true] [...]". */
QString toText(message_t const& message);

} // namespace melvox_link

Q_DECLARE_METATYPE(melvox_link::message_t)

#endif
