#ifndef MELVOX_UI_PROFILE_LOADER_H
#define MELVOX_UI_PROFILE_LOADER_H

#include "brel_common_qt/remoteDevice.h"
#include "melvox_ui/melvoxUiExport.h"

#include <QObject>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
struct usbDrive_t;
} // namespace brel_common_qt

namespace brel_common_qt_gui
{

/** Streams a profile file to the receiver: one from a USB drive where the unit has a USB drive manager when this is made,
 *  one from a file dialog otherwise. A dialog shows how it goes and lets the operator cancel. The receiver must live as
 *  long.
 *
 *  The port's lock PORT_LOCK_FRAMEWORK is held meanwhile and given back however the load ends. One block of at most
 *  1024 bytes is under way at a time; the next one is read when the port has answered. */
class MELVOX_UI_EXPORT melvoxUiProfileLoader_t : public QObject
{
    Q_OBJECT

public:
    melvoxUiProfileLoader_t(brel_common_qt::remoteMelvoxDevice_t* device, QObject* parent);
    ~melvoxUiProfileLoader_t();

    /** For a host whose operator went elsewhere and comes back. */
    bool isLoading() const;
    void showProgress();

public slots:
    /** The way in, for whatever control the host gives the operator. Returns at once. */
    void loadProfile();
    void driveSelected(brel_common_qt::usbDrive_t const& drive);
    /** Ignored while a load runs. */
    void fileSelected(QString const& path);
    void handleLockState(brel_common_qt::portLock_t lockState);
    void handleUploadResult(brel_common_qt::uploadStatus_t status);
    void cancelLoad();
    void showFileDialog();

private:
    Q_DISABLE_COPY(melvoxUiProfileLoader_t)

    struct privateData_t;

    void createDialogs();
    void createUsbDialogs();
    void uploadBlock();
    void endWithLock(QString const& status);
    void finishUpload();

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
