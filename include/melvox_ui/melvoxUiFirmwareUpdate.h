#ifndef MELVOX_UI_FIRMWARE_UPDATE_H
#define MELVOX_UI_FIRMWARE_UPDATE_H

#include "brel_common_qt/melvoxFirmware.h"
#include "brel_common_qt/remoteDevice.h"
#include "melvox_ui/melvoxUiExport.h"

#include <QList>
#include <QWidget>

#include <string>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

/** Loads new firmware into the receiver: a package is chosen, its components are switched on or off, and the update runs
 *  while its progress is shown. Disabled until the display is known to reach the receiver over a serial or USB port, or
 *  over an Ethernet port by TCP. The receiver must outlive the page.
 *
 *  The receiver proxy carries the update out, also when the page is not shown. The page holds the port's lock
 *  PORT_LOCK_PLUGIN meanwhile, and gives it back with the outcome. Whichever way the operator closes the message about
 *  the outcome, the receiver is restarted. */
class MELVOX_UI_EXPORT melvoxUiFirmwareUpdate_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiFirmwareUpdate_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiFirmwareUpdate_t();

public slots:
    /** Leaves the disabled mode for good as soon as the way to the receiver allows updates. */
    void updateActivePort();
    void updateProductCode();
    /** Starts the update whenever the lock is reported to be the page's while it is wanted. */
    void updatePortLockState(brel_common_qt::portLock_t state);
    void updateFirmwareUpdateState(brel_common_qt::firmwareUpdateState_t state, std::string const& desc);
    /** 0 to 1. */
    void setPercent(double fraction);
    void updateFirmwareProgress(QList<brel_common_qt::melvoxFirmwareUpdateProgress_t> const& components);
    void enterDisabledMode();
    void enterPackageMode();
    void enterStatusMode();
    void checkPackageSelection();
    void checkUpdateReady();
    void selectPackage();
    void enterSelectedPackage();
    /** The first selected component, whichever was double-clicked. */
    void toggleComponent();
    void startUpdate();
    void cyclePower();

private:
    Q_DISABLE_COPY(melvoxUiFirmwareUpdate_t)

    class packageItem_t;
    class statusItem_t;
    struct privateData_t;

    void createButtons();
    void createDialogs();
    void connectForm();
    void connectReceiver();
    void fillPackageTree();
    void endUpdate();
    statusItem_t* findStatusItem(brel_common_qt::melvoxFirmwareComponent_t component) const;
    packageItem_t* selectedPackageItem() const;
    QList<packageItem_t*> enabledItems() const;

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
