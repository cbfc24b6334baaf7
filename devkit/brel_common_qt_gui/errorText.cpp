#include "brel_common_qt_gui/errorText.h"

#include "brel_common_qt_gui/dialogPage.h"
#include "brel_common_qt_gui/kitDialog.h"

#include <QApplication>
#include <QMessageBox>

namespace brel_common_qt_gui
{

QString const errorText_t::defaultTitle("Invalid Settings");

void errorText_t::report()
{
    flush();
    if (isEmpty())
        return;
    // On a host's screen the box stands for itself; as a window it belongs to the one that the operator works in.
    QWidget* const window = dialogPage_t::host() ? nullptr : QApplication::activeWindow();
    QMessageBox* const box = new QMessageBox(
        QMessageBox::Warning, m_customTitle.isEmpty() ? defaultTitle : m_customTitle, m_text, QMessageBox::Ok, window);
    box->setObjectName(QLatin1String("errorReport"));
    box->setTextFormat(Qt::PlainText);
    melvox_kit::enlargeButtons(box);
    melvox_kit::showOnce(box);
}

} // namespace brel_common_qt_gui
