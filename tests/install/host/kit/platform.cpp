#include "../platform.h"

#include <brel_common_qt/kitPort.h>
#include <link/scriptedLink.h>

namespace
{

melvox_link::scriptedLink_t* receiver()
{
    static melvox_link::scriptedLink_t link;
    return &link;
}

} // namespace

brel_common_qt::remotePort_t* host::createPort()
{
    return melvox_kit::createPort(receiver(), melvox_kit::LINK_OTHER);
}

void host::tellElevationMask(brel_common_qt::remoteMelvoxDevice_t*, double degrees)
{
    receiver()->report("elevationMask", degrees);
}
