#ifndef MELVOX_UI_PORT_CONFIGURATION_P_H
#define MELVOX_UI_PORT_CONFIGURATION_P_H

#include "melvox_ui/melvoxUiPortConfiguration.h"

#include "brel_common_qt_gui/dialogPage.h"
#include "melvox_ui/melvoxUiPhysicalPortConfigDialog.h"
#include "melvox_ui/melvoxUiVirtualPortConfigDialog.h"
#include "ui_melvoxUiPortConfiguration.h"

#include <QBitArray>
#include <QTreeWidgetItem>

namespace brel_common_qt_gui
{

/** The row of one serial port. */
class MELVOX_UI_HIDDEN melvoxUiPortConfiguration_t::physicalItem_t : public QTreeWidgetItem
{
public:
    physicalItem_t(brel_common_qt::melvoxPort_t port, bool isActivePort);

    brel_common_qt::melvoxPort_t port() const;
    brel_common_qt::melvoxSerialPortConfig_t const& config() const;
    void setConfig(brel_common_qt::melvoxSerialPortConfig_t const& config);
    bool rs232Mode() const;
    void setRs232Mode(bool rs232);

private:
    enum column_t
    {
        COLUMN_NAME,
        COLUMN_BAUD_RATE,
        COLUMN_DATA_BITS,
        COLUMN_PARITY,
        COLUMN_STOP_BITS,
        COLUMN_SERIAL_MODE,
        COLUMN_DEVICE
    };

    brel_common_qt::melvoxPort_t m_port;
    brel_common_qt::melvoxSerialPortConfig_t m_config;
    bool m_rs232;
};

/** The row of one Ethernet virtual port. */
class MELVOX_UI_HIDDEN melvoxUiPortConfiguration_t::virtualItem_t : public QTreeWidgetItem
{
public:
    virtualItem_t(brel_common_qt::melvoxPort_t port, bool isActivePort);

    brel_common_qt::melvoxPort_t port() const;
    brel_common_qt::melvoxVcomConfig_t const& config() const;
    void setConfig(brel_common_qt::melvoxVcomConfig_t const& config);

    static QString modeString(brel_common_qt::melvoxVcomMode_t mode);

private:
    enum column_t
    {
        COLUMN_NAME,
        COLUMN_ENABLED,
        COLUMN_MODE,
        COLUMN_REMOTE_ADDRESS,
        COLUMN_REMOTE_PORT,
        COLUMN_LOCAL_PORT,
        COLUMN_DEVICE
    };

    brel_common_qt::melvoxPort_t m_port;
    brel_common_qt::melvoxVcomConfig_t m_config;
};

struct MELVOX_UI_HIDDEN melvoxUiPortConfiguration_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);
    ~privateData_t();

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiPortConfiguration ui;
    QBitArray setUi;
    brel_common_qt::melvoxPort_t activePort;
    QPushButton* configureButton;
    QPushButton* physicalButton;
    QPushButton* virtualButton;
    dialogPage_t* badBaudDialogPage; //!< owned; null before the first time
    melvoxUiPhysicalPortConfigDialog_t* physicalConfigDialog;
    dialogPage_t* physicalConfigDialogPage; //!< owned
    melvoxUiVirtualPortConfigDialog_t* virtualConfigDialog;
    dialogPage_t* virtualConfigDialogPage; //!< owned
};

} // namespace brel_common_qt_gui

#endif
