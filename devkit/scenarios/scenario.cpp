#include "scenarios/scenario.h"

#include "receiver/settingsTable.h"

namespace melvox_scenarios
{

namespace
{

unsigned int const FIRST_USB_PORT = 4;

} // namespace

QStringList linkKinds()
{
    return {"serial", "tcp", "other"};
}

QString usualLinkKind(unsigned int port)
{
    if (port < FIRST_USB_PORT)
        return "serial";
    return port < melvox_receiver::NUM_PHYSICAL_PORTS ? "other" : "tcp";
}

QStringList portNames()
{
    return {"COM1", "COM2", "COM3", "COM4", "USB1", "USB2", "ETH1",
            "ETH2", "ETH3", "ETH4", "ETH5", "ETH6", "ETH7", "ETH8"};
}

} // namespace melvox_scenarios
