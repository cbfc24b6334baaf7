#ifndef MELVOX_UI_USB_PROFILE_LIST_DIALOG_P_H
#define MELVOX_UI_USB_PROFILE_LIST_DIALOG_P_H

#include "melvox_ui/melvoxUiUsbProfileListDialog.h"

#include "brel_common_qt/fileScanner.h"
#include "support/scanDialog.h"
#include "ui_melvoxUiUsbProfileListDialog.h"

#include <QTreeWidgetItem>

namespace brel_common_qt_gui
{

class MELVOX_UI_HIDDEN melvoxUiUsbProfileListDialog_t::scanner_t : public brel_common_qt::fileScanner_t
{
public:
    explicit scanner_t(QObject* parent);
    ~scanner_t();

protected:
    bool filter(QFileInfo const& fileInfo) override;
};

class MELVOX_UI_HIDDEN melvoxUiUsbProfileListDialog_t::item_t : public QTreeWidgetItem
{
public:
    explicit item_t(QFileInfo const& fileInfo);

    QString path; //!< with all its directories
};

struct MELVOX_UI_HIDDEN melvoxUiUsbProfileListDialog_t::privateData_t
{
    Ui_melvoxUiUsbProfileListDialog ui;
    scanner_t* scanner; //!< the dialog's child
    QPushButton* stopButton;
    QPushButton* selectButton;

    scanDialog_t parts(QDialog* dialog) const;
};

} // namespace brel_common_qt_gui

#endif
