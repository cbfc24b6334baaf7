#include "melvox_ui/melvoxUiVirtualPortConfigDialog.h"

#include "support/pageTest.h"

#include <QGroupBox>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

namespace
{

char const* const REMOTE_ADDRESS_ERROR = "Remote Address must be a valid IP address\n";
char const* const REMOTE_PORT_ERROR = "Remote Port must be 0 - 65535\n";
char const* const LOCAL_PORT_ERROR = "Local Port must be 0 - 65535\n";

melvoxVcomConfig_t vcomConfig(bool enabled, melvoxVcomMode_t mode)
{
    melvoxVcomConfig_t const config = {enabled, mode, 0xC0A80A14u, 5001, 4902};
    return config;
}

} // namespace

class tst_melvoxUiVirtualPortConfigDialog : public melvox_test::pageTest_t
{
    Q_OBJECT

private slots:
    void startsWithoutAPort();
    void showsThePortAndItsSettings_data();
    void showsThePortAndItsSettings();
    void sendsWhatItWasGiven_data();
    void sendsWhatItWasGiven();
    void sendsWhatWasTyped();
    void acceptsTheLimitsOfEachField_data();
    void acceptsTheLimitsOfEachField();
    void refusesAFieldThatIsLeftBlank_data();
    void refusesAFieldThatIsLeftBlank();
    void refusesAnAddressThatIsNotFinished();
    void reportsEveryBadFieldInOneBoxInOrder();
    void checksTheRemoteFieldsAlsoWhileTheyAreDisabled();
    void letsTheRemoteFieldsBeEditedForUdpOnly();
    void keepsTheRemoteFieldsThroughAChangeOfMode();
    void staysOpenWithoutAMode();
    void sendsNothingWhenCancelled();
    void keepsTheKeypadWordsOfEachEdit_data();
    void keepsTheKeypadWordsOfEachEdit();
    void keepsItsTexts_data();
    void keepsItsTexts();
};

void tst_melvoxUiVirtualPortConfigDialog::startsWithoutAPort()
{
    melvoxUiVirtualPortConfigDialog_t dialog(device, 0);
    QCOMPARE(labelText(&dialog, "portLabel"), QString("--"));
    QCOMPARE(chosen(&dialog, "modeCombo"), QString("UDP (Restrict)"));
    QVERIFY(isEnabled(&dialog, "remoteAddressLineEdit"));
    QVERIFY(isEnabled(&dialog, "localPortLineEdit"));
}

void tst_melvoxUiVirtualPortConfigDialog::showsThePortAndItsSettings_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("shown");
    QTest::newRow("off, UDP") << false << int(MODE_UDP_RESTRICT) << "No, UDP (Restrict)";
    QTest::newRow("on, TCP") << true << int(MODE_TCP_REGULAR) << "Yes, TCP";
}

void tst_melvoxUiVirtualPortConfigDialog::showsThePortAndItsSettings()
{
    QFETCH(bool, enabled);
    QFETCH(int, mode);
    QFETCH(QString, shown);
    melvoxUiVirtualPortConfigDialog_t dialog(device, 0);
    dialog.setPort(MELVOX_PORT_ETH5);
    dialog.setConfig(vcomConfig(enabled, melvoxVcomMode_t(mode)));
    QCOMPARE(labelText(&dialog, "portLabel"), melvoxPortName(MELVOX_PORT_ETH5));
    QCOMPARE(chosen(&dialog, "enabledCombo") + ", " + chosen(&dialog, "modeCombo"), shown);
    QCOMPARE(editText(&dialog, "remoteAddressLineEdit"), QString("192.168.10.20"));
    QCOMPARE(editText(&dialog, "remotePortLineEdit"), QString("5001"));
    QCOMPARE(editText(&dialog, "localPortLineEdit"), QString("4902"));
}

void tst_melvoxUiVirtualPortConfigDialog::sendsWhatItWasGiven_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<int>("mode");
    QTest::newRow("off, UDP") << false << int(MODE_UDP_RESTRICT);
    QTest::newRow("off, TCP") << false << int(MODE_TCP_REGULAR);
    QTest::newRow("on, UDP") << true << int(MODE_UDP_RESTRICT);
    QTest::newRow("on, TCP") << true << int(MODE_TCP_REGULAR);
}

void tst_melvoxUiVirtualPortConfigDialog::sendsWhatItWasGiven()
{
    QFETCH(bool, enabled);
    QFETCH(int, mode);
    melvoxUiVirtualPortConfigDialog_t dialog(device, 0);
    dialog.setPort(MELVOX_PORT_ETH8);
    dialog.setConfig(vcomConfig(enabled, melvoxVcomMode_t(mode)));
    dialog.show();
    tap(&dialog, "OK");
    QCOMPARE(receiver->commands(),
             QStringList(QString("vcomConfig enabled=%1 localPort=4902 mode=%2 port=13 remoteAddress=3232238100 "
                                 "remotePort=5001")
                             .arg(enabled ? "true" : "false")
                             .arg(mode)));
    QVERIFY(!dialog.isVisible());
}

void tst_melvoxUiVirtualPortConfigDialog::sendsWhatWasTyped()
{
    melvoxUiVirtualPortConfigDialog_t dialog(device, 0);
    dialog.setPort(MELVOX_PORT_ETH1);
    dialog.setConfig(vcomConfig(false, MODE_UDP_RESTRICT));
    choose(&dialog, "enabledCombo", "Yes");
    type(&dialog, "remoteAddressLineEdit", "10.1.2.3");
    type(&dialog, "remotePortLineEdit", "6001");
    type(&dialog, "localPortLineEdit", "6002");
    tap(&dialog, "OK");
    QCOMPARE(receiver->commands(),
             QStringList("vcomConfig enabled=true localPort=6002 mode=0 port=6 remoteAddress=167838211 "
                         "remotePort=6001"));
}

void tst_melvoxUiVirtualPortConfigDialog::acceptsTheLimitsOfEachField_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("remotePort");
    QTest::addColumn<QString>("localPort");
    QTest::addColumn<QString>("sent");
    QTest::newRow("lowest") << "0.0.0.0"
                            << "0"
                            << "0"
                            << "localPort=0 mode=0 port=6 remoteAddress=0 remotePort=0";
    QTest::newRow("highest") << "255.255.255.255"
                             << "65535"
                             << "65535"
                             << "localPort=65535 mode=0 port=6 remoteAddress=4294967295 remotePort=65535";
}

void tst_melvoxUiVirtualPortConfigDialog::acceptsTheLimitsOfEachField()
{
    QFETCH(QString, address);
    QFETCH(QString, remotePort);
    QFETCH(QString, localPort);
    QFETCH(QString, sent);
    melvoxUiVirtualPortConfigDialog_t dialog(device, 0);
    dialog.setPort(MELVOX_PORT_ETH1);
    dialog.setConfig(vcomConfig(true, MODE_UDP_RESTRICT));
    type(&dialog, "remoteAddressLineEdit", address);
    type(&dialog, "remotePortLineEdit", remotePort);
    type(&dialog, "localPortLineEdit", localPort);
    tap(&dialog, "OK");
    QCOMPARE(receiver->commands(), QStringList("vcomConfig enabled=true " + sent));
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiVirtualPortConfigDialog::refusesAFieldThatIsLeftBlank_data()
{
    QTest::addColumn<QString>("error");
    QTest::newRow("remoteAddressLineEdit") << REMOTE_ADDRESS_ERROR;
    QTest::newRow("remotePortLineEdit") << REMOTE_PORT_ERROR;
    QTest::newRow("localPortLineEdit") << LOCAL_PORT_ERROR;
}

void tst_melvoxUiVirtualPortConfigDialog::refusesAFieldThatIsLeftBlank()
{
    QFETCH(QString, error);
    melvoxUiVirtualPortConfigDialog_t dialog(device, 0);
    dialog.setPort(MELVOX_PORT_ETH1);
    dialog.setConfig(vcomConfig(true, MODE_UDP_RESTRICT));
    dialog.show();
    type(&dialog, QTest::currentDataTag(), "");
    tap(&dialog, "OK");
    QCOMPARE(reportedErrors(), error);
    QVERIFY(receiver->sent().isEmpty());
    QVERIFY(dialog.isVisible());
}

void tst_melvoxUiVirtualPortConfigDialog::refusesAnAddressThatIsNotFinished()
{
    melvoxUiVirtualPortConfigDialog_t dialog(device, 0);
    dialog.setConfig(vcomConfig(true, MODE_UDP_RESTRICT));
    type(&dialog, "remoteAddressLineEdit", "10.1.2");
    tap(&dialog, "OK");
    QCOMPARE(reportedErrors(), QString(REMOTE_ADDRESS_ERROR));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiVirtualPortConfigDialog::reportsEveryBadFieldInOneBoxInOrder()
{
    melvoxUiVirtualPortConfigDialog_t dialog(device, 0);
    dialog.setConfig(vcomConfig(true, MODE_UDP_RESTRICT));
    find<QLineEdit>(&dialog, "localPortLineEdit")->setText("99999");
    find<QLineEdit>(&dialog, "remotePortLineEdit")->setText("65536");
    tap(&dialog, "OK");
    QCOMPARE(reportedErrors(), QString(REMOTE_PORT_ERROR) + LOCAL_PORT_ERROR);
    find<QLineEdit>(&dialog, "remoteAddressLineEdit")->setText("256.1.1.1");
    tap(&dialog, "OK");
    QCOMPARE(reportedErrors(), QString(REMOTE_ADDRESS_ERROR) + REMOTE_PORT_ERROR + LOCAL_PORT_ERROR);
    QVERIFY(!melvox_test::openBox());
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiVirtualPortConfigDialog::checksTheRemoteFieldsAlsoWhileTheyAreDisabled()
{
    melvoxUiVirtualPortConfigDialog_t dialog(device, 0);
    dialog.setPort(MELVOX_PORT_ETH1);
    type(&dialog, "remotePortLineEdit", "1");
    type(&dialog, "localPortLineEdit", "2");
    choose(&dialog, "modeCombo", "TCP");
    tap(&dialog, "OK");
    QCOMPARE(reportedErrors(), QString(REMOTE_ADDRESS_ERROR));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiVirtualPortConfigDialog::letsTheRemoteFieldsBeEditedForUdpOnly()
{
    melvoxUiVirtualPortConfigDialog_t dialog(device, 0);
    dialog.setConfig(vcomConfig(true, MODE_TCP_REGULAR));
    QVERIFY(!isEnabled(&dialog, "remoteAddressLineEdit"));
    QVERIFY(!isEnabled(&dialog, "remotePortLineEdit"));
    QVERIFY(isEnabled(&dialog, "localPortLineEdit"));
    choose(&dialog, "modeCombo", "UDP (Restrict)");
    QVERIFY(isEnabled(&dialog, "remoteAddressLineEdit"));
    QVERIFY(isEnabled(&dialog, "remotePortLineEdit"));
    QVERIFY(isEnabled(&dialog, "localPortLineEdit"));
}

void tst_melvoxUiVirtualPortConfigDialog::keepsTheRemoteFieldsThroughAChangeOfMode()
{
    melvoxUiVirtualPortConfigDialog_t dialog(device, 0);
    dialog.setConfig(vcomConfig(true, MODE_UDP_RESTRICT));
    type(&dialog, "remoteAddressLineEdit", "10.1.2.3");
    choose(&dialog, "modeCombo", "TCP");
    choose(&dialog, "modeCombo", "UDP (Restrict)");
    QCOMPARE(editText(&dialog, "remoteAddressLineEdit"), QString("10.1.2.3"));
    QCOMPARE(editText(&dialog, "remotePortLineEdit"), QString("5001"));
}

void tst_melvoxUiVirtualPortConfigDialog::staysOpenWithoutAMode()
{
    melvoxUiVirtualPortConfigDialog_t dialog(device, 0);
    dialog.setConfig(vcomConfig(true, melvoxVcomMode_t(2)));
    dialog.show();
    QCOMPARE(chosen(&dialog, "modeCombo"), QString());
    tap(&dialog, "OK");
    QVERIFY(receiver->sent().isEmpty());
    QVERIFY(dialog.isVisible());
}

void tst_melvoxUiVirtualPortConfigDialog::sendsNothingWhenCancelled()
{
    melvoxUiVirtualPortConfigDialog_t dialog(device, 0);
    dialog.setConfig(vcomConfig(true, MODE_UDP_RESTRICT));
    dialog.show();
    tap(&dialog, "Cancel");
    QVERIFY(receiver->sent().isEmpty());
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void tst_melvoxUiVirtualPortConfigDialog::keepsTheKeypadWordsOfEachEdit_data()
{
    QTest::addColumn<QString>("prompt");
    QTest::newRow("remoteAddressLineEdit") << "Ethernet Virtual Port IP Address";
    QTest::newRow("remotePortLineEdit") << "Ethernet Virtual Port Remote Port";
    QTest::newRow("localPortLineEdit") << "Ethernet Virtual Port Local Port";
}

void tst_melvoxUiVirtualPortConfigDialog::keepsTheKeypadWordsOfEachEdit()
{
    QFETCH(QString, prompt);
    melvoxUiVirtualPortConfigDialog_t dialog(device, 0);
    QLineEdit const* const edit = find<QLineEdit>(&dialog, QTest::currentDataTag());
    QCOMPARE(edit->property("keypadType").toString(), QString("numeric"));
    QCOMPARE(edit->property("keypadPrompt").toString(), prompt);
}

void tst_melvoxUiVirtualPortConfigDialog::keepsItsTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("portTitleLabel") << "Port:";
    QTest::newRow("enabledTitleLabel") << "Enabled:";
    QTest::newRow("modeTitleLabel") << "Mode:";
    QTest::newRow("remoteAddressTitleLabel") << "Remote Address:";
    QTest::newRow("remotePortTitleLabel") << "Remote Port:";
    QTest::newRow("localPortTitleLabel") << "Local Port:";
}

void tst_melvoxUiVirtualPortConfigDialog::keepsItsTexts()
{
    QFETCH(QString, text);
    melvoxUiVirtualPortConfigDialog_t dialog(device, 0);
    QCOMPARE(labelText(&dialog, QTest::currentDataTag()), text);
    QCOMPARE(dialog.windowTitle(), QString("MELVOX Virtual Port Configuration"));
    QCOMPARE(find<QGroupBox>(&dialog, "virtualPortGroup")->title(), QString("Configure Virtual Port"));
}

QTEST_MAIN(tst_melvoxUiVirtualPortConfigDialog)
#include "tst_melvoxUiVirtualPortConfigDialog.moc"
