#ifndef MELVOX_PROXYCHECK_ADAPTER_H
#define MELVOX_PROXYCHECK_ADAPTER_H

#include "brel_common_qt/remoteMelvoxDevice.h"

#include <QList>
#include <QString>
#include <QVariant>

namespace melvox_proxycheck
{

/** Something that passes between a proxy and its receiver. Groups and the form of their values are those of
 *  devkit/link/README.md: "elevationMask" 12.5, "ntripPPP" {mode: 1, protocol: 0}. */
struct message_t
{
    QString group;
    QVariant value; //!< bool, numbers, QString, QByteArray, and QVariantList and QVariantMap of them
};

/** What the author of a proxy writes so that his proxy can be checked: a receiver that says what the check wants it to
 *  say, and the proxy on it. It says nothing by itself and answers nothing: neither requests nor orders. */
class adapter_t
{
public:
    virtual ~adapter_t() {}

    /** A new proxy on an open link, nothing known yet. The check deletes it, then asks for the next one. */
    virtual brel_common_qt::remoteMelvoxDevice_t* createDevice() = 0;

    /** The receiver says these, one right after the other. Whether they reach the proxy before this returns, or later
     *  through the event loop, is the same to the check. An adapter whose receiver tells of a list in one piece makes
     *  that piece of them. */
    virtual void say(QList<melvox_proxycheck::message_t> const& messages) = 0;

    /** False for a group that this receiver or this adapter does not have: it is named as not checked. The names are
     *  those that --list prints. */
    virtual bool supports(QString const& group) const
    {
        Q_UNUSED(group);
        return true;
    }

    /** All that the receiver was sent since the last createDevice(), in order; requests have no value. False when the
     *  adapter cannot tell: what arrives of requests and orders is not checked then. */
    virtual bool heard(QList<melvox_proxycheck::message_t>& messages) const
    {
        Q_UNUSED(messages);
        return false;
    }
};

/** Defined by the author, beside his adapter. The caller owns what it returns. */
adapter_t* createAdapter();

} // namespace melvox_proxycheck

#endif
