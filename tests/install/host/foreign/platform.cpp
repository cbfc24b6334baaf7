#include "../platform.h"

#include <brel_common_qt/remoteMelvoxDevice.h>
#include <foreignPort.h>

brel_common_qt::remotePort_t* host::createPort()
{
    return foreign::createPort();
}

void host::tellElevationMask(brel_common_qt::remoteMelvoxDevice_t* device, double degrees)
{
    device->setElevationMask(degrees);
}
