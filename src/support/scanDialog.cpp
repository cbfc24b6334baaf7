#include "support/scanDialog.h"

#include "brel_common_qt/fileScanner.h"
#include "support/pageSupport.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

namespace brel_common_qt_gui
{

void connectScanDialog(scanDialog_t const& parts, char const* selectSlot)
{
    QDialog* const dialog = parts.dialog;
    QObject::connect(parts.tree, SIGNAL(itemSelectionChanged()), dialog, SLOT(checkSelection()));
    QObject::connect(parts.stopButton, SIGNAL(clicked()), parts.scanner, SLOT(cancelScan()));
    QObject::connect(parts.selectButton, SIGNAL(clicked()), dialog, selectSlot);
    QObject::connect(parts.buttonBox, SIGNAL(rejected()), dialog, SLOT(reject()));
    QObject::connect(parts.buttonBox, SIGNAL(rejected()), parts.scanner, SLOT(cancelScan()));
    QObject::connect(parts.scanner, SIGNAL(scanStarted()), dialog, SLOT(checkScanState()));
    QObject::connect(parts.scanner, SIGNAL(scanFinished()), dialog, SLOT(checkScanState()));
    QObject::connect(parts.scanner, SIGNAL(filesReceived()), dialog, SLOT(handleFilesReceived()));
    parts.buttonBox->button(QDialogButtonBox::Cancel)->setMinimumHeight(TOUCH_HEIGHT);
    // None of them stands out: what there is to do here is to choose from the list.
    for (QAbstractButton* button : parts.buttonBox->buttons())
        static_cast<QPushButton*>(button)->setAutoDefault(false);
    parts.tree->sortByColumn(0, Qt::AscendingOrder);
}

void showScanState(scanDialog_t const& parts)
{
    parts.stopButton->setEnabled(parts.scanner->isScanning());
}

void showSelection(scanDialog_t const& parts)
{
    parts.selectButton->setEnabled(!parts.scanner->isScanning() && !parts.tree->selectedItems().isEmpty());
}

} // namespace brel_common_qt_gui
