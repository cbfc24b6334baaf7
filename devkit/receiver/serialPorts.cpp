#include "receiver/serialPorts.h"

namespace melvox_receiver
{

namespace
{

char const PARITIES[] = {'N', 'O', 'E'};

melvox_link::line_t lineOf(QVariantMap const& config)
{
    melvox_link::line_t line;
    line.baud = config.value("baud").toUInt();
    line.dataBits = config.value("charSize").toInt() == 0 ? 7 : 8;
    line.parity = PARITIES[config.value("parity").toInt()];
    line.stopBits = config.value("stopBits").toInt() == 0 ? 1 : 2;
    return line;
}

} // namespace

serialPorts_t::serialPorts_t(receiver_t& owner) : behaviour_t(owner)
{
}

/** The port runs as the line does over which somebody has come. */
void serialPorts_t::linkAttached(link_t* link)
{
    melvox_link::line_t line;
    unsigned int const port = receiver.activePort(link);
    if (!link->line(line) || port >= NUM_PHYSICAL_PORTS)
        return;
    receiver.set("serialConfig", QVariantMap{{"port", port},
                                             {"baud", line.baud},
                                             {"charSize", line.dataBits == 7 ? 0 : 1},
                                             {"parity", line.parity == 'O'   ? 1
                                                        : line.parity == 'E' ? 2
                                                                             : 0},
                                             {"stopBits", line.stopBits == 2 ? 1 : 0}});
}

/** The report of the change went out before at the old settings: the display learns of it, then follows. */
void serialPorts_t::settingChanged(QString const& group)
{
    if (group != "serialConfig")
        return;
    QVariantList const configs = receiver.setting(group).toList();
    for (link_t* link : receiver.links())
    {
        melvox_link::line_t now;
        unsigned int const port = receiver.activePort(link);
        if (!link->line(now) || port >= NUM_PHYSICAL_PORTS)
            continue;
        melvox_link::line_t const wanted = lineOf(configs.value(int(port)).toMap());
        if (melvox_link::lineText(now) != melvox_link::lineText(wanted))
            link->setLine(wanted);
    }
}

} // namespace melvox_receiver
