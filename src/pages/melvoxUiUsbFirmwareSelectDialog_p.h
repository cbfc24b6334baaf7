#ifndef MELVOX_UI_USB_FIRMWARE_SELECT_DIALOG_P_H
#define MELVOX_UI_USB_FIRMWARE_SELECT_DIALOG_P_H

#include "melvox_ui/melvoxUiUsbFirmwareSelectDialog.h"

#include "brel_common_qt/fileScanner.h"
#include "melvox_ui/melvoxUiFirmwarePackage.h"
#include "support/scanDialog.h"
#include "ui_melvoxUiUsbFirmwareSelectDialog.h"

#include <QTreeWidgetItem>

namespace brel_common_qt_gui
{

class MELVOX_UI_HIDDEN melvoxUiUsbFirmwareSelectDialog_t::scanner_t : public brel_common_qt::fileScanner_t
{
public:
    explicit scanner_t(QObject* parent);
    ~scanner_t();

    int preferredProduct; //!< changed only while no scan runs

protected:
    bool filter(QFileInfo const& fileInfo) override;
};

class MELVOX_UI_HIDDEN melvoxUiUsbFirmwareSelectDialog_t::item_t : public QTreeWidgetItem
{
public:
    /** Takes the package over. */
    explicit item_t(melvoxUiFirmwarePackage_t* package_);
    ~item_t();

    melvoxUiFirmwarePackage_t* package;

private:
    Q_DISABLE_COPY(item_t)
};

struct MELVOX_UI_HIDDEN melvoxUiUsbFirmwareSelectDialog_t::privateData_t
{
    privateData_t();
    ~privateData_t();

    Ui_melvoxUiUsbFirmwareSelectDialog ui;
    scanner_t* scanner; //!< the dialog's child
    melvoxUiFirmwarePackage_t* package;
    QPushButton* stopButton;
    QPushButton* selectButton;

    scanDialog_t parts(QDialog* dialog) const;
};

} // namespace brel_common_qt_gui

#endif
