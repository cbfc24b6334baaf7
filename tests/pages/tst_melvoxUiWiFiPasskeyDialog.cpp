#include "melvox_ui/melvoxUiWiFiPasskeyDialog.h"

#include "support/pageTest.h"

#include <QDialogButtonBox>
#include <QPushButton>

using namespace brel_common_qt_gui;

namespace
{

QPushButton* ok(QWidget* dialog)
{
    return find<QDialogButtonBox>(dialog, "buttonBox")->button(QDialogButtonBox::Ok);
}

} // namespace

class tst_melvoxUiWiFiPasskeyDialog : public melvox_test::pageTest_t
{
    Q_OBJECT

private slots:
    void opensWithoutAPasskeyToAccept();
    void acceptsASingleCharacter();
    void refusesAPasskeyThatWasDeletedAgain();
    void givesThePasskeyAsItWasEntered();
    void okAcceptsAndCancelRejects();
    void forgetsThePasskeyWhenTold();
    void hidesWhatIsTyped();
    void keepsItsTexts();
};

void tst_melvoxUiWiFiPasskeyDialog::opensWithoutAPasskeyToAccept()
{
    melvoxUiWiFiPasskeyDialog_t dialog(0);
    QVERIFY(!ok(&dialog)->isEnabled());
    QCOMPARE(dialog.passkey(), QString());
}

void tst_melvoxUiWiFiPasskeyDialog::acceptsASingleCharacter()
{
    melvoxUiWiFiPasskeyDialog_t dialog(0);
    type(&dialog, "passkeyEdit", " ");
    QVERIFY(ok(&dialog)->isEnabled());
    QCOMPARE(dialog.passkey(), QString(" "));
}

void tst_melvoxUiWiFiPasskeyDialog::refusesAPasskeyThatWasDeletedAgain()
{
    melvoxUiWiFiPasskeyDialog_t dialog(0);
    type(&dialog, "passkeyEdit", "a");
    QTest::keyClick(find<QLineEdit>(&dialog, "passkeyEdit"), Qt::Key_Backspace);
    QVERIFY(!ok(&dialog)->isEnabled());
}

void tst_melvoxUiWiFiPasskeyDialog::givesThePasskeyAsItWasEntered()
{
    melvoxUiWiFiPasskeyDialog_t dialog(0);
    QString const passkey = QString::fromLatin1(" Tall gr\xE9y FENCE ") + QString(80, QChar('x'));
    find<QLineEdit>(&dialog, "passkeyEdit")->setText(passkey);
    QCOMPARE(dialog.passkey(), passkey);
}

void tst_melvoxUiWiFiPasskeyDialog::okAcceptsAndCancelRejects()
{
    melvoxUiWiFiPasskeyDialog_t dialog(0);
    dialog.show();
    type(&dialog, "passkeyEdit", "abc");
    tap(&dialog, "OK");
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(dialog.passkey(), QString("abc"));
    dialog.show();
    tap(&dialog, "Cancel");
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void tst_melvoxUiWiFiPasskeyDialog::forgetsThePasskeyWhenTold()
{
    melvoxUiWiFiPasskeyDialog_t dialog(0);
    type(&dialog, "passkeyEdit", "abc");
    dialog.clearPasskey();
    QCOMPARE(dialog.passkey(), QString());
    QVERIFY(!ok(&dialog)->isEnabled());
}

void tst_melvoxUiWiFiPasskeyDialog::hidesWhatIsTyped()
{
    melvoxUiWiFiPasskeyDialog_t dialog(0);
    QLineEdit* const edit = find<QLineEdit>(&dialog, "passkeyEdit");
    QCOMPARE(edit->echoMode(), QLineEdit::Password);
    type(&dialog, "passkeyEdit", "abc");
    QVERIFY(!edit->displayText().contains("c"));
}

void tst_melvoxUiWiFiPasskeyDialog::keepsItsTexts()
{
    melvoxUiWiFiPasskeyDialog_t dialog(0);
    QLineEdit const* const edit = find<QLineEdit>(&dialog, "passkeyEdit");
    QCOMPARE(dialog.windowTitle(), QString("MELVOX WiFi Passkey"));
    QCOMPARE(labelText(&dialog, "nameTitleLabel"), QString("Passkey:"));
    QCOMPARE(edit->property("keypadType").toString(), QString("full"));
    QCOMPARE(edit->property("keypadPrompt").toString(), QString("WiFi Passkey"));
}

QTEST_MAIN(tst_melvoxUiWiFiPasskeyDialog)
#include "tst_melvoxUiWiFiPasskeyDialog.moc"
