#ifndef MELVOX_UI_USB_WEB_UI_SELECT_DIALOG_P_H
#define MELVOX_UI_USB_WEB_UI_SELECT_DIALOG_P_H

#include "melvox_ui/melvoxUiUsbWebUiSelectDialog.h"

#include "brel_common_qt/fileScanner.h"
#include "support/scanDialog.h"
#include "ui_melvoxUiUsbWebUiSelectDialog.h"

#include <QTreeWidgetItem>

namespace brel_common_qt_gui
{

class MELVOX_UI_HIDDEN melvoxUiUsbWebUiSelectDialog_t::scanner_t : public brel_common_qt::fileScanner_t
{
public:
    explicit scanner_t(QObject* parent);
    ~scanner_t();

protected:
    bool filter(QFileInfo const& fileInfo) override;
};

class MELVOX_UI_HIDDEN melvoxUiUsbWebUiSelectDialog_t::item_t : public QTreeWidgetItem
{
public:
    explicit item_t(QFileInfo const& fileInfo);

    QString path; //!< with all its directories
};

struct MELVOX_UI_HIDDEN melvoxUiUsbWebUiSelectDialog_t::privateData_t
{
    Ui_melvoxUiUsbWebUiSelectDialog ui;
    scanner_t* scanner; //!< the dialog's child
    QPushButton* stopButton;
    QPushButton* selectButton;

    scanDialog_t parts(QDialog* dialog) const;
};

} // namespace brel_common_qt_gui

#endif
