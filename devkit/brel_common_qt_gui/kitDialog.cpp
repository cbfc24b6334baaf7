#include "brel_common_qt_gui/kitDialog.h"

#include "brel_common_qt_gui/dialogPage.h"
#include "brel_common_qt_gui/touch.h"

#include <QAbstractButton>
#include <QMessageBox>

namespace melvox_kit
{

void showDialog(QDialog* dialog)
{
    if (brel_common_qt_gui::dialogHost_t* host = brel_common_qt_gui::dialogPage_t::host())
    {
        host->showDialog(dialog);
        return;
    }
    // A dialog that is on the screen keeps the modality it came with.
    if (!dialog->isVisible())
        dialog->setWindowModality(Qt::WindowModal);
    dialog->show();
    dialog->activateWindow();
}

void showOnce(QDialog* dialog)
{
    // For a host that gives it back unfinished: nobody else knows of it.
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(dialog, SIGNAL(finished(int)), dialog, SLOT(deleteLater()));
    showDialog(dialog);
}

void enlargeButtons(QMessageBox* box)
{
    QList<QAbstractButton*> const buttons = box->buttons();
    for (int i = 0; i < buttons.size(); ++i)
        buttons.at(i)->setMinimumHeight(TOUCH_HEIGHT);
}

} // namespace melvox_kit
