#ifndef BREL_COMMON_QT_MELVOX_NETWORK_H
#define BREL_COMMON_QT_MELVOX_NETWORK_H

#include <QMetaType>

/** The receiver's Ethernet interfaces and its web interface. */
namespace brel_common_qt
{

enum melvoxEthernetConfigSource_t : int
{
    MELVOX_ETH_CFG_SOURCE_CABLE = 0,
    MELVOX_ETH_CFG_SOURCE_WIFI = 1,
    MELVOX_NUM_ETH_CFG_SOURCES = 2,
    MELVOX_ETH_CFG_SOURCE_UNKNOWN = 2
};

/** IPv4 addresses; the first byte as written is the most significant. */
struct ethernetConfig_t
{
    unsigned int ipAddress;
    unsigned int netmask;
    unsigned int gateway;
    unsigned int dns1;
    unsigned int dns2;
};

enum melvoxWebUiUploadState_t : int
{
    MELVOX_WEB_UI_UPLOAD_ERROR = 0,
    MELVOX_WEB_UI_UPLOAD_IN_PROGRESS = 1,
    MELVOX_WEB_UI_UPLOAD_COMPLETE = 2
};

} // namespace brel_common_qt

Q_DECLARE_METATYPE(brel_common_qt::ethernetConfig_t)

#endif
