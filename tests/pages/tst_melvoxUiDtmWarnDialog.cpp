#include "melvox_ui/melvoxUiDtmWarnDialog.h"

#include "support/pageTest.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QSignalSpy>

using namespace brel_common_qt_gui;

class tst_melvoxUiDtmWarnDialog : public melvox_test::pageTest_t
{
    Q_OBJECT

private slots:
    void saysWhatTheReceiverMayDo();
    void startsWithTheBoxUnchecked();
    void tellsWhetherToWarnNoMore();
    void offersNoOtherButtonThanOk();
    void okClosesIt();
    void keepsTheBoxFromOneShowingToTheNext();
};

void tst_melvoxUiDtmWarnDialog::saysWhatTheReceiverMayDo()
{
    melvoxUiDtmWarnDialog_t dialog(0);
    QCOMPARE(dialog.windowTitle(), QString("MELVOX NMEA Output Warning"));
    QCOMPARE(labelText(&dialog, "label"),
             QString("You have modified the settings of a NMEA message that can automatically enable output of the "
                     "DTM or PZLQDTM NMEA messages.  These messages may be disabled manually from the Output "
                     "Configuration screen.\n\nPlease see the help page to understand the effects of modifying the "
                     "output of these messages.\n"));
    QVERIFY(find<QLabel>(&dialog, "label")->wordWrap());
    QCOMPARE(find<QCheckBox>(&dialog, "suppressWarningCheckBox")->text(), QString("Do not show this warning again"));
}

void tst_melvoxUiDtmWarnDialog::startsWithTheBoxUnchecked()
{
    melvoxUiDtmWarnDialog_t dialog(0);
    QVERIFY(!find<QCheckBox>(&dialog, "suppressWarningCheckBox")->isChecked());
    QVERIFY(!dialog.suppressWarning());
}

void tst_melvoxUiDtmWarnDialog::tellsWhetherToWarnNoMore()
{
    melvoxUiDtmWarnDialog_t dialog(0);
    tap(&dialog, "suppressWarningCheckBox");
    QVERIFY(dialog.suppressWarning());
    tap(&dialog, "suppressWarningCheckBox");
    QVERIFY(!dialog.suppressWarning());
}

void tst_melvoxUiDtmWarnDialog::offersNoOtherButtonThanOk()
{
    melvoxUiDtmWarnDialog_t dialog(0);
    QDialogButtonBox const* const box = find<QDialogButtonBox>(&dialog, "buttonBox");
    QCOMPARE(int(box->standardButtons()), int(QDialogButtonBox::Ok));
    QCOMPARE(box->buttons().size(), 1);
}

void tst_melvoxUiDtmWarnDialog::okClosesIt()
{
    melvoxUiDtmWarnDialog_t dialog(0);
    QSignalSpy finished(&dialog, SIGNAL(finished(int)));
    dialog.show();
    find<QDialogButtonBox>(&dialog, "buttonBox")->button(QDialogButtonBox::Ok)->click();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(finished.size(), 1);
    QCOMPARE(finished.at(0).at(0).toInt(), int(QDialog::Accepted));
}

void tst_melvoxUiDtmWarnDialog::keepsTheBoxFromOneShowingToTheNext()
{
    melvoxUiDtmWarnDialog_t dialog(0);
    dialog.show();
    tap(&dialog, "suppressWarningCheckBox");
    dialog.done(0);
    dialog.show();
    QVERIFY(dialog.suppressWarning());
}

QTEST_MAIN(tst_melvoxUiDtmWarnDialog)
#include "tst_melvoxUiDtmWarnDialog.moc"
