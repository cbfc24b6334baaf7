#ifndef MELVOX_UI_PORT_CONFIGURATION_H
#define MELVOX_UI_PORT_CONFIGURATION_H

#include "melvox_ui/melvoxUiExport.h"

#include "brel_common_qt/melvoxPort.h"
#include "brel_common_qt/melvoxPortConfig.h"

#include <QWidget>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

/** The receiver's serial ports with their line settings, its Ethernet virtual ports with their network settings, each
 *  with a dialog to change one, and the use of its USB port. Rows appear as the receiver tells of ports. When the
 *  display's own link turns out to be too slow, the page speeds it up and says so. The receiver must outlive the page.
 *  The USB mode lives as told at melvoxUiSolutionControl_t. */
class MELVOX_UI_EXPORT melvoxUiPortConfiguration_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiPortConfiguration_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiPortConfiguration_t();

public slots:
    void submit();
    void reset();
    void query();

    void updateActivePort();
    void updateUsbMode();
    void resetUsbMode();
    void submitUsbMode();

    /** Shows the port with these line settings, and with the serial mode that comes with its number. */
    void updatePhysicalConfig(brel_common_qt::melvoxPort_t port,
                              brel_common_qt::melvoxSerialPortConfig_t const& config);
    void updatePhysicalConfig(brel_common_qt::melvoxPort_t port, bool rs232);
    void handleBadBaud();

    void checkSelectedPort();
    void checkSelectedPhysicalPort();
    void checkSelectedVirtualPort();
    void configureSelectedPort();
    void configureSelectedPhysicalPort();
    void configureSelectedVirtualPort();
    void updateVirtualConfig(brel_common_qt::melvoxPort_t port, brel_common_qt::melvoxVcomConfig_t const& config);
    void showPhysicalPage();
    void showVirtualPage();

private:
    Q_DISABLE_COPY(melvoxUiPortConfiguration_t)

    class physicalItem_t;
    class virtualItem_t;
    struct privateData_t;

    void createButtons();
    void createDialogs();
    void connectWidgets();
    void connectReceiver();
    physicalItem_t* physicalItem(brel_common_qt::melvoxPort_t port);
    void showBadBaud(unsigned int baud);

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
