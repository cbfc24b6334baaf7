#include "melvox_ui/melvoxUiPortConfiguration.h"

#include "brel_common_qt/kitPort.h"
#include "melvox_ui/melvoxUiPhysicalPortConfigDialog.h"
#include "melvox_ui/melvoxUiVirtualPortConfigDialog.h"
#include "support/pageTest.h"

#include <QGroupBox>
#include <QHeaderView>
#include <QPushButton>
#include <QStackedWidget>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

namespace
{

QTreeWidget* physicalTree(QWidget* page)
{
    return find<QTreeWidget>(page, "physicalTreeWidget");
}

QTreeWidget* virtualTree(QWidget* page)
{
    return find<QTreeWidget>(page, "virtualTreeWidget");
}

QString rowText(QTreeWidget* tree, int row)
{
    return melvox_test::rowTexts(tree, row).join("|");
}

void selectRow(QTreeWidget* tree, int row)
{
    tree->setCurrentItem(tree->topLevelItem(row));
}

/** As an operator's finger does it: the first tap selects. */
void doubleTapRow(QTreeWidget* tree, int row)
{
    QTreeWidgetItem* const item = tree->topLevelItem(row);
    tree->scrollToItem(item);
    QPoint const place = tree->visualItemRect(item).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
}

QDialog* physicalDialog(QWidget* page)
{
    return page->findChild<melvoxUiPhysicalPortConfigDialog_t*>();
}

QDialog* virtualDialog(QWidget* page)
{
    return page->findChild<melvoxUiVirtualPortConfigDialog_t*>();
}

bool buttonShown(QWidget* page, QString const& name)
{
    return !melvox_test::button(page, name)->isHidden();
}

bool canConfigure(QWidget* page)
{
    return melvox_test::button(page, "Configure Port")->isEnabled();
}

/** A display whose own link is a serial line. */
struct serialDisplay_t
{
    explicit serialDisplay_t(unsigned int baud)
    {
        melvox_link::line_t const line = {baud, 7, 'O', 2};
        link.makeSerial(line);
        device.reset(new remoteMelvoxDevice_t(melvox_kit::createPort(&link, melvox_kit::LINK_SERIAL)));
    }

    melvox_link::scriptedLink_t link;
    QScopedPointer<remoteMelvoxDevice_t> device;
};

} // namespace

class tst_melvoxUiPortConfiguration : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    void reportSerial(int port, unsigned int baud, int charSize, int parity, int stopBits);
    void reportVirtual(int port, bool enabled, int mode, unsigned int address, int remotePort, int localPort);

private slots:
    // rows
    void startsWithEmptyTables();
    void showsAPhysicalPortAsReported();
    void showsAVirtualPortAsReported();
    void appendsPortsInTheOrderOfTheirReports();
    void changesTheRowOfAPortThatIsThereAlready();
    void tellsTheSerialModeFromThePortWithEachConfiguration_data();
    void tellsTheSerialModeFromThePortWithEachConfiguration();
    void showsTheReportedSerialModeUntilTheNextConfiguration();
    void addsARowForASerialModeAlone();
    void showsTheModeOfAVirtualPort_data();
    void showsTheModeOfAVirtualPort();
    void showsTheMostSignificantByteOfAnAddressFirst();
    void namesTheDeviceWhenTheRowAppearsAndNeverAgain();
    // selection
    void configuresOnlyASelectedPort();
    void refusesTheActivePortsRow();
    void checksTheSelectionAgainWhenTheActivePortChanges();
    void checksTheTableThatIsShown();
    // dialogs
    void opensThePhysicalPortWithItsSettings();
    void opensAPhysicalPortByADoubleTap();
    void opensTheActivePhysicalPortByADoubleTapAllTheSame();
    void opensTheVirtualPortWithItsSettings();
    void opensAVirtualPortByADoubleTapUnlessItIsActive();
    void opensNothingWithoutASelection();
    void renewsTheDialogBeforeEachShowing();
    void switchesBetweenItsTwoPages();
    // USB mode and active port
    void asksForTheActivePortWhileItIsNotKnown();
    void showsNoUsbModeBeforeTheFirstReport();
    void letsTheUsbModeBeSetOnlyWhenBothAreKnown();
    void refusesTheUsbModeOverTheUsbLink_data();
    void refusesTheUsbModeOverTheUsbLink();
    void fillsTheUsbModeFromTheFirstReportOnly();
    void resetBringsTheUsbModeBack();
    void sendsEachUsbMode_data();
    void sendsEachUsbMode();
    void sendsNoUsbModeItDoesNotOffer();
    void asksForActivePortAndUsbMode();
    // baud rate
    void speedsUpItsOwnLineAndSaysSo();
    void showsTheFirstBadRateAgain();
    void doesNothingAboutABadRateOfALinkWithoutALine();
    void doesNothingAboutABadRateOfALineThatIsNotKnown();
    void keepsItsTables();
    void goesAwayWithOpenDialogs();
};

void tst_melvoxUiPortConfiguration::reportSerial(int port, unsigned int baud, int charSize, int parity, int stopBits)
{
    receiver->report("serialConfig",
                     map("port", port, "baud", baud, "charSize", charSize, "parity", parity, "stopBits", stopBits));
}

void tst_melvoxUiPortConfiguration::reportVirtual(int port, bool enabled, int mode, unsigned int address,
                                                  int remotePort, int localPort)
{
    receiver->report("vcomConfig", map("port", port, "enabled", enabled, "mode", mode, "remoteAddress", address,
                                       "remotePort", remotePort, "localPort", localPort));
}

void tst_melvoxUiPortConfiguration::startsWithEmptyTables()
{
    melvoxUiPortConfiguration_t page(device);
    QCOMPARE(physicalTree(&page)->topLevelItemCount(), 0);
    QCOMPARE(virtualTree(&page)->topLevelItemCount(), 0);
    QCOMPARE(find<QStackedWidget>(&page, "stackedWidget")->currentWidget()->objectName(), QString("physicalPage"));
    QVERIFY(!canConfigure(&page));
}

void tst_melvoxUiPortConfiguration::showsAPhysicalPortAsReported()
{
    melvoxUiPortConfiguration_t page(device);
    receiver->report("activePort", 0);
    reportSerial(2, 38400, 0, 2, 1);
    QCOMPARE(rowText(physicalTree(&page), 0), QString("COM3|38400|7|Even|2|RS-422|Auxiliary"));
}

void tst_melvoxUiPortConfiguration::showsAVirtualPortAsReported()
{
    melvoxUiPortConfiguration_t page(device);
    receiver->report("activePort", 7);
    reportVirtual(7, true, 0, 0x0A010203u, 5001, 4902);
    reportVirtual(8, false, 1, 0xC0A80A14u, 65535, 0);
    QCOMPARE(rowText(virtualTree(&page), 0),
             QString("ETH2|%1|UDP (Restrict)|10.1.2.3|5001|4902|Telvar").arg(YesString));
    QCOMPARE(rowText(virtualTree(&page), 1), QString("ETH3|%1|TCP|192.168.10.20|65535|0|Auxiliary").arg(NoString));
}

void tst_melvoxUiPortConfiguration::appendsPortsInTheOrderOfTheirReports()
{
    melvoxUiPortConfiguration_t page(device);
    reportSerial(3, 9600, 1, 0, 0);
    reportSerial(0, 9600, 1, 0, 0);
    reportVirtual(9, true, 0, 1, 2, 3);
    reportVirtual(6, true, 0, 1, 2, 3);
    QCOMPARE(physicalTree(&page)->topLevelItem(0)->text(0), QString("COM4"));
    QCOMPARE(physicalTree(&page)->topLevelItem(1)->text(0), QString("COM1"));
    QCOMPARE(virtualTree(&page)->topLevelItem(0)->text(0), QString("ETH4"));
    QCOMPARE(virtualTree(&page)->topLevelItem(1)->text(0), QString("ETH1"));
}

void tst_melvoxUiPortConfiguration::changesTheRowOfAPortThatIsThereAlready()
{
    melvoxUiPortConfiguration_t page(device);
    reportSerial(0, 9600, 1, 0, 0);
    reportSerial(1, 9600, 1, 0, 0);
    reportSerial(0, 115200, 1, 1, 0);
    QCOMPARE(physicalTree(&page)->topLevelItemCount(), 2);
    QCOMPARE(rowText(physicalTree(&page), 0), QString("COM1|115200|8|Odd|1|RS-232|Auxiliary"));
    reportVirtual(6, true, 0, 1, 2, 3);
    reportVirtual(6, false, 0, 1, 2, 3);
    QCOMPARE(virtualTree(&page)->topLevelItemCount(), 1);
    QCOMPARE(virtualTree(&page)->topLevelItem(0)->text(1), NoString);
}

void tst_melvoxUiPortConfiguration::tellsTheSerialModeFromThePortWithEachConfiguration_data()
{
    QTest::addColumn<int>("port");
    QTest::addColumn<QString>("mode");
    QTest::newRow("COM1") << 0 << "RS-232";
    QTest::newRow("COM2") << 1 << "RS-232";
    QTest::newRow("COM3") << 2 << "RS-422";
    QTest::newRow("COM4") << 3 << "RS-422";
    QTest::newRow("USB1") << 4 << "RS-422";
    QTest::newRow("USB2") << 5 << "RS-422";
}

void tst_melvoxUiPortConfiguration::tellsTheSerialModeFromThePortWithEachConfiguration()
{
    QFETCH(int, port);
    QFETCH(QString, mode);
    melvoxUiPortConfiguration_t page(device);
    receiver->report("serialRs232Mode", map("port", port, "rs232", mode != "RS-232"));
    QVERIFY(physicalTree(&page)->topLevelItem(0)->text(5) != mode);
    reportSerial(port, 9600, 1, 0, 0);
    QCOMPARE(physicalTree(&page)->topLevelItem(0)->text(5), mode);
    QCOMPARE(physicalTree(&page)->topLevelItemCount(), 1);
}

void tst_melvoxUiPortConfiguration::showsTheReportedSerialModeUntilTheNextConfiguration()
{
    melvoxUiPortConfiguration_t page(device);
    reportSerial(2, 9600, 1, 0, 0);
    receiver->report("serialRs232Mode", map("port", 2, "rs232", true));
    QCOMPARE(physicalTree(&page)->topLevelItem(0)->text(5), QString("RS-232"));
    selectRow(physicalTree(&page), 0);
    tap(&page, "Configure Port");
    QCOMPARE(labelText(physicalDialog(&page), "serialRs232ModeLabel"), QString("RS-232"));
    reportSerial(2, 9600, 1, 0, 0);
    QCOMPARE(physicalTree(&page)->topLevelItem(0)->text(5), QString("RS-422"));
}

void tst_melvoxUiPortConfiguration::addsARowForASerialModeAlone()
{
    melvoxUiPortConfiguration_t page(device);
    receiver->report("serialRs232Mode", map("port", 1, "rs232", false));
    QCOMPARE(rowText(physicalTree(&page), 0), QString("COM2|||||RS-422|Auxiliary"));
}

void tst_melvoxUiPortConfiguration::showsTheModeOfAVirtualPort_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<QString>("text");
    QTest::newRow("UDP") << int(MODE_UDP_RESTRICT) << "UDP (Restrict)";
    QTest::newRow("TCP") << int(MODE_TCP_REGULAR) << "TCP";
    QTest::newRow("another") << 2 << UnknownString;
}

void tst_melvoxUiPortConfiguration::showsTheModeOfAVirtualPort()
{
    QFETCH(int, mode);
    QFETCH(QString, text);
    melvoxUiPortConfiguration_t page(device);
    reportVirtual(6, true, mode, 1, 2, 3);
    QCOMPARE(virtualTree(&page)->topLevelItem(0)->text(2), text);
}

void tst_melvoxUiPortConfiguration::showsTheMostSignificantByteOfAnAddressFirst()
{
    melvoxUiPortConfiguration_t page(device);
    reportVirtual(6, true, 0, 0x01020304u, 2, 3);
    QCOMPARE(virtualTree(&page)->topLevelItem(0)->text(3), QString("1.2.3.4"));
}

void tst_melvoxUiPortConfiguration::namesTheDeviceWhenTheRowAppearsAndNeverAgain()
{
    melvoxUiPortConfiguration_t page(device);
    reportSerial(0, 9600, 1, 0, 0);
    receiver->report("activePort", 0);
    reportSerial(0, 19200, 1, 0, 0);
    QCOMPARE(physicalTree(&page)->topLevelItem(0)->text(6), QString("Auxiliary"));
    receiver->report("activePort", 1);
    reportSerial(1, 9600, 1, 0, 0);
    QCOMPARE(physicalTree(&page)->topLevelItem(1)->text(6), QString("Telvar"));
    receiver->report("activePort", 2);
    reportSerial(1, 9600, 1, 0, 0);
    QCOMPARE(physicalTree(&page)->topLevelItem(1)->text(6), QString("Telvar"));
}

void tst_melvoxUiPortConfiguration::configuresOnlyASelectedPort()
{
    melvoxUiPortConfiguration_t page(device);
    receiver->report("activePort", 0);
    reportSerial(1, 9600, 1, 0, 0);
    QVERIFY(!canConfigure(&page));
    selectRow(physicalTree(&page), 0);
    QVERIFY(canConfigure(&page));
    physicalTree(&page)->clearSelection();
    QVERIFY(!canConfigure(&page));
}

void tst_melvoxUiPortConfiguration::refusesTheActivePortsRow()
{
    melvoxUiPortConfiguration_t page(device);
    receiver->report("activePort", 1);
    reportSerial(0, 9600, 1, 0, 0);
    reportSerial(1, 9600, 1, 0, 0);
    selectRow(physicalTree(&page), 1);
    QVERIFY(!canConfigure(&page));
    selectRow(physicalTree(&page), 0);
    QVERIFY(canConfigure(&page));
}

void tst_melvoxUiPortConfiguration::checksTheSelectionAgainWhenTheActivePortChanges()
{
    melvoxUiPortConfiguration_t page(device);
    receiver->report("activePort", 0);
    reportSerial(1, 9600, 1, 0, 0);
    selectRow(physicalTree(&page), 0);
    receiver->report("activePort", 1);
    QVERIFY(!canConfigure(&page));
    receiver->report("activePort", 2);
    QVERIFY(canConfigure(&page));
}

void tst_melvoxUiPortConfiguration::checksTheTableThatIsShown()
{
    melvoxUiPortConfiguration_t page(device);
    receiver->report("activePort", 7);
    reportSerial(0, 9600, 1, 0, 0);
    reportVirtual(7, true, 0, 1, 2, 3);
    reportVirtual(8, true, 0, 1, 2, 3);
    selectRow(physicalTree(&page), 0);
    tap(&page, "Virtual");
    QVERIFY(!canConfigure(&page));
    selectRow(virtualTree(&page), 0);
    QVERIFY(!canConfigure(&page));
    selectRow(virtualTree(&page), 1);
    QVERIFY(canConfigure(&page));
    receiver->report("activePort", 8);
    QVERIFY(!canConfigure(&page));
    tap(&page, "Physical");
    QVERIFY(canConfigure(&page));
}

void tst_melvoxUiPortConfiguration::opensThePhysicalPortWithItsSettings()
{
    melvoxUiPortConfiguration_t page(device);
    receiver->report("activePort", 0);
    reportSerial(2, 4800, 1, 2, 1);
    selectRow(physicalTree(&page), 0);
    tap(&page, "Configure Port");
    QDialog* const dialog = physicalDialog(&page);
    QVERIFY(dialog->isVisible());
    QVERIFY(!virtualDialog(&page)->isVisible());
    QCOMPARE(labelText(dialog, "portLabel"), QString("COM3"));
    QCOMPARE(labelText(dialog, "serialRs232ModeLabel"), QString("RS-422"));
    QCOMPARE(chosen(dialog, "baudCombo"), QString("4800"));
    QCOMPARE(chosen(dialog, "parityCombo"), QString("Even"));
    QCOMPARE(chosen(dialog, "stopBitsCombo"), QString("2"));
    tap(dialog, "OK");
    QCOMPARE(receiver->commands(), QStringList("serialConfig baud=4800 charSize=1 parity=2 port=2 stopBits=1"));
}

void tst_melvoxUiPortConfiguration::opensAPhysicalPortByADoubleTap()
{
    melvoxUiPortConfiguration_t page(device);
    page.show();
    receiver->report("activePort", 0);
    reportSerial(0, 9600, 1, 0, 0);
    reportSerial(3, 9600, 1, 0, 0);
    doubleTapRow(physicalTree(&page), 1);
    QVERIFY(physicalDialog(&page)->isVisible());
    QCOMPARE(labelText(physicalDialog(&page), "portLabel"), QString("COM4"));
}

void tst_melvoxUiPortConfiguration::opensTheActivePhysicalPortByADoubleTapAllTheSame()
{
    melvoxUiPortConfiguration_t page(device);
    page.show();
    receiver->report("activePort", 0);
    reportSerial(0, 9600, 1, 0, 0);
    doubleTapRow(physicalTree(&page), 0);
    QVERIFY(!canConfigure(&page));
    QVERIFY(physicalDialog(&page)->isVisible());
    QCOMPARE(labelText(physicalDialog(&page), "portLabel"), QString("COM1"));
}

void tst_melvoxUiPortConfiguration::opensTheVirtualPortWithItsSettings()
{
    melvoxUiPortConfiguration_t page(device);
    receiver->report("activePort", 0);
    reportVirtual(9, true, 0, 0x0A010203u, 5001, 4902);
    tap(&page, "Virtual");
    selectRow(virtualTree(&page), 0);
    tap(&page, "Configure Port");
    QDialog* const dialog = virtualDialog(&page);
    QVERIFY(dialog->isVisible());
    QVERIFY(!physicalDialog(&page)->isVisible());
    QCOMPARE(labelText(dialog, "portLabel"), QString("ETH4"));
    QCOMPARE(editText(dialog, "remoteAddressLineEdit"), QString("10.1.2.3"));
    tap(dialog, "OK");
    QCOMPARE(receiver->commands(),
             QStringList("vcomConfig enabled=true localPort=4902 mode=0 port=9 remoteAddress=167838211 "
                         "remotePort=5001"));
}

void tst_melvoxUiPortConfiguration::opensAVirtualPortByADoubleTapUnlessItIsActive()
{
    melvoxUiPortConfiguration_t page(device);
    page.show();
    receiver->report("activePort", 7);
    reportVirtual(7, true, 0, 1, 2, 3);
    reportVirtual(8, true, 0, 1, 2, 3);
    tap(&page, "Virtual");
    doubleTapRow(virtualTree(&page), 0);
    QCOMPARE(virtualTree(&page)->selectedItems().size(), 1);
    QVERIFY(!virtualDialog(&page)->isVisible());
    doubleTapRow(virtualTree(&page), 1);
    QVERIFY(virtualDialog(&page)->isVisible());
    QCOMPARE(labelText(virtualDialog(&page), "portLabel"), QString("ETH3"));
}

void tst_melvoxUiPortConfiguration::opensNothingWithoutASelection()
{
    melvoxUiPortConfiguration_t page(device);
    reportSerial(0, 9600, 1, 0, 0);
    page.configureSelectedPort();
    QVERIFY(!physicalDialog(&page)->isVisible());
    page.showVirtualPage();
    page.configureSelectedPort();
    QVERIFY(!virtualDialog(&page)->isVisible());
}

void tst_melvoxUiPortConfiguration::renewsTheDialogBeforeEachShowing()
{
    melvoxUiPortConfiguration_t page(device);
    receiver->report("activePort", 0);
    reportSerial(2, 4800, 1, 0, 0);
    selectRow(physicalTree(&page), 0);
    tap(&page, "Configure Port");
    choose(physicalDialog(&page), "baudCombo", "230400");
    tap(physicalDialog(&page), "Cancel");
    reportSerial(2, 19200, 1, 0, 0);
    tap(&page, "Configure Port");
    QCOMPARE(chosen(physicalDialog(&page), "baudCombo"), QString("19200"));
}

void tst_melvoxUiPortConfiguration::switchesBetweenItsTwoPages()
{
    melvoxUiPortConfiguration_t page(device);
    QStackedWidget const* const stack = find<QStackedWidget>(&page, "stackedWidget");
    QVERIFY(buttonShown(&page, "Virtual"));
    QVERIFY(!buttonShown(&page, "Physical"));
    tap(&page, "Virtual");
    QCOMPARE(stack->currentWidget()->objectName(), QString("virtualPage"));
    QVERIFY(!buttonShown(&page, "Virtual"));
    QVERIFY(buttonShown(&page, "Physical"));
    tap(&page, "Physical");
    QCOMPARE(stack->currentWidget()->objectName(), QString("physicalPage"));
    QVERIFY(buttonShown(&page, "Virtual"));
    QVERIFY(!buttonShown(&page, "Physical"));
}

void tst_melvoxUiPortConfiguration::asksForTheActivePortWhileItIsNotKnown()
{
    melvoxUiPortConfiguration_t page(device);
    QVERIFY(!receiver->requests().isEmpty());
    QCOMPARE(receiver->requests().filter("activePort").size(), receiver->sent().size());
    receiver->clear();
    receiver->report("usbMode", 1);
    QCOMPARE(receiver->requests(), QStringList("activePort"));
    receiver->report("activePort", 0);
    receiver->clear();
    receiver->report("usbMode", 0);
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiPortConfiguration::showsNoUsbModeBeforeTheFirstReport()
{
    melvoxUiPortConfiguration_t page(device);
    QCOMPARE(labelText(&page, "usbModeLabel"), NoDataString);
    QVERIFY(!isEnabled(&page, "usbModeCombo"));
    tap(&page, "Apply");
    tap(&page, "Reset");
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiPortConfiguration::letsTheUsbModeBeSetOnlyWhenBothAreKnown()
{
    melvoxUiPortConfiguration_t page(device);
    receiver->report("activePort", 0);
    QVERIFY(!isEnabled(&page, "usbModeCombo"));
    receiver->report("usbMode", 1);
    QVERIFY(isEnabled(&page, "usbModeCombo"));

    melvox_link::scriptedLink_t other;
    remoteMelvoxDevice_t otherDevice(melvox_kit::createPort(&other, melvox_kit::LINK_OTHER));
    melvoxUiPortConfiguration_t otherPage(&otherDevice);
    other.report("usbMode", 1);
    QVERIFY(!isEnabled(&otherPage, "usbModeCombo"));
    QCOMPARE(labelText(&otherPage, "usbModeLabel"), QString("Mass Storage"));
    other.report("activePort", 0);
    QVERIFY(isEnabled(&otherPage, "usbModeCombo"));
}

void tst_melvoxUiPortConfiguration::refusesTheUsbModeOverTheUsbLink_data()
{
    QTest::addColumn<int>("port");
    QTest::addColumn<bool>("allowed");
    QTest::newRow("COM4") << 3 << true;
    QTest::newRow("USB1") << 4 << false;
    QTest::newRow("USB2") << 5 << true;
    QTest::newRow("ETH1") << 6 << true;
}

void tst_melvoxUiPortConfiguration::refusesTheUsbModeOverTheUsbLink()
{
    QFETCH(int, port);
    QFETCH(bool, allowed);
    melvoxUiPortConfiguration_t page(device);
    receiver->report("usbMode", 1);
    receiver->report("activePort", port);
    QCOMPARE(isEnabled(&page, "usbModeCombo"), allowed);
    tap(&page, "Apply");
    QCOMPARE(receiver->commands(), allowed ? QStringList("usbMode 1") : QStringList());
}

void tst_melvoxUiPortConfiguration::fillsTheUsbModeFromTheFirstReportOnly()
{
    melvoxUiPortConfiguration_t page(device);
    receiver->report("activePort", 0);
    receiver->report("usbMode", 1);
    QCOMPARE(chosen(&page, "usbModeCombo"), QString("Mass Storage"));
    receiver->report("usbMode", 0);
    QCOMPARE(chosen(&page, "usbModeCombo"), QString("Mass Storage"));
    QCOMPARE(labelText(&page, "usbModeLabel"), QString("Serial Port"));
}

void tst_melvoxUiPortConfiguration::resetBringsTheUsbModeBack()
{
    melvoxUiPortConfiguration_t page(device);
    receiver->report("activePort", 0);
    receiver->report("usbMode", 1);
    choose(&page, "usbModeCombo", "Serial Port");
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "usbModeCombo"), QString("Mass Storage"));
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiPortConfiguration::sendsEachUsbMode_data()
{
    QTest::addColumn<QString>("sent");
    QTest::newRow("Serial Port") << "usbMode 0";
    QTest::newRow("Mass Storage") << "usbMode 1";
}

void tst_melvoxUiPortConfiguration::sendsEachUsbMode()
{
    QFETCH(QString, sent);
    melvoxUiPortConfiguration_t page(device);
    receiver->report("activePort", 0);
    receiver->report("usbMode", 0);
    choose(&page, "usbModeCombo", QTest::currentDataTag());
    tap(&page, "Apply");
    QCOMPARE(receiver->commands(), QStringList(sent));
}

void tst_melvoxUiPortConfiguration::sendsNoUsbModeItDoesNotOffer()
{
    melvoxUiPortConfiguration_t page(device);
    receiver->report("activePort", 0);
    receiver->report("usbMode", 2);
    QCOMPARE(labelText(&page, "usbModeLabel"), QString());
    tap(&page, "Apply");
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiPortConfiguration::asksForActivePortAndUsbMode()
{
    melvoxUiPortConfiguration_t page(device);
    receiver->clear();
    tap(&page, "Query");
    QCOMPARE(receiver->sent(), QStringList() << "request activePort"
                                             << "request usbMode");
}

void tst_melvoxUiPortConfiguration::speedsUpItsOwnLineAndSaysSo()
{
    serialDisplay_t display(9600);
    melvoxUiPortConfiguration_t page(display.device.data());
    display.link.clear();
    display.link.event("badBaud");
    QCOMPARE(display.link.lines(), QStringList("115200 7O2"));
    QCOMPARE(display.link.commands(), QStringList("serialConfig baud=115200 charSize=0 parity=1 stopBits=1"));
    QMessageBox const* const box = melvox_test::openBox();
    QVERIFY(box);
    QCOMPARE(box->windowTitle(), QString("Invalid MELVOX Baud Rate"));
    QCOMPARE(box->icon(), QMessageBox::Warning);
    QCOMPARE(int(box->standardButtons()), int(QMessageBox::Ok));
    QCOMPARE(reportedErrors(),
             QString("The MELVOX is connected at a baud rate (9600) below the recommended minimum (115200).\n"
                     "Attempting to change the baud rate to the recommended minimum.\n"
                     "In the event the baud rate remains unchanged, please connect again directly at the current "
                     "baud rate 9600."));
}

void tst_melvoxUiPortConfiguration::showsTheFirstBadRateAgain()
{
    serialDisplay_t display(9600);
    melvoxUiPortConfiguration_t page(display.device.data());
    display.link.event("badBaud");
    QString const first = reportedErrors();
    melvox_link::line_t const slow = {19200, 8, 'N', 1};
    display.link.makeSerial(slow);
    display.link.event("badBaud");
    QVERIFY(display.link.lines().contains("115200 8N1"));
    QCOMPARE(reportedErrors(), first);
    QVERIFY(first.contains("9600"));
}

void tst_melvoxUiPortConfiguration::doesNothingAboutABadRateOfALinkWithoutALine()
{
    melvoxUiPortConfiguration_t page(device);
    receiver->clear();
    receiver->event("badBaud");
    QVERIFY(!melvox_test::openBox());
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiPortConfiguration::doesNothingAboutABadRateOfALineThatIsNotKnown()
{
    melvox_link::scriptedLink_t link;
    remoteMelvoxDevice_t serial(melvox_kit::createPort(&link, melvox_kit::LINK_SERIAL));
    melvoxUiPortConfiguration_t page(&serial);
    link.clear();
    link.event("badBaud");
    QVERIFY(!melvox_test::openBox());
    QVERIFY(link.sent().isEmpty());
    QVERIFY(link.lines().isEmpty());
}

void tst_melvoxUiPortConfiguration::keepsItsTables()
{
    melvoxUiPortConfiguration_t page(device);
    QCOMPARE(melvox_test::headerTexts(physicalTree(&page)).join("|"),
             QString("Port|Baud Rate|Data Bits|Parity|Stop Bits|Serial Mode|Device"));
    QCOMPARE(melvox_test::headerTexts(virtualTree(&page)).join("|"),
             QString("Port|Enabled|Mode|Remote Address|Remote Port|Local Port|Device"));
    QCOMPARE(find<QGroupBox>(&page, "physicalGroup")->title(), QString("Serial Port Configuration"));
    QCOMPARE(find<QGroupBox>(&page, "virtualGroup")->title(), QString("Ethernet Virtual Ports"));
    QCOMPARE(find<QGroupBox>(&page, "portSettingsGroup")->title(), QString("Port Settings"));
    QCOMPARE(labelText(&page, "usbModeTitleLabel"), QString("USB Mode:"));
    // Columns follow their contents.
    page.show();
    reportSerial(0, 9600, 1, 0, 0);
    melvox_test::settle();
    int const before = physicalTree(&page)->columnWidth(1);
    reportSerial(0, 4294967295u, 1, 0, 0);
    melvox_test::settle();
    QVERIFY(physicalTree(&page)->columnWidth(1) > before);
}

void tst_melvoxUiPortConfiguration::goesAwayWithOpenDialogs()
{
    serialDisplay_t display(9600);
    {
        melvoxUiPortConfiguration_t page(display.device.data());
        display.link.report("serialConfig", map("port", 1, "baud", 9600, "charSize", 1, "parity", 0, "stopBits", 0));
        selectRow(physicalTree(&page), 0);
        tap(&page, "Configure Port");
        display.link.event("badBaud");
        QVERIFY(melvox_test::openBox());
    }
    QVERIFY(!melvox_test::openBox());
    display.link.event("badBaud");
    QVERIFY(!melvox_test::openBox());
}

QTEST_MAIN(tst_melvoxUiPortConfiguration)
#include "tst_melvoxUiPortConfiguration.moc"
