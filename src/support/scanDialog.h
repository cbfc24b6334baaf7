#ifndef MELVOX_UI_SCAN_DIALOG_H
#define MELVOX_UI_SCAN_DIALOG_H

#include "support/treeRows.h"

class QDialog;
class QDialogButtonBox;
class QPushButton;

namespace brel_common_qt
{
class fileScanner_t;
}

/** What the dialogs that list files of a drive do alike. */
namespace brel_common_qt_gui
{

/** The parts of such a dialog that are wired together. */
struct scanDialog_t
{
    QDialog* dialog; //!< has the slots checkSelection(), checkScanState() and handleFilesReceived()
    brel_common_qt::fileScanner_t* scanner;
    QTreeWidget* tree;
    QDialogButtonBox* buttonBox;
    QPushButton* stopButton;
    QPushButton* selectButton;
};

/** Cancelling the dialog also stops its scan. */
void connectScanDialog(scanDialog_t const& parts, char const* selectSlot);

/** A scan can be stopped while it runs. */
void showScanState(scanDialog_t const& parts);

/** Nothing can be chosen while the scan runs. */
void showSelection(scanDialog_t const& parts);

} // namespace brel_common_qt_gui

#endif
