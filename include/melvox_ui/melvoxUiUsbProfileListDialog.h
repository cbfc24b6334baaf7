#ifndef MELVOX_UI_USB_PROFILE_LIST_DIALOG_H
#define MELVOX_UI_USB_PROFILE_LIST_DIALOG_H

#include "melvox_ui/melvoxUiExport.h"

#include <QDialog>

namespace brel_common_qt_gui
{

/** Lets the operator choose one of the settings profiles on a USB drive, which are listed as a scan finds them: files
 *  named "profile*.melvox", in upper or lower case. Nothing can be chosen while the scan runs. One dialog serves for
 *  any number of scans. Needs no receiver. */
class MELVOX_UI_EXPORT melvoxUiUsbProfileListDialog_t : public QDialog
{
    Q_OBJECT

public:
    explicit melvoxUiUsbProfileListDialog_t(QWidget* parent);
    ~melvoxUiUsbProfileListDialog_t();

public slots:
    /** Looks through a drive; to be called before the dialog is shown. Dropped while a scan runs. */
    void scan(QString const& mountPoint);

    void checkSelection();
    void checkScanState();
    void selectFile();
    void handleFilesReceived();

signals:
    /** A profile was chosen; the dialog closes. */
    void fileSelected(QString const& path);

private:
    Q_DISABLE_COPY(melvoxUiUsbProfileListDialog_t)

    class scanner_t;
    class item_t;
    struct privateData_t;

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
