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

bool link_t::line(line_t&) const
{
    return false;
}

void link_t::setLine(line_t const&)
{
}

void link_t::setCut(bool)
{
}

QString lineText(line_t const& line)
{
    return QString("%1 %2%3%4").arg(line.baud).arg(line.dataBits).arg(QChar(line.parity)).arg(line.stopBits);
}

} // namespace melvox_link
