#include "support/dialogButtons.h"

#include "support/pageSupport.h"

#include <QAbstractButton>
#include <QDialog>
#include <QDialogButtonBox>

namespace brel_common_qt_gui
{

void enlargeButtons(QDialogButtonBox* box)
{
    QList<QAbstractButton*> const buttons = box->buttons();
    for (QAbstractButton* button : buttons)
        button->setMinimumHeight(TOUCH_HEIGHT);
}

void connectDialogButtons(QDialogButtonBox* box, QDialog* dialog, char const* acceptSlot)
{
    QObject::connect(box, SIGNAL(accepted()), dialog, acceptSlot);
    QObject::connect(box, SIGNAL(rejected()), dialog, SLOT(reject()));
    enlargeButtons(box);
}

} // namespace brel_common_qt_gui
