#include "support/dialogButtons.h"

#include "support/pageSupport.h"

#include <QAbstractButton>
#include <QDialog>
#include <QDialogButtonBox>
#include <QEvent>
#include <QLayout>

namespace brel_common_qt_gui
{

namespace
{

char const* const TAB_ORDER_NAME = "tabOrderOfButtons";

/** Qt 6 lays out a box of three buttons so that the box itself comes before the last in the order of Tab; as it hands its
 *  focus to the first, Tab never gets to the last. Any layout begins anew, so this waits until the box is shown. */
class tabOrder_t : public QObject
{
public:
    explicit tabOrder_t(QDialogButtonBox* box) : QObject(box) { setObjectName(TAB_ORDER_NAME); }

    bool eventFilter(QObject* box, QEvent* event) override
    {
        if (event->type() == QEvent::Show)
            goRound(static_cast<QWidget*>(box)->layout());
        return QObject::eventFilter(box, event);
    }

private:
    static void goRound(QLayout* layout)
    {
        QWidget* last = 0;
        for (int i = 0; i < 2 * layout->count(); ++i)
        {
            QWidget* const button = layout->itemAt(i % layout->count())->widget();
            if (!button)
                continue;
            if (last && last != button && i >= layout->count())
                QWidget::setTabOrder(last, button);
            last = button;
        }
    }
};

} // namespace

void keepTabOrder(QDialogButtonBox* box)
{
    if (!box->findChild<QObject*>(TAB_ORDER_NAME))
        box->installEventFilter(new tabOrder_t(box));
}

void enlargeButtons(QDialogButtonBox* box)
{
    QList<QAbstractButton*> const buttons = box->buttons();
    for (QAbstractButton* button : buttons)
        button->setMinimumHeight(TOUCH_HEIGHT);
    keepTabOrder(box);
}

void connectDialogButtons(QDialogButtonBox* box, QDialog* dialog, char const* acceptSlot)
{
    QObject::connect(box, SIGNAL(accepted()), dialog, acceptSlot);
    QObject::connect(box, SIGNAL(rejected()), dialog, SLOT(reject()));
    enlargeButtons(box);
}

} // namespace brel_common_qt_gui
