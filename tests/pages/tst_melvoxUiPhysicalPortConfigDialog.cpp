#include "melvox_ui/melvoxUiPhysicalPortConfigDialog.h"

#include "brel_common_qt/kitPort.h"
#include "support/pageTest.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QPushButton>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

namespace
{

char const* const NOT_CHANGED = "The line settings of COM1 were not changed: the display's own link is no serial line, "
                                "or its settings are not known";

melvoxSerialPortConfig_t serialConfig(unsigned int baud, charSize_t charSize, parity_t parity, stopBits_t stopBits)
{
    melvoxSerialPortConfig_t const config = {baud, charSize, parity, stopBits};
    return config;
}

/** A display whose own link is a serial line. */
struct serialDisplay_t
{
    serialDisplay_t()
    {
        melvox_link::line_t const line = {57600, 7, 'E', 2};
        link.makeSerial(line);
        device.reset(new remoteMelvoxDevice_t(melvox_kit::createPort(&link, melvox_kit::LINK_SERIAL)));
    }

    melvox_link::scriptedLink_t link;
    QScopedPointer<remoteMelvoxDevice_t> device;
};

} // namespace

class tst_melvoxUiPhysicalPortConfigDialog : public melvox_test::pageTest_t
{
    Q_OBJECT

private slots:
    void startsWithoutAPort();
    void showsThePortAndItsSerialMode();
    void offersTheChoicesOfEachSetting_data();
    void offersTheChoicesOfEachSetting();
    void showsTheSettingsOfThePort_data();
    void showsTheSettingsOfThePort();
    void choosesNoRateForOneThatIsNotOffered_data();
    void choosesNoRateForOneThatIsNotOffered();
    void sendsWhatWasChosen();
    void sendsEachSettingAsItsNumber_data();
    void sendsEachSettingAsItsNumber();
    void sendsEightDataBitsForAPortWithSeven();
    void sendsARateOfZeroWhenNoneIsChosen();
    void staysOpenAndSendsNothingWithoutAChoice_data();
    void staysOpenAndSendsNothingWithoutAChoice();
    void sendsNothingWhenCancelled();
    void movesTheDisplaysOwnLineForTheActivePort();
    void sendsACommandForAnyOtherPortOverASerialLine();
    void changesNothingForTheActivePortOfALinkWithoutALine();
    void changesNothingForTheActivePortOfALineThatIsNotKnown();
    void sendsACommandWhileTheActivePortIsNotKnown();
    void keepsItsTexts_data();
    void keepsItsTexts();
};

void tst_melvoxUiPhysicalPortConfigDialog::startsWithoutAPort()
{
    melvoxUiPhysicalPortConfigDialog_t dialog(device, 0);
    QCOMPARE(labelText(&dialog, "portLabel"), QString("--"));
}

void tst_melvoxUiPhysicalPortConfigDialog::showsThePortAndItsSerialMode()
{
    melvoxUiPhysicalPortConfigDialog_t dialog(device, 0);
    dialog.setPort(MELVOX_PORT_COM3);
    dialog.setRs232Mode(false);
    QCOMPARE(labelText(&dialog, "portLabel"), melvoxPortName(MELVOX_PORT_COM3));
    QCOMPARE(labelText(&dialog, "serialRs232ModeLabel"), QString("RS-422"));
    dialog.setPort(MELVOX_PORT_USB1);
    dialog.setRs232Mode(true);
    QCOMPARE(labelText(&dialog, "portLabel"), melvoxPortName(MELVOX_PORT_USB1));
    QCOMPARE(labelText(&dialog, "serialRs232ModeLabel"), QString("RS-232"));
}

void tst_melvoxUiPhysicalPortConfigDialog::offersTheChoicesOfEachSetting_data()
{
    QTest::addColumn<QString>("expected");
    QTest::newRow("baudCombo") << "1200 2400 4800 9600 19200 38400 57600 115200 230400";
    QTest::newRow("dataBitsCombo") << "8";
    QTest::newRow("parityCombo") << "None Odd Even";
    QTest::newRow("stopBitsCombo") << "1 2";
}

void tst_melvoxUiPhysicalPortConfigDialog::offersTheChoicesOfEachSetting()
{
    QFETCH(QString, expected);
    melvoxUiPhysicalPortConfigDialog_t dialog(device, 0);
    QComboBox const* const combo = find<QComboBox>(&dialog, QTest::currentDataTag());
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts << combo->itemText(i);
    QCOMPARE(texts.join(" "), expected);
}

void tst_melvoxUiPhysicalPortConfigDialog::showsTheSettingsOfThePort_data()
{
    QTest::addColumn<uint>("baud");
    QTest::addColumn<int>("parity");
    QTest::addColumn<int>("stopBits");
    QTest::addColumn<QString>("shown");
    QTest::newRow("slowest") << 1200u << int(PARITY_N) << int(STOP_2) << "1200 8 None 2";
    QTest::newRow("in between") << 4800u << int(PARITY_E) << int(STOP_1) << "4800 8 Even 1";
    QTest::newRow("fastest") << 230400u << int(PARITY_O) << int(STOP_2) << "230400 8 Odd 2";
}

void tst_melvoxUiPhysicalPortConfigDialog::showsTheSettingsOfThePort()
{
    QFETCH(uint, baud);
    QFETCH(int, parity);
    QFETCH(int, stopBits);
    QFETCH(QString, shown);
    melvoxUiPhysicalPortConfigDialog_t dialog(device, 0);
    dialog.setConfig(serialConfig(baud, CHAR_SIZE_7, parity_t(parity), stopBits_t(stopBits)));
    QStringList const texts = QStringList() << chosen(&dialog, "baudCombo") << chosen(&dialog, "dataBitsCombo")
                                            << chosen(&dialog, "parityCombo") << chosen(&dialog, "stopBitsCombo");
    QCOMPARE(texts.join(" "), shown);
}

void tst_melvoxUiPhysicalPortConfigDialog::choosesNoRateForOneThatIsNotOffered_data()
{
    QTest::addColumn<uint>("baud");
    QTest::newRow("unusual") << 14400u;
    QTest::newRow("beginning of another") << 115u;
    QTest::newRow("none") << 0u;
}

void tst_melvoxUiPhysicalPortConfigDialog::choosesNoRateForOneThatIsNotOffered()
{
    QFETCH(uint, baud);
    melvoxUiPhysicalPortConfigDialog_t dialog(device, 0);
    dialog.setConfig(serialConfig(baud, CHAR_SIZE_8, PARITY_N, STOP_1));
    QCOMPARE(chosen(&dialog, "baudCombo"), QString());
}

void tst_melvoxUiPhysicalPortConfigDialog::sendsWhatWasChosen()
{
    receiver->report("activePort", 0);
    melvoxUiPhysicalPortConfigDialog_t dialog(device, 0);
    dialog.setPort(MELVOX_PORT_COM3);
    dialog.setConfig(serialConfig(4800, CHAR_SIZE_8, PARITY_N, STOP_1));
    dialog.show();
    choose(&dialog, "baudCombo", "38400");
    choose(&dialog, "parityCombo", "Odd");
    choose(&dialog, "stopBitsCombo", "2");
    tap(&dialog, "OK");
    QCOMPARE(receiver->commands(), QStringList("serialConfig baud=38400 charSize=1 parity=1 port=2 stopBits=1"));
    QCOMPARE(receiver->sent().size(), 1);
    QVERIFY(!dialog.isVisible());
}

void tst_melvoxUiPhysicalPortConfigDialog::sendsEachSettingAsItsNumber_data()
{
    QTest::addColumn<QString>("baud");
    QTest::addColumn<QString>("parity");
    QTest::addColumn<QString>("stopBits");
    QTest::addColumn<QString>("sent");
    QTest::newRow("first") << "1200"
                           << "None"
                           << "1"
                           << "serialConfig baud=1200 charSize=1 parity=0 port=1 stopBits=0";
    QTest::newRow("last") << "230400"
                          << "Even"
                          << "2"
                          << "serialConfig baud=230400 charSize=1 parity=2 port=1 stopBits=1";
}

void tst_melvoxUiPhysicalPortConfigDialog::sendsEachSettingAsItsNumber()
{
    QFETCH(QString, baud);
    QFETCH(QString, parity);
    QFETCH(QString, stopBits);
    QFETCH(QString, sent);
    receiver->report("activePort", 0);
    melvoxUiPhysicalPortConfigDialog_t dialog(device, 0);
    dialog.setPort(MELVOX_PORT_COM2);
    dialog.setConfig(serialConfig(9600, CHAR_SIZE_8, PARITY_O, STOP_1));
    choose(&dialog, "baudCombo", baud);
    choose(&dialog, "parityCombo", parity);
    choose(&dialog, "stopBitsCombo", stopBits);
    dialog.submit();
    QCOMPARE(receiver->commands(), QStringList(sent));
}

void tst_melvoxUiPhysicalPortConfigDialog::sendsEightDataBitsForAPortWithSeven()
{
    receiver->report("activePort", 0);
    melvoxUiPhysicalPortConfigDialog_t dialog(device, 0);
    dialog.setPort(MELVOX_PORT_COM4);
    dialog.setConfig(serialConfig(9600, CHAR_SIZE_7, PARITY_E, STOP_2));
    tap(&dialog, "OK");
    QCOMPARE(receiver->commands(), QStringList("serialConfig baud=9600 charSize=1 parity=2 port=3 stopBits=1"));
}

void tst_melvoxUiPhysicalPortConfigDialog::sendsARateOfZeroWhenNoneIsChosen()
{
    receiver->report("activePort", 0);
    melvoxUiPhysicalPortConfigDialog_t dialog(device, 0);
    dialog.setPort(MELVOX_PORT_COM2);
    dialog.setConfig(serialConfig(14400, CHAR_SIZE_8, PARITY_N, STOP_1));
    tap(&dialog, "OK");
    QCOMPARE(receiver->commands(), QStringList("serialConfig baud=0 charSize=1 parity=0 port=1 stopBits=0"));
}

void tst_melvoxUiPhysicalPortConfigDialog::staysOpenAndSendsNothingWithoutAChoice_data()
{
    QTest::addColumn<QString>("combo");
    QTest::newRow("data bits") << "dataBitsCombo";
    QTest::newRow("parity") << "parityCombo";
    QTest::newRow("stop bits") << "stopBitsCombo";
}

void tst_melvoxUiPhysicalPortConfigDialog::staysOpenAndSendsNothingWithoutAChoice()
{
    QFETCH(QString, combo);
    melvoxUiPhysicalPortConfigDialog_t dialog(device, 0);
    dialog.setPort(MELVOX_PORT_COM2);
    dialog.setConfig(serialConfig(9600, CHAR_SIZE_8, PARITY_N, STOP_1));
    dialog.show();
    find<QComboBox>(&dialog, combo)->setCurrentIndex(-1);
    tap(&dialog, "OK");
    QVERIFY(receiver->sent().isEmpty());
    QVERIFY(dialog.isVisible());
}

void tst_melvoxUiPhysicalPortConfigDialog::sendsNothingWhenCancelled()
{
    melvoxUiPhysicalPortConfigDialog_t dialog(device, 0);
    dialog.setPort(MELVOX_PORT_COM2);
    dialog.setConfig(serialConfig(9600, CHAR_SIZE_8, PARITY_N, STOP_1));
    dialog.show();
    tap(&dialog, "Cancel");
    QVERIFY(receiver->sent().isEmpty());
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Rejected));
}

void tst_melvoxUiPhysicalPortConfigDialog::movesTheDisplaysOwnLineForTheActivePort()
{
    serialDisplay_t display;
    display.link.report("activePort", 1);
    melvoxUiPhysicalPortConfigDialog_t dialog(display.device.data(), 0);
    dialog.setPort(MELVOX_PORT_COM2);
    dialog.setConfig(serialConfig(57600, CHAR_SIZE_7, PARITY_E, STOP_2));
    dialog.show();
    choose(&dialog, "baudCombo", "19200");
    choose(&dialog, "parityCombo", "Odd");
    choose(&dialog, "stopBitsCombo", "1");
    tap(&dialog, "OK");
    QCOMPARE(display.link.lines(), QStringList("19200 8O1"));
    // The link tells the receiver about its own line; no command names the port.
    QCOMPARE(display.link.commands(), QStringList("serialConfig baud=19200 charSize=1 parity=1 stopBits=0"));
    QVERIFY(!dialog.isVisible());
}

void tst_melvoxUiPhysicalPortConfigDialog::sendsACommandForAnyOtherPortOverASerialLine()
{
    serialDisplay_t display;
    display.link.report("activePort", 1);
    melvoxUiPhysicalPortConfigDialog_t dialog(display.device.data(), 0);
    dialog.setPort(MELVOX_PORT_COM1);
    dialog.setConfig(serialConfig(9600, CHAR_SIZE_8, PARITY_N, STOP_1));
    tap(&dialog, "OK");
    QVERIFY(display.link.lines().isEmpty());
    QCOMPARE(display.link.commands(), QStringList("serialConfig baud=9600 charSize=1 parity=0 port=0 stopBits=0"));
}

void tst_melvoxUiPhysicalPortConfigDialog::changesNothingForTheActivePortOfALinkWithoutALine()
{
    melvox_test::expectWarning(NOT_CHANGED);
    receiver->report("activePort", 0);
    melvoxUiPhysicalPortConfigDialog_t dialog(device, 0);
    dialog.setPort(MELVOX_PORT_COM1);
    dialog.setConfig(serialConfig(9600, CHAR_SIZE_8, PARITY_N, STOP_1));
    dialog.show();
    tap(&dialog, "OK");
    QVERIFY(receiver->sent().isEmpty());
    QVERIFY(!dialog.isVisible());
}

void tst_melvoxUiPhysicalPortConfigDialog::changesNothingForTheActivePortOfALineThatIsNotKnown()
{
    melvox_test::expectWarning(NOT_CHANGED);
    melvox_link::scriptedLink_t link;
    remoteMelvoxDevice_t serial(melvox_kit::createPort(&link, melvox_kit::LINK_SERIAL));
    link.report("activePort", 0);
    melvoxUiPhysicalPortConfigDialog_t dialog(&serial, 0);
    dialog.setPort(MELVOX_PORT_COM1);
    dialog.setConfig(serialConfig(9600, CHAR_SIZE_8, PARITY_N, STOP_1));
    dialog.show();
    tap(&dialog, "OK");
    QVERIFY(link.sent().isEmpty());
    QVERIFY(!dialog.isVisible());
}

void tst_melvoxUiPhysicalPortConfigDialog::sendsACommandWhileTheActivePortIsNotKnown()
{
    serialDisplay_t display;
    melvoxUiPhysicalPortConfigDialog_t dialog(display.device.data(), 0);
    dialog.setPort(MELVOX_PORT_COM1);
    dialog.setConfig(serialConfig(9600, CHAR_SIZE_8, PARITY_N, STOP_1));
    tap(&dialog, "OK");
    QVERIFY(display.link.lines().isEmpty());
    QCOMPARE(display.link.commands().size(), 1);
}

void tst_melvoxUiPhysicalPortConfigDialog::keepsItsTexts_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("portTitleLabel") << "Port:";
    QTest::newRow("baudTitleLabel") << "Baud Rate:";
    QTest::newRow("dataBitsTitleLabel") << "Data Bits:";
    QTest::newRow("parityTitleLabel") << "Parity:";
    QTest::newRow("stopBitsTitleLabel") << "Stop Bits:";
    QTest::newRow("serialRs232ModeTitleLabel") << "Serial Mode:";
}

void tst_melvoxUiPhysicalPortConfigDialog::keepsItsTexts()
{
    QFETCH(QString, text);
    melvoxUiPhysicalPortConfigDialog_t dialog(device, 0);
    QCOMPARE(labelText(&dialog, QTest::currentDataTag()), text);
    QCOMPARE(dialog.windowTitle(), QString("MELVOX Physical Port Configuration"));
    QCOMPARE(find<QGroupBox>(&dialog, "physicalPortGroup")->title(), QString("Configure Physical Port"));
}

QTEST_MAIN(tst_melvoxUiPhysicalPortConfigDialog)
#include "tst_melvoxUiPhysicalPortConfigDialog.moc"
