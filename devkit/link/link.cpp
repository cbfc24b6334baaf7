#include "link/link.h"

namespace melvox_link
{

link_t::link_t(QObject* parent) : QObject(parent)
{
    // For queued connections and signal spies.
    qRegisterMetaType<message_t>("melvox_link::message_t");
}

link_t::~link_t()
{
}

} // namespace melvox_link
