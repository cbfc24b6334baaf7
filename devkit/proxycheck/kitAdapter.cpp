#include "brel_common_qt/kitPort.h"
#include "link/scriptedLink.h"
#include "proxycheck/adapter.h"

#include <QScopedPointer>

namespace melvox_proxycheck
{

namespace
{

/** The kit's proxy on a link whose other side is played here. */
class kitAdapter_t : public adapter_t
{
public:
    brel_common_qt::remoteMelvoxDevice_t* createDevice() override
    {
        m_link.reset(new melvox_link::scriptedLink_t);
        return new brel_common_qt::remoteMelvoxDevice_t(melvox_kit::createPort(m_link.data(), melvox_kit::LINK_OTHER));
    }

    void say(QList<message_t> const& messages) override
    {
        for (message_t const& message : messages)
            m_link->report(message.group, message.value);
    }

    bool heard(QList<message_t>& messages) const override
    {
        for (melvox_link::message_t const& sent : m_link->messages())
        {
            message_t const message = {sent.group, sent.value};
            messages << message;
        }
        return true;
    }

private:
    QScopedPointer<melvox_link::scriptedLink_t> m_link;
};

} // namespace

adapter_t* createAdapter()
{
    return new kitAdapter_t;
}

} // namespace melvox_proxycheck
