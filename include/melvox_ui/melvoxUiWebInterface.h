#ifndef MELVOX_UI_WEB_INTERFACE_H
#define MELVOX_UI_WEB_INTERFACE_H

#include "melvox_ui/melvoxUiExport.h"

#include <QWidget>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
struct usbDrive_t;
} // namespace brel_common_qt

namespace brel_common_qt_gui
{

/** The receiver's web interface: whether it is on, which can be changed over a physical port only, and the upload of a
 *  new package for it, from a USB drive where the unit has a USB drive manager when this is made, from a file dialog
 *  otherwise. The receiver proxy carries the upload out; the page shows its state. The receiver must outlive the page. */
class MELVOX_UI_EXPORT melvoxUiWebInterface_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiWebInterface_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiWebInterface_t();

public slots:
    void apply();
    void reset();
    void query();

    void updateActivePort();
    void updateWebControl();

    void handleDriveSelected(brel_common_qt::usbDrive_t const& drive);
    void startUpload(QString const& path);
    /** 0 to 1. */
    void setUploadPercent(double fraction);
    /** What can be pressed while an upload runs, or does not. */
    void setUploadEnabled(bool uploading);
    void updateUploadState();
    void showFileDialog();
    void selectUploadPackage();

private:
    Q_DISABLE_COPY(melvoxUiWebInterface_t)

    struct privateData_t;

    void createButtons();
    void createDialogs();
    void connectReceiver();

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
