#include "melvox_ui/melvoxUiEthernetConfiguration.h"

#include "support/pageTest.h"

#include <QGroupBox>
#include <QPushButton>
#include <QStackedWidget>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

namespace
{

QStringList edits()
{
    return QStringList() << "ipAddressLineEdit"
                         << "netmaskLineEdit"
                         << "gatewayLineEdit"
                         << "dns1LineEdit"
                         << "dns2LineEdit";
}

QString editTexts(QWidget* page)
{
    QStringList texts;
    QStringList const names = edits();
    for (QString const& name : names)
        texts << editText(page, name);
    return texts.join(" ");
}

QString labelTexts(QWidget* page)
{
    QStringList const names = QStringList() << "modeLabel"
                                            << "ipAddressLabel"
                                            << "netmaskLabel"
                                            << "gatewayLabel"
                                            << "dns1Label"
                                            << "dns2Label";
    QStringList texts;
    for (QString const& name : names)
        texts << labelText(page, name);
    return texts.join(" ");
}

char const* const MANUAL_SENT = "ethernetConfig dhcp=false dns1=84281096 dns2=84281097 gateway=3232235777 "
                                "ipAddress=3232235876 netmask=4294967040 source=0";

} // namespace

class tst_melvoxUiEthernetConfiguration : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    void report(bool dhcp, int source = 0);
    void reportOthers();

private slots:
    void showsNoDataAndEmptyEditsBeforeTheFirstReport();
    void canBeSetBeforeTheFirstReport();
    void showsWhatTheProxyHeldBeforeThePageWasBuilt();
    void showsManualAddresses();
    void showsAddressesFromDhcp();
    void doesNotShowTheWifiInterface();
    void reloadsItsEditsWithEveryReport();
    void resetBringsTheEditsBack();
    void resetBeforeTheFirstReportChangesNothing();
    void letsAddressesBeEditedInManualModeOnly();
    void asksBeforeItSends();
    void sendsManualAddressesAfterAYes();
    void sendsWhatWasTyped();
    void sendsNothingUnlessTheAnswerIsYes_data();
    void sendsNothingUnlessTheAnswerIsYes();
    void asksWithTheSameBoxAgain();
    void sendsDhcpWhateverTheEditsHold();
    void refusesAnAddressThatIsNoAddress_data();
    void refusesAnAddressThatIsNoAddress();
    void reportsEveryBadAddressInOneBoxInOrder();
    void checksNoRelationBetweenTheAddresses();
    void submitsWithoutAQuestionWhenTheHostAsks();
    void sendsNothingWhileTheGroupIsDisabled();
    void asksForTheConfiguration();
    void hidesTheButtonOfThePageThatIsShown();
    void hasAWifiPageThatIsNeverShown();
    void keepsTheKeypadWordsOfEachEdit_data();
    void keepsTheKeypadWordsOfEachEdit();
    void keepsItsTexts_data();
    void keepsItsTexts();
    void goesAwayWithAnOpenWarning();
};

void tst_melvoxUiEthernetConfiguration::report(bool dhcp, int source)
{
    receiver->report("ethernetConfig", map("source", source, "dhcp", dhcp, "ipAddress", 3232235876u, "netmask",
                                           4294967040u, "gateway", 3232235777u, "dns1", 84281096u, "dns2", 84281097u));
}

void tst_melvoxUiEthernetConfiguration::reportOthers()
{
    receiver->report("ethernetConfig", map("source", 0, "dhcp", false, "ipAddress", 0x0A000001u, "netmask", 0xFFFF0000u,
                                           "gateway", 0x0A000002u, "dns1", 3u, "dns2", 4u));
}

void tst_melvoxUiEthernetConfiguration::showsNoDataAndEmptyEditsBeforeTheFirstReport()
{
    melvoxUiEthernetConfiguration_t page(device);
    QStringList expected;
    for (int i = 0; i < 6; ++i)
        expected << NoDataString;
    QCOMPARE(labelTexts(&page), expected.join(" "));
    QCOMPARE(editTexts(&page), QString("    "));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiEthernetConfiguration::canBeSetBeforeTheFirstReport()
{
    melvoxUiEthernetConfiguration_t page(device);
    QVERIFY(isEnabled(&page, "ethernetConfigGroup"));
    QVERIFY(isEnabled(&page, "ipAddressLineEdit"));
    choose(&page, "modeCombo", "DHCP");
    tap(&page, "Apply");
    answer(QMessageBox::Yes);
    QCOMPARE(receiver->commands(), QStringList("ethernetConfig dhcp=true source=0"));
}

void tst_melvoxUiEthernetConfiguration::showsWhatTheProxyHeldBeforeThePageWasBuilt()
{
    report(true);
    melvoxUiEthernetConfiguration_t page(device);
    QCOMPARE(labelTexts(&page), QString("DHCP 192.168.1.100 255.255.255.0 192.168.1.1 5.6.7.8 5.6.7.9"));
    QCOMPARE(editTexts(&page), QString("192.168.1.100 255.255.255.0 192.168.1.1 5.6.7.8 5.6.7.9"));
    QVERIFY(!isEnabled(&page, "ipAddressLineEdit"));
}

void tst_melvoxUiEthernetConfiguration::showsManualAddresses()
{
    melvoxUiEthernetConfiguration_t page(device);
    report(false);
    QCOMPARE(labelTexts(&page), QString("Manual 192.168.1.100 255.255.255.0 192.168.1.1 5.6.7.8 5.6.7.9"));
    QCOMPARE(chosen(&page, "modeCombo"), QString("Manual"));
    QCOMPARE(editTexts(&page), QString("192.168.1.100 255.255.255.0 192.168.1.1 5.6.7.8 5.6.7.9"));
}

void tst_melvoxUiEthernetConfiguration::showsAddressesFromDhcp()
{
    melvoxUiEthernetConfiguration_t page(device);
    report(true);
    QCOMPARE(labelText(&page, "modeLabel"), QString("DHCP"));
    QCOMPARE(chosen(&page, "modeCombo"), QString("DHCP"));
    QCOMPARE(labelText(&page, "ipAddressLabel"), QString("192.168.1.100"));
}

void tst_melvoxUiEthernetConfiguration::doesNotShowTheWifiInterface()
{
    melvoxUiEthernetConfiguration_t page(device);
    report(true, 1);
    QCOMPARE(labelText(&page, "ipAddressLabel"), NoDataString);
    QCOMPARE(editText(&page, "ipAddressLineEdit"), QString());
}

void tst_melvoxUiEthernetConfiguration::reloadsItsEditsWithEveryReport()
{
    melvoxUiEthernetConfiguration_t page(device);
    report(false);
    type(&page, "ipAddressLineEdit", "1.1.1.1");
    type(&page, "dns2LineEdit", "2.2.2");
    reportOthers();
    QCOMPARE(editTexts(&page), QString("10.0.0.1 255.255.0.0 10.0.0.2 0.0.0.3 0.0.0.4"));
    choose(&page, "modeCombo", "DHCP");
    reportOthers();
    QCOMPARE(chosen(&page, "modeCombo"), QString("Manual"));
}

void tst_melvoxUiEthernetConfiguration::resetBringsTheEditsBack()
{
    melvoxUiEthernetConfiguration_t page(device);
    report(false);
    QStringList const names = edits();
    for (QString const& name : names)
        type(&page, name, "9.9.9.9");
    choose(&page, "modeCombo", "DHCP");
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "modeCombo"), QString("Manual"));
    QCOMPARE(editTexts(&page), QString("192.168.1.100 255.255.255.0 192.168.1.1 5.6.7.8 5.6.7.9"));
    QVERIFY(isEnabled(&page, "ipAddressLineEdit"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiEthernetConfiguration::resetBeforeTheFirstReportChangesNothing()
{
    melvoxUiEthernetConfiguration_t page(device);
    type(&page, "ipAddressLineEdit", "9.9.9.9");
    tap(&page, "Reset");
    QCOMPARE(editText(&page, "ipAddressLineEdit"), QString("9.9.9.9"));
    QCOMPARE(labelText(&page, "ipAddressLabel"), NoDataString);
}

void tst_melvoxUiEthernetConfiguration::letsAddressesBeEditedInManualModeOnly()
{
    melvoxUiEthernetConfiguration_t page(device);
    QStringList const names = edits();
    for (QString const& name : names)
        QVERIFY2(isEnabled(&page, name), qPrintable(name));
    choose(&page, "modeCombo", "DHCP");
    for (QString const& name : names)
        QVERIFY2(!isEnabled(&page, name), qPrintable(name));
    choose(&page, "modeCombo", "Manual");
    for (QString const& name : names)
        QVERIFY2(isEnabled(&page, name), qPrintable(name));
}

void tst_melvoxUiEthernetConfiguration::asksBeforeItSends()
{
    melvoxUiEthernetConfiguration_t page(device);
    report(false);
    tap(&page, "Apply");
    QVERIFY(receiver->sent().isEmpty());
    QMessageBox* const box = melvox_test::openBox();
    QVERIFY(box);
    QCOMPARE(box->windowTitle(), QString("Change the ethernet settings?"));
    QCOMPARE(box->icon(), QMessageBox::Warning);
    QCOMPARE(int(box->standardButtons()), int(QMessageBox::Yes | QMessageBox::No));
    QCOMPARE(static_cast<QAbstractButton*>(box->defaultButton()), box->button(QMessageBox::No));
    QCOMPARE(box->textFormat(), Qt::RichText);
    QCOMPARE(box->text(),
             QString("<p><center><b>WARNING:</b> Changing the ethernet settings will temporarily lose connection and "
                     "cause the quality panel to blank.</center></p><p><center><FONT COLOR='#800000'><b>Do not make "
                     "changes during critical operations.</b></FONT></center></p><p><center>Are you sure you want to "
                     "make changes?</center></p><p><center>(Press <b>Yes</b> to continue, <b>No</b> to "
                     "cancel)</center></p>"));
    answer(QMessageBox::No);
}

void tst_melvoxUiEthernetConfiguration::sendsManualAddressesAfterAYes()
{
    melvoxUiEthernetConfiguration_t page(device);
    report(false);
    tap(&page, "Apply");
    answer(QMessageBox::Yes);
    QCOMPARE(receiver->commands(), QStringList(MANUAL_SENT));
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiEthernetConfiguration::sendsWhatWasTyped()
{
    melvoxUiEthernetConfiguration_t page(device);
    report(true);
    choose(&page, "modeCombo", "Manual");
    type(&page, "ipAddressLineEdit", "0.0.0.11");
    type(&page, "netmaskLineEdit", "0.0.0.12");
    type(&page, "gatewayLineEdit", "0.0.0.13");
    type(&page, "dns1LineEdit", "0.0.0.14");
    type(&page, "dns2LineEdit", "0.0.0.15");
    tap(&page, "Apply");
    answer(QMessageBox::Yes);
    QCOMPARE(receiver->commands(),
             QStringList("ethernetConfig dhcp=false dns1=14 dns2=15 gateway=13 ipAddress=11 netmask=12 source=0"));
}

void tst_melvoxUiEthernetConfiguration::sendsNothingUnlessTheAnswerIsYes_data()
{
    QTest::addColumn<int>("closing");
    QTest::newRow("no") << 0;
    QTest::newRow("window closed") << 1;
    QTest::newRow("escape") << 2;
    QTest::newRow("default button") << 3;
}

void tst_melvoxUiEthernetConfiguration::sendsNothingUnlessTheAnswerIsYes()
{
    QFETCH(int, closing);
    melvoxUiEthernetConfiguration_t page(device);
    report(false);
    tap(&page, "Apply");
    if (closing == 0)
        answer(QMessageBox::No);
    else if (closing == 1)
        melvox_test::closeBox();
    else
        QTest::keyClick(melvox_test::openBox(), closing == 2 ? Qt::Key_Escape : Qt::Key_Enter);
    QVERIFY(!melvox_test::openBox());
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiEthernetConfiguration::asksWithTheSameBoxAgain()
{
    melvoxUiEthernetConfiguration_t page(device);
    report(false);
    tap(&page, "Apply");
    QMessageBox const* const first = melvox_test::openBox();
    answer(QMessageBox::No);
    tap(&page, "Apply");
    QCOMPARE(static_cast<QMessageBox const*>(melvox_test::openBox()), first);
    answer(QMessageBox::Yes);
    QCOMPARE(receiver->commands().size(), 1);
}

void tst_melvoxUiEthernetConfiguration::sendsDhcpWhateverTheEditsHold()
{
    melvoxUiEthernetConfiguration_t page(device);
    report(false);
    type(&page, "ipAddressLineEdit", "1.2");
    choose(&page, "modeCombo", "DHCP");
    tap(&page, "Apply");
    answer(QMessageBox::Yes);
    QCOMPARE(receiver->commands(), QStringList("ethernetConfig dhcp=true source=0"));
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiEthernetConfiguration::refusesAnAddressThatIsNoAddress_data()
{
    QTest::addColumn<QString>("error");
    QTest::newRow("ipAddressLineEdit") << "IP Address is invalid\n";
    QTest::newRow("netmaskLineEdit") << "Netmask must be a valid IP address\n";
    QTest::newRow("gatewayLineEdit") << "Gateway must be a valid IP address\n";
    QTest::newRow("dns1LineEdit") << "DNS Server 1 must be a valid IP address\n";
    QTest::newRow("dns2LineEdit") << "DNS Server 2 must be a valid IP address\n";
}

void tst_melvoxUiEthernetConfiguration::refusesAnAddressThatIsNoAddress()
{
    QFETCH(QString, error);
    melvoxUiEthernetConfiguration_t page(device);
    report(false);
    type(&page, QTest::currentDataTag(), "1.2.3");
    tap(&page, "Apply");
    answer(QMessageBox::Yes);
    QCOMPARE(reportedErrors(), error);
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiEthernetConfiguration::reportsEveryBadAddressInOneBoxInOrder()
{
    melvoxUiEthernetConfiguration_t page(device);
    tap(&page, "Apply");
    answer(QMessageBox::Yes);
    QCOMPARE(reportedErrors(), QString("IP Address is invalid\nNetmask must be a valid IP address\n"
                                       "Gateway must be a valid IP address\nDNS Server 1 must be a valid IP address\n"
                                       "DNS Server 2 must be a valid IP address\n"));
    QVERIFY(!melvox_test::openBox());
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiEthernetConfiguration::checksNoRelationBetweenTheAddresses()
{
    melvoxUiEthernetConfiguration_t page(device);
    report(false);
    type(&page, "netmaskLineEdit", "1.2.3.4");
    type(&page, "gatewayLineEdit", "255.255.255.255");
    tap(&page, "Apply");
    answer(QMessageBox::Yes);
    QCOMPARE(receiver->commands().size(), 1);
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiEthernetConfiguration::submitsWithoutAQuestionWhenTheHostAsks()
{
    melvoxUiEthernetConfiguration_t page(device);
    report(true);
    page.submit();
    QVERIFY(!melvox_test::openBox());
    QCOMPARE(receiver->commands(), QStringList("ethernetConfig dhcp=true source=0"));
}

void tst_melvoxUiEthernetConfiguration::sendsNothingWhileTheGroupIsDisabled()
{
    melvoxUiEthernetConfiguration_t page(device);
    find<QGroupBox>(&page, "ethernetConfigGroup")->setEnabled(false);
    page.submit();
    QVERIFY(!melvox_test::openBox());
    QVERIFY(receiver->sent().isEmpty());
    report(false);
    QVERIFY(isEnabled(&page, "ethernetConfigGroup"));
}

void tst_melvoxUiEthernetConfiguration::asksForTheConfiguration()
{
    melvoxUiEthernetConfiguration_t page(device);
    tap(&page, "Query");
    QCOMPARE(receiver->sent(), QStringList("request ethernetConfig"));
}

void tst_melvoxUiEthernetConfiguration::hidesTheButtonOfThePageThatIsShown()
{
    melvoxUiEthernetConfiguration_t page(device);
    tap(&page, "IP Address");
    QVERIFY(melvox_test::button(&page, "IP Address")->isHidden());
    QCOMPARE(find<QStackedWidget>(&page, "stackedWidget")->currentWidget()->objectName(), QString("ethernetPage"));
}

void tst_melvoxUiEthernetConfiguration::hasAWifiPageThatIsNeverShown()
{
    melvoxUiEthernetConfiguration_t page(device);
    QWidget* const wifi = find<QWidget>(&page, "wiFiPage");
    page.show();
    QVERIFY(!wifi->isVisible());
    tap(&page, "IP Address");
    report(false);
    QVERIFY(!wifi->isVisible());
    QCOMPARE(find<QStackedWidget>(&page, "stackedWidget")->indexOf(wifi), 1);
    QCOMPARE(melvox_test::headerTexts(find<QTreeWidget>(wifi, "accessPointsTreeWidget")).join("|"),
             QString("Name|Security|Channel|RSS %|Connected?"));
    QCOMPARE(find<QGroupBox>(wifi, "wiFiConfigGroup")->title(), QString("WiFi Configuration"));
    QCOMPARE(find<QGroupBox>(wifi, "accessPointsGroup")->title(), QString("WiFi Access Points"));
    QCOMPARE(find<QGroupBox>(wifi, "accessPointConfigGroup")->title(), QString("Access Point Configuration"));
    receiver->clear();
    tap(wifi, "Connect");
    tap(wifi, "Disconnect");
    tap(wifi, "Scan");
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiEthernetConfiguration::keepsTheKeypadWordsOfEachEdit_data()
{
    QTest::addColumn<QString>("prompt");
    QTest::newRow("ipAddressLineEdit") << "Ethernet Interface IP Address";
    QTest::newRow("netmaskLineEdit") << "Ethernet Interface Netmask";
    QTest::newRow("gatewayLineEdit") << "Ethernet Interface Gateway";
    QTest::newRow("dns1LineEdit") << "Ethernet Interface DNS Server 1";
    QTest::newRow("dns2LineEdit") << "Ethernet Interface DNS Server 2";
}

void tst_melvoxUiEthernetConfiguration::keepsTheKeypadWordsOfEachEdit()
{
    QFETCH(QString, prompt);
    melvoxUiEthernetConfiguration_t page(device);
    QLineEdit const* const edit = find<QLineEdit>(&page, QTest::currentDataTag());
    QCOMPARE(edit->property("keypadType").toString(), QString("numeric"));
    QCOMPARE(edit->property("keypadPrompt").toString(), prompt);
}

void tst_melvoxUiEthernetConfiguration::keepsItsTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("modeTitleLabel") << "Mode:";
    QTest::newRow("ipAddressTitleLabel") << "IP Address:";
    QTest::newRow("netmaskTitleLabel") << "Netmask:";
    QTest::newRow("gatewayTitleLabel") << "Gateway:";
    QTest::newRow("dns1TitleLabel") << "DNS Server 1:";
    QTest::newRow("dns2TitleLabel") << "DNS Server 2:";
    QTest::newRow("wiFiStateTitleLabel") << "State:";
    QTest::newRow("wiFiRoleTitleLabel") << "Role:";
    QTest::newRow("wiFiBandTitleLabel") << "Band:";
    QTest::newRow("accessPointSecurityTitleLabel") << "Security:";
    QTest::newRow("accessPointPasskeyTitleLabel") << "Passkey:";
}

void tst_melvoxUiEthernetConfiguration::keepsItsTexts()
{
    QFETCH(QString, text);
    melvoxUiEthernetConfiguration_t page(device);
    QCOMPARE(labelText(&page, QTest::currentDataTag()), text);
    QCOMPARE(find<QGroupBox>(&page, "ethernetConfigGroup")->title(), QString("IP Address Configuration"));
    QComboBox const* const mode = find<QComboBox>(&page, "modeCombo");
    QCOMPARE(mode->count(), 2);
    QCOMPARE(mode->itemText(0) + mode->itemText(1), QString("ManualDHCP"));
}

void tst_melvoxUiEthernetConfiguration::goesAwayWithAnOpenWarning()
{
    {
        melvoxUiEthernetConfiguration_t page(device);
        tap(&page, "Apply");
        QVERIFY(melvox_test::openBox());
    }
    QVERIFY(!melvox_test::openBox());
    QVERIFY(receiver->sent().isEmpty());
}

QTEST_MAIN(tst_melvoxUiEthernetConfiguration)
#include "tst_melvoxUiEthernetConfiguration.moc"
