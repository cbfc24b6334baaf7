#include "support/touchButtons.h"

#include "support/pageSupport.h"
#include "support/test.h"

#include <QDialogButtonBox>
#include <QPushButton>

using namespace brel_common_qt_gui;

class tst_touchButtons : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void makesEveryButtonLargeEnoughForAFinger();
};

void tst_touchButtons::makesEveryButtonLargeEnoughForAFinger()
{
    QDialogButtonBox box(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    box.addButton("More", QDialogButtonBox::ActionRole);
    enlargeButtons(&box);
    QCOMPARE(box.buttons().size(), 3);
    for (QAbstractButton const* button : box.buttons())
        QCOMPARE(button->minimumHeight(), TOUCH_HEIGHT);
}

QTEST_MAIN(tst_touchButtons)
#include "tst_touchButtons.moc"
