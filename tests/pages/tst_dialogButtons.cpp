#include "support/dialogButtons.h"
#include "support/test.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

using namespace brel_common_qt_gui;

namespace
{

struct made_t
{
    made_t() : box(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, Qt::Horizontal, &dialog)
    {
        connectDialogButtons(&box, &dialog, SLOT(accept()));
    }

    QDialog dialog;
    QDialogButtonBox box;
};

} // namespace

class tst_dialogButtons : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void okRunsTheSlot();
    void cancelRejectsTheDialog();
    void buttonsAreLargeEnoughForAFinger();
    void enlargesAddedButtonsToo();
    void tabComesByEveryButtonAsTheyStand();
};

void tst_dialogButtons::okRunsTheSlot()
{
    made_t made;
    made.dialog.setResult(QDialog::Rejected);
    made.box.button(QDialogButtonBox::Ok)->click();
    QCOMPARE(made.dialog.result(), int(QDialog::Accepted));
}

void tst_dialogButtons::cancelRejectsTheDialog()
{
    made_t made;
    made.dialog.setResult(QDialog::Accepted);
    made.box.button(QDialogButtonBox::Cancel)->click();
    QCOMPARE(made.dialog.result(), int(QDialog::Rejected));
}

void tst_dialogButtons::buttonsAreLargeEnoughForAFinger()
{
    made_t made;
    for (QAbstractButton const* button : made.box.buttons())
        QVERIFY(button->minimumHeight() >= 40);
}

void tst_dialogButtons::enlargesAddedButtonsToo()
{
    QDialogButtonBox box(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    box.addButton("More", QDialogButtonBox::ActionRole);
    enlargeButtons(&box);
    QCOMPARE(box.buttons().size(), 3);
    for (QAbstractButton const* button : box.buttons())
        QVERIFY(button->minimumHeight() >= 40);
}

void tst_dialogButtons::tabComesByEveryButtonAsTheyStand()
{
    QWidget window;
    QHBoxLayout layout(&window);
    layout.addWidget(new QLineEdit);
    QDialogButtonBox* const box = new QDialogButtonBox(QDialogButtonBox::Apply | QDialogButtonBox::Reset);
    layout.addWidget(box);
    box->addButton("More", QDialogButtonBox::ActionRole);
    enlargeButtons(box);
    window.show();
    QWidget* before = box;
    for (int i = 0; i < box->layout()->count(); ++i)
    {
        QWidget* const button = box->layout()->itemAt(i)->widget();
        if (!button)
            continue;
        QCOMPARE(before->nextInFocusChain(), button);
        before = button;
    }
    QVERIFY(before != box);
}

QTEST_MAIN(tst_dialogButtons)
#include "tst_dialogButtons.moc"
