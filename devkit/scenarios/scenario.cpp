#include "scenarios/scenario.h"

#include "receiver/settingsTable.h"

namespace melvox_scenarios
{

QStringList linkKinds()
{
    return {"serial", "tcp", "other"};
}

QString usualLinkKind(unsigned int port)
{
    if (port < melvox_receiver::FIRST_USB_PORT)
        return "serial";
    return port < melvox_receiver::FIRST_VIRTUAL_PORT ? "other" : "tcp";
}

QStringList portNames()
{
    return {"COM1", "COM2", "COM3", "COM4", "USB1", "USB2", "ETH1",
            "ETH2", "ETH3", "ETH4", "ETH5", "ETH6", "ETH7", "ETH8"};
}

} // namespace melvox_scenarios
