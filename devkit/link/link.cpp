#include "link/link.h"

namespace melvox_link
{

link_t::link_t(QObject* parent) : QObject(parent)
{
}

link_t::~link_t()
{
}

} // namespace melvox_link
