#include "melvox_ui/melvoxUiReceiverInformation.h"

#include "support/dialogs.h"
#include "support/pageTest.h"

#include <QGroupBox>
#include <QPushButton>
#include <QTextEdit>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_test::openBox;
using melvox_test::openDialog;

class tst_melvoxUiReceiverInformation : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    void tellVersion(char const* component, char const* version)
    {
        receiver->report("firmwareVersion", map("component", component, "version", version));
    }
    void tellModem(char const* status)
    {
        receiver->report("lteModemStat", map("rssi", "-71 dBm", "networkStatus", "CONNECTED", "modemStatus", status));
    }
    static QDialog* warning() { return openDialog("melvoxVersionWarnDialog"); }
    static void closeWarning() { tap(warning(), "OK"); }
    static bool canToggle(QWidget* page) { return isEnabled(page, "toggleLteModemButton"); }

private slots:
    void hasItsTexts();
    void showsNoProductBeforeItIsTold();
    void showsTheProduct();
    void showsAProductThatTheProxyHeldBefore();
    void asksForEverything();
    void showsTheVersionsOfAllComponents();
    void showsTheNavigationFirmware();
    void warnsOfNavigationFirmwareThatIsTooOld_data();
    void warnsOfNavigationFirmwareThatIsTooOld();
    void showsBothVersionsInTheWarning();
    void warnsOnceOfOneVersion();
    void warnsAgainOfAnotherVersionThatIsTooOld();
    void warnsAgainWhenAnOldVersionComesBack();
    void looksAtTheNavigationFirmwareAlone_data();
    void looksAtTheNavigationFirmwareAlone();
    void keepsTheVersionWhenATextMakesNoSense_data();
    void keepsTheVersionWhenATextMakesNoSense();
    void takesADifferentNumberOfPartsAsAnotherVersion();
    void showsTheIridiumModem();
    void showsTheLteModem();
    void lightsUpForMessages_data();
    void lightsUpForMessages();
    void letsTheModemBeToggledBeforeItHasTold();
    void disablesTheToggleWhileThePendingLasts_data();
    void disablesTheToggleWhileThePendingLasts();
    void asksBeforeItSwitchesOn();
    void switchesOnOnlyOnYes_data();
    void switchesOnOnlyOnYes();
    void switchesOffAtOnceFromAnyOtherStatus_data();
    void switchesOffAtOnceFromAnyOtherStatus();
    void enablesTheToggleWithTheNextReport();
    void canBeDestroyedWithItsDialogsOpen();
};

void tst_melvoxUiReceiverInformation::hasItsTexts()
{
    melvoxUiReceiverInformation_t page(device);
    QCOMPARE(find<QGroupBox>(&page, "messagesGroup")->title(), QString("Messages"));
    QCOMPARE(find<QGroupBox>(&page, "receiverIdGroup")->title(), QString("Receiver ID"));
    QCOMPARE(find<QGroupBox>(&page, "componentVersionsGroup")->title(), QString("Receiver Component Versions"));
    QCOMPARE(find<QGroupBox>(&page, "lteModemGroupBox")->title(), QString("LTE Modem"));
    QCOMPARE(melvox_test::button(&page, "toggleLteModemButton")->text(), QString("Toggle LTE Modem"));
    for (char const* label : {"firmwareLabel", "edgeSerialNumberLabel", "provisioningStatusLabel",
                              "lteModemStatusLabel", "lteNetworkStatusLabel", "lteRssiLabel"})
        QCOMPARE(labelText(&page, label), QString("--"));
}

void tst_melvoxUiReceiverInformation::showsNoProductBeforeItIsTold()
{
    melvoxUiReceiverInformation_t page(device);
    QCOMPARE(labelText(&page, "serialNumberLabel"), NoDataString);
    QCOMPARE(labelText(&page, "modelLabel"), NoDataString);
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiReceiverInformation::showsTheProduct()
{
    melvoxUiReceiverInformation_t page(device);
    receiver->report("productInfo", map("serialNumber", "PKX 1042", "modelName", "Melvox 8"));
    QCOMPARE(labelText(&page, "serialNumberLabel"), QString("PKX 1042"));
    QCOMPARE(labelText(&page, "modelLabel"), QString("Melvox 8"));
}

void tst_melvoxUiReceiverInformation::showsAProductThatTheProxyHeldBefore()
{
    receiver->report("productInfo", map("serialNumber", "PKX 1042", "modelName", "Melvox 8"));
    melvoxUiReceiverInformation_t page(device);
    QCOMPARE(labelText(&page, "serialNumberLabel"), QString("PKX 1042"));
}

void tst_melvoxUiReceiverInformation::asksForEverything()
{
    device->queryAll();
    QStringList const everything = receiver->sent();
    QVERIFY(everything.size() > 20);
    receiver->clear();
    melvoxUiReceiverInformation_t page(device);
    tap(&page, "Query");
    QCOMPARE(receiver->sent(), everything);
}

void tst_melvoxUiReceiverInformation::showsTheVersionsOfAllComponents()
{
    melvoxUiReceiverInformation_t page(device);
    tellVersion("BOOT1", "2.0.4");
    tellVersion("GPB", "7");
    QCOMPARE(find<QTextEdit>(&page, "firmwareVersionsTextEdit")->toPlainText(), QString("BOOT1: 2.0.4\nGPB: 7\n"));
    QVERIFY(find<QTextEdit>(&page, "firmwareVersionsTextEdit")->isReadOnly());
    QCOMPARE(labelText(&page, "firmwareLabel"), QString("--"));
}

void tst_melvoxUiReceiverInformation::showsTheNavigationFirmware()
{
    melvoxUiReceiverInformation_t page(device);
    tellVersion("NAV", "1.15.0");
    QCOMPARE(labelText(&page, "firmwareLabel"), QString("1.15.0"));
    tellVersion("NAV", "2.07");
    QCOMPARE(labelText(&page, "firmwareLabel"), QString("2.7"));
}

void tst_melvoxUiReceiverInformation::warnsOfNavigationFirmwareThatIsTooOld_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<bool>("warned");
    QTest::newRow("just too old") << "1.14.32" << true;
    QTest::newRow("the minimum") << "1.14.33" << false;
    QTest::newRow("just newer") << "1.14.34" << false;
    QTest::newRow("newer in the middle") << "1.15.0" << false;
    QTest::newRow("older in the middle") << "1.13.99" << true;
    QTest::newRow("older in front") << "0.99.99" << true;
    QTest::newRow("newer in front") << "2" << false;
    QTest::newRow("a part less") << "1.14" << true;
    QTest::newRow("a part more") << "1.14.33.1" << false;
    QTest::newRow("a part more and still older") << "1.14.32.9" << true;
    QTest::newRow("numbers, not texts") << "1.9.40" << true;
}

void tst_melvoxUiReceiverInformation::warnsOfNavigationFirmwareThatIsTooOld()
{
    QFETCH(QString, version);
    QFETCH(bool, warned);
    melvoxUiReceiverInformation_t page(device);
    tellVersion("NAV", qPrintable(version));
    QCOMPARE(warning() != 0, warned);
}

void tst_melvoxUiReceiverInformation::showsBothVersionsInTheWarning()
{
    melvoxUiReceiverInformation_t page(device);
    tellVersion("NAV", "1.14.5");
    QCOMPARE(labelText(warning(), "minVersionLabel"), QString("1.14.33"));
    QCOMPARE(labelText(warning(), "currentVersionLabel"), QString("1.14.5"));
}

void tst_melvoxUiReceiverInformation::warnsOnceOfOneVersion()
{
    melvoxUiReceiverInformation_t page(device);
    tellVersion("NAV", "1.14.32");
    closeWarning();
    tellVersion("NAV", "1.14.32");
    QVERIFY(!warning());
    tellVersion("NAV", "1.014.32");
    QVERIFY(!warning());
    QCOMPARE(labelText(&page, "firmwareLabel"), QString("1.14.32"));
}

void tst_melvoxUiReceiverInformation::warnsAgainOfAnotherVersionThatIsTooOld()
{
    melvoxUiReceiverInformation_t page(device);
    tellVersion("NAV", "1.14.32");
    closeWarning();
    tellVersion("NAV", "1.14.31");
    QVERIFY(warning());
    QCOMPARE(labelText(warning(), "currentVersionLabel"), QString("1.14.31"));
}

void tst_melvoxUiReceiverInformation::warnsAgainWhenAnOldVersionComesBack()
{
    melvoxUiReceiverInformation_t page(device);
    tellVersion("NAV", "1.14.32");
    closeWarning();
    tellVersion("NAV", "1.15.0");
    QVERIFY(!warning());
    tellVersion("NAV", "1.14.32");
    QVERIFY(warning());
}

void tst_melvoxUiReceiverInformation::looksAtTheNavigationFirmwareAlone_data()
{
    QTest::addColumn<QString>("component");
    QTest::newRow("another") << "BOOT1";
    QTest::newRow("lower case") << "nav";
    QTest::newRow("more") << "NAV2";
    QTest::newRow("a blank") << "NAV ";
    QTest::newRow("none") << "";
}

void tst_melvoxUiReceiverInformation::looksAtTheNavigationFirmwareAlone()
{
    QFETCH(QString, component);
    melvoxUiReceiverInformation_t page(device);
    tellVersion("NAV", "1.15.0");
    tellVersion(qPrintable(component), "0.0.1");
    QVERIFY(!warning());
    QCOMPARE(labelText(&page, "firmwareLabel"), QString("1.15.0"));
}

void tst_melvoxUiReceiverInformation::keepsTheVersionWhenATextMakesNoSense_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << "";
    QTest::newRow("words") << "unknown";
    QTest::newRow("a part that is no number") << "1.14.x";
    QTest::newRow("a dot too many") << "1..2";
}

void tst_melvoxUiReceiverInformation::keepsTheVersionWhenATextMakesNoSense()
{
    QFETCH(QString, text);
    melvoxUiReceiverInformation_t page(device);
    tellVersion("NAV", qPrintable(text));
    QVERIFY(!warning());
    QCOMPARE(labelText(&page, "firmwareLabel"), QString("--"));
    tellVersion("NAV", "1.14.32");
    closeWarning();
    tellVersion("NAV", qPrintable(text));
    QVERIFY(!warning());
    QCOMPARE(labelText(&page, "firmwareLabel"), QString("1.14.32"));
    // What was told last and understood is remembered.
    tellVersion("NAV", "1.14.32");
    QVERIFY(!warning());
}

void tst_melvoxUiReceiverInformation::takesADifferentNumberOfPartsAsAnotherVersion()
{
    melvoxUiReceiverInformation_t page(device);
    tellVersion("NAV", "1.14");
    closeWarning();
    tellVersion("NAV", "1.14.0");
    QVERIFY(warning());
    QCOMPARE(labelText(&page, "firmwareLabel"), QString("1.14.0"));
}

void tst_melvoxUiReceiverInformation::showsTheIridiumModem()
{
    melvoxUiReceiverInformation_t page(device);
    receiver->report("irdmStat",
                     map("imei", "300234010753370", "provisioningStatus", "Provisioned", "modemStatus", "secret"));
    QCOMPARE(labelText(&page, "edgeSerialNumberLabel"), QString("300234010753370"));
    QCOMPARE(labelText(&page, "provisioningStatusLabel"), QString("Provisioned"));
    for (QLabel const* label : page.findChildren<QLabel*>())
        QVERIFY(!label->text().contains("secret"));
}

void tst_melvoxUiReceiverInformation::showsTheLteModem()
{
    melvoxUiReceiverInformation_t page(device);
    receiver->report("lteModemStat", map("rssi", "-71 dBm", "networkStatus", "ROAMING", "modemStatus", "ON"));
    QCOMPARE(labelText(&page, "lteRssiLabel"), QString("-71 dBm"));
    QCOMPARE(labelText(&page, "lteNetworkStatusLabel"), QString("ROAMING"));
    QCOMPARE(labelText(&page, "lteModemStatusLabel"), QString("ON"));
}

void tst_melvoxUiReceiverInformation::lightsUpForMessages_data()
{
    QTest::addColumn<int>("stream");
    QTest::addColumn<bool>("pvt");
    QTest::addColumn<bool>("other");
    QTest::newRow("position") << 0 << true << false;
    QTest::newRow("heading") << 1 << false << false;
    QTest::newRow("correction satellites") << 2 << false << false;
    QTest::newRow("any other") << 3 << false << true;
}

void tst_melvoxUiReceiverInformation::lightsUpForMessages()
{
    QFETCH(int, stream);
    QFETCH(bool, pvt);
    QFETCH(bool, other);
    melvoxUiReceiverInformation_t page(device);
    QMetaObject::invokeMethod(device, "messageReceived", Q_ARG(int, stream));
    QCOMPARE(find<QLabel>(&page, "pvtLightLabel")->property("lit").toBool(), pvt);
    QCOMPARE(find<QLabel>(&page, "otherLightLabel")->property("lit").toBool(), other);
}

void tst_melvoxUiReceiverInformation::letsTheModemBeToggledBeforeItHasTold()
{
    melvoxUiReceiverInformation_t page(device);
    QVERIFY(canToggle(&page));
    tap(&page, "toggleLteModemButton");
    QCOMPARE(receiver->commands(), QStringList("lteModemStat on=false"));
}

void tst_melvoxUiReceiverInformation::disablesTheToggleWhileThePendingLasts_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("PENDING") << "PENDING" << false;
    QTest::newRow("in lower case") << "pending" << true;
    QTest::newRow("with a blank") << "PENDING " << true;
    QTest::newRow("ON") << "ON" << true;
    QTest::newRow("OFF") << "OFF" << true;
    QTest::newRow("empty") << "" << true;
}

void tst_melvoxUiReceiverInformation::disablesTheToggleWhileThePendingLasts()
{
    QFETCH(QString, status);
    QFETCH(bool, enabled);
    melvoxUiReceiverInformation_t page(device);
    tellModem(qPrintable(status));
    QCOMPARE(canToggle(&page), enabled);
}

void tst_melvoxUiReceiverInformation::asksBeforeItSwitchesOn()
{
    melvoxUiReceiverInformation_t page(device);
    tellModem("OFF");
    tap(&page, "toggleLteModemButton");
    QVERIFY(receiver->sent().isEmpty());
    QVERIFY(openBox());
    QCOMPARE(openBox()->windowTitle(), QString("Toggle the LTE modem?"));
    QCOMPARE(openBox()->icon(), QMessageBox::Warning);
    QCOMPARE(openBox()->standardButtons(), QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(openBox()->textFormat(), Qt::RichText);
    QCOMPARE(static_cast<QAbstractButton*>(openBox()->defaultButton()), openBox()->button(QMessageBox::No));
    QCOMPARE(
        reportedErrors(),
        QString("<p><center>You must have confirmation from Brel Support that this function is operational on this "
                "receiver.</center></p><p><center>LTE is <b>ONLY</b> used for remote diagnostic purposes.</center></p>"
                "<p><center>(Press <b>Yes</b> to toggle, <b>No</b> to cancel)</center></p>"));
}

void tst_melvoxUiReceiverInformation::switchesOnOnlyOnYes_data()
{
    QTest::addColumn<int>("reply");
    QTest::newRow("Yes") << int(QMessageBox::Yes);
    QTest::newRow("No") << int(QMessageBox::No);
    QTest::newRow("closed") << 0;
}

void tst_melvoxUiReceiverInformation::switchesOnOnlyOnYes()
{
    QFETCH(int, reply);
    melvoxUiReceiverInformation_t page(device);
    tellModem("OFF");
    tap(&page, "toggleLteModemButton");
    if (reply)
        answer(QMessageBox::StandardButton(reply));
    else
        melvox_test::closeBox();
    bool const yes = reply == QMessageBox::Yes;
    QCOMPARE(receiver->sent(), yes ? QStringList() << "command lteModemStat on=true"
                                                   << "request lteModemStat"
                                   : QStringList());
    QCOMPARE(canToggle(&page), !yes);
}

void tst_melvoxUiReceiverInformation::switchesOffAtOnceFromAnyOtherStatus_data()
{
    QTest::addColumn<QString>("status");
    QTest::newRow("ON") << "ON";
    QTest::newRow("off in lower case") << "off";
    QTest::newRow("OFF with a blank") << "OFF ";
    QTest::newRow("anything") << "SEARCHING";
}

void tst_melvoxUiReceiverInformation::switchesOffAtOnceFromAnyOtherStatus()
{
    QFETCH(QString, status);
    melvoxUiReceiverInformation_t page(device);
    tellModem(qPrintable(status));
    tap(&page, "toggleLteModemButton");
    QVERIFY(!openBox());
    // Without a question about the status: the receiver tells by itself.
    QCOMPARE(receiver->sent(), QStringList("command lteModemStat on=false"));
    QVERIFY(!canToggle(&page));
}

void tst_melvoxUiReceiverInformation::enablesTheToggleWithTheNextReport()
{
    melvoxUiReceiverInformation_t page(device);
    tellModem("ON");
    tap(&page, "toggleLteModemButton");
    tellModem("PENDING");
    QVERIFY(!canToggle(&page));
    tellModem("OFF");
    QVERIFY(canToggle(&page));
}

void tst_melvoxUiReceiverInformation::canBeDestroyedWithItsDialogsOpen()
{
    {
        melvoxUiReceiverInformation_t page(device);
        tellVersion("NAV", "1.0");
        tellModem("OFF");
        tap(&page, "toggleLteModemButton");
        QVERIFY(warning());
        QVERIFY(openBox());
    }
    QVERIFY(!warning());
    QVERIFY(!openBox());
}

QTEST_MAIN(tst_melvoxUiReceiverInformation)
#include "tst_melvoxUiReceiverInformation.moc"
