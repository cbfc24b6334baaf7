#ifndef MELVOX_UI_USB_FIRMWARE_SELECT_DIALOG_H
#define MELVOX_UI_USB_FIRMWARE_SELECT_DIALOG_H

#include "melvox_ui/melvoxUiExport.h"

#include <QDialog>

namespace brel_common_qt_gui
{

class melvoxUiFirmwarePackage_t;

/** Lets the operator choose one of the firmware packages on a USB drive, which are listed as a scan finds them: files
 *  that hold two components or more, and directories of firmware files. Nothing can be chosen while the scan runs.
 *  One dialog serves for any number of scans. Needs no receiver. */
class MELVOX_UI_EXPORT melvoxUiUsbFirmwareSelectDialog_t : public QDialog
{
    Q_OBJECT

public:
    explicit melvoxUiUsbFirmwareSelectDialog_t(QWidget* parent);
    ~melvoxUiUsbFirmwareSelectDialog_t();

    /** The package chosen last, the caller's from now on; null when there is none or it was taken. */
    melvoxUiFirmwarePackage_t* takePackage();

public slots:
    /** Looks through a drive; to be called before the dialog is shown. Dropped while a scan runs. Components made for
     *  the preferred product come first in their packages. */
    void scan(QString const& mountPoint, int preferredProduct);

    void checkSelection();
    void checkScanState();
    void selectPackage();
    void handleFilesReceived();
    void updatePackageCount();

signals:
    /** A package was chosen and is ready to be taken; the dialog closes. */
    void packageSelected();

private:
    Q_DISABLE_COPY(melvoxUiUsbFirmwareSelectDialog_t)

    class scanner_t;
    class item_t;
    struct privateData_t;

    void addItem(melvoxUiFirmwarePackage_t* package);

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
