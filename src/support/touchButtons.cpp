#include "support/touchButtons.h"

#include "support/pageSupport.h"

#include <QAbstractButton>
#include <QDialogButtonBox>

namespace brel_common_qt_gui
{

void enlargeButtons(QDialogButtonBox* box)
{
    QList<QAbstractButton*> const buttons = box->buttons();
    for (int i = 0; i < buttons.size(); ++i)
        buttons.at(i)->setMinimumHeight(TOUCH_HEIGHT);
}

} // namespace brel_common_qt_gui
