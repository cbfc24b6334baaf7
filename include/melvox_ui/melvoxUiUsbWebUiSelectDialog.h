#ifndef MELVOX_UI_USB_WEB_UI_SELECT_DIALOG_H
#define MELVOX_UI_USB_WEB_UI_SELECT_DIALOG_H

#include "melvox_ui/melvoxUiExport.h"

#include <QDialog>

namespace brel_common_qt_gui
{

/** Lets the operator choose one of the packages for the receiver's web interface on a USB drive, which are listed as a
 *  scan finds them. Nothing can be chosen while the scan runs. One dialog serves for any number of scans. Needs no
 *  receiver. */
class MELVOX_UI_EXPORT melvoxUiUsbWebUiSelectDialog_t : public QDialog
{
    Q_OBJECT

public:
    explicit melvoxUiUsbWebUiSelectDialog_t(QWidget* parent);
    ~melvoxUiUsbWebUiSelectDialog_t();

public slots:
    /** Looks through a drive; to be called before the dialog is shown. Dropped while a scan runs. */
    void scan(QString const& mountPoint);

    void checkSelection();
    void checkScanState();
    void selectPackage();
    void handleFilesReceived();

signals:
    /** A package was chosen; the dialog closes. */
    void packageSelected(QString const& path);

private:
    Q_DISABLE_COPY(melvoxUiUsbWebUiSelectDialog_t)

    class scanner_t;
    class item_t;
    struct privateData_t;

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
