#ifndef BREL_COMMON_QT_GUI_USB_DRIVE_SELECT_DIALOG_H
#define BREL_COMMON_QT_GUI_USB_DRIVE_SELECT_DIALOG_H

#include "brel_common_qt/usbDriveManager.h"
#include "brel_common_qt_gui/brelCommonQtGuiExport.h"

#include <QDialog>

namespace brel_common_qt_gui
{

/** Lets the operator choose one of the unit's USB drives. The list follows drives as they come and go. */
class BREL_COMMON_QT_GUI_EXPORT usbDriveSelectDialog_t : public QDialog
{
    Q_OBJECT

public:
    /** Without the manager, or once it is gone, no drives are listed. */
    usbDriveSelectDialog_t(brel_common_qt::usbDriveManager_t* manager, QWidget* parent);
    ~usbDriveSelectDialog_t();

signals:
    /** A drive was chosen; the dialog was accepted. */
    void driveSelected(brel_common_qt::usbDrive_t const& drive);

private slots:
    void updateDrives();
    void checkSelection();
    void selectDrive();

private:
    Q_DISABLE_COPY(usbDriveSelectDialog_t)

    QWidget* createList();
    QWidget* createButtons();
    int selectedRow() const; //!< -1: none

    struct privateData_t;
    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
