#ifndef HOST_PLATFORM_H
#define HOST_PLATFORM_H

namespace brel_common_qt
{
class remotePort_t;
class remoteMelvoxDevice_t;
} // namespace brel_common_qt

/** What a host needs to know of the libraries that its pages stand on. */
namespace host
{

/** The proxy's from then on. */
brel_common_qt::remotePort_t* createPort();

/** Has the receiver tell this elevation mask. */
void tellElevationMask(brel_common_qt::remoteMelvoxDevice_t* device, double degrees);

} // namespace host

#endif
