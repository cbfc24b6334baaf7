#ifndef BREL_COMMON_QT_MELVOX_PORT_CONFIG_H
#define BREL_COMMON_QT_MELVOX_PORT_CONFIG_H

#include <QMetaType>

/** Line settings of the physical ports, network settings of the virtual ones, use of the USB port. */
namespace brel_common_qt
{

enum charSize_t : int
{
    CHAR_SIZE_7 = 0,
    CHAR_SIZE_8 = 1
};

enum parity_t : int
{
    PARITY_N = 0,
    PARITY_O = 1,
    PARITY_E = 2
};

enum stopBits_t : int
{
    STOP_1 = 0,
    STOP_2 = 1
};

enum flow_t : int
{
    FLOW_NONE = 0,
    FLOW_BREL = 1
};

struct melvoxSerialPortConfig_t
{
    unsigned int baud; //!< bits per second
    charSize_t charSize;
    parity_t parity;
    stopBits_t stopBits;
};

enum melvoxVcomMode_t : int
{
    MODE_UDP_RESTRICT = 0,
    MODE_TCP_REGULAR = 1
};

struct melvoxVcomConfig_t
{
    bool enabled;
    melvoxVcomMode_t mode;
    unsigned int remoteAddress; //!< IPv4, the first byte as written is the most significant
    unsigned short remotePort;
    unsigned short localPort;
};

enum melvoxUsbMode_t : int
{
    MELVOX_USB_MODE_SERIAL_PORT = 0,
    MELVOX_USB_MODE_DRIVE = 1
};

} // namespace brel_common_qt

Q_DECLARE_METATYPE(brel_common_qt::melvoxSerialPortConfig_t)
Q_DECLARE_METATYPE(brel_common_qt::melvoxVcomConfig_t)
Q_DECLARE_METATYPE(brel_common_qt::melvoxUsbMode_t)

#endif
