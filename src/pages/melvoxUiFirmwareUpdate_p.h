#ifndef MELVOX_UI_FIRMWARE_UPDATE_P_H
#define MELVOX_UI_FIRMWARE_UPDATE_P_H

#include "melvox_ui/melvoxUiFirmwareUpdate.h"

#include "brel_common_qt/remoteDevice.h"

#include "ui_melvoxUiFirmwareUpdate.h"

#include <QTreeWidgetItem>

namespace brel_common_qt_gui
{

class dialogPage_t;
class melvoxUiFirmwarePackage_t;
class melvoxUiFirmwareSelector_t;
class melvoxUiFirmwareVersionDisplay_t;

/** A component of the package, which the operator can leave out. */
class MELVOX_UI_HIDDEN melvoxUiFirmwareUpdate_t::packageItem_t : public QTreeWidgetItem
{
public:
    packageItem_t(brel_common_qt::melvoxFirmwareScanRecord_t const& record, QString const& path_);
    virtual ~packageItem_t();

    void toggleUpdateEnabled();

    bool updateEnabled;
    unsigned int fileIndex;
    brel_common_qt::melvoxFirmwareComponent_t component;
    std::string path; //!< of the file that holds this component alone; empty in a combined package
};

/** How far one component has come. */
class MELVOX_UI_HIDDEN melvoxUiFirmwareUpdate_t::statusItem_t : public QTreeWidgetItem
{
public:
    explicit statusItem_t(packageItem_t const& package);
    virtual ~statusItem_t();

    void setStatus(brel_common_qt::melvoxFirmwareUpdateStatus_t status);

    brel_common_qt::melvoxFirmwareComponent_t component;
};

/** Holds the lock in place of a page that was destroyed while its update runs, and gives it back with the outcome. */
class orphanedLock_t : public QObject
{
    Q_OBJECT

public:
    explicit orphanedLock_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~orphanedLock_t();

private slots:
    void updatePortLockState(brel_common_qt::portLock_t state);
    void updateFirmwareUpdateState(brel_common_qt::firmwareUpdateState_t state);

private:
    brel_common_qt::remotePort_t* m_port;
};

struct MELVOX_UI_HIDDEN melvoxUiFirmwareUpdate_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);
    ~privateData_t();

    bool isCombined() const;

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiFirmwareUpdate ui;
    melvoxUiFirmwareVersionDisplay_t* versionDisplay; //!< the page's child
    melvoxUiFirmwareSelector_t* selector;             //!< the page's child
    melvoxUiFirmwarePackage_t* package;               //!< owned; null until one was chosen
    bool disabled;
    bool lockPending; //!< from the request for the lock until the update has ended
    bool started;     //!< whether the receiver was asked to update since the lock was asked for
    int productCode;
    QPushButton* startButton;
    QPushButton* toggleButton;
    dialogPage_t* successDialog;
    dialogPage_t* failureDialog;
};

} // namespace brel_common_qt_gui

#endif
