#include "wholeUnit.h"

#include "brel_common_qt/textHelpers.h"
#include "display/displayStyle.h"
#include "melvox_ui/melvoxUiDtmWarnDialog.h"
#include "melvox_ui/melvoxUiPhysicalPortConfigDialog.h"
#include "melvox_ui/melvoxUiVirtualPortConfigDialog.h"
#include "melvox_ui/melvoxUiWiFiPasskeyDialog.h"

#include <QCheckBox>

using namespace melvox_display;
using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_test::choose;
using melvox_test::chosen;
using melvox_test::find;
using melvox_test::labelText;
using melvox_test::waitFor;

namespace
{

/** A whole unit of which one reads rows. */
struct fixture_t : melvox_test::wholeUnit_t
{
    using melvox_test::wholeUnit_t::wholeUnit_t;

    void selectRow(QString const& tree, QString const& name) { tapRow(find<QTreeWidget>(page, tree), name); }

    QString rowText(QString const& tree, QString const& name, int column)
    {
        QList<QTreeWidgetItem*> const found = find<QTreeWidget>(page, tree)->findItems(name, Qt::MatchExactly);
        return found.isEmpty() ? QString() : found.first()->text(column);
    }

    QVariantMap portRecord(QString const& group, int index)
    {
        return unit.receiver()->setting(group).toList().value(index).toMap();
    }
};

} // namespace

/** The whole way from the operator's finger to the receiver and back, on each page of ports and network. */
class tst_operatingPorts : public melvox_test::test_t
{
    Q_OBJECT

protected:
    void setUp() override { folder.reset(new QTemporaryDir); }

private:
    QString file() const { return folder->filePath("display.conf"); }

    QScopedPointer<QTemporaryDir> folder;

private slots:
    void initTestCase() { applyDisplayStyle(*qApp); }

    void putsAMessageOut();
    void showsHowBusyAPortIs();
    void disablesAllMessagesOfAPort();
    void setsTheTalker();
    void warnsOfDtmUntilToldNotToEvenAfterARestart();
    void listsThePortsOnAPageThatIsOpenedLate();
    void changesALine();
    void movesItsOwnLine();
    void speedsUpAnOwnLineThatIsTooSlow();
    void enablesAVirtualPort();
    void makesTheUsbPortAMassStorage();
    void takesAddressesOverDhcpWhileTheLinkBlinks();
    void asksForAPasskeyAndForgetsIt();
};

void tst_operatingPorts::putsAMessageOut()
{
    fixture_t f("outputMessages", file());
    choose(f.page, "portsCombo", "COM4");
    f.selectRow("messagesTreeWidget", "NMEARMC");
    choose(f.page, "methodCombo", "Interval");
    int sentences = 0;
    connect(f.unit.receiver(), &melvox_receiver::receiver_t::portOutput, this,
            [&](unsigned int port, QByteArray const& bytes) { sentences += port == 3 && bytes.contains("RMC,"); });
    f.tapIn("messagesButtonBox", "Apply");
    QVERIFY(waitFor([&]() { return f.rowText("messagesTreeWidget", "NMEARMC", 1) == "Interval 1.00(1)"; }));
    // The datum comes along by itself, and the sentences really go out.
    QVERIFY(waitFor([&]() { return f.rowText("messagesTreeWidget", "NMEADTM", 1) == "Interval 1.00(1)"; }));
    QVERIFY(waitFor([&]() { return sentences > 0; }));
    QVERIFY(f.window.findChild<melvoxUiDtmWarnDialog_t*>()->isVisible());
}

void tst_operatingPorts::showsHowBusyAPortIs()
{
    fixture_t f("outputMessages", file());
    choose(f.page, "portsCombo", "COM2");
    QVERIFY(waitFor(
        [&]()
        {
            QString const text = labelText(f.page, "txPercentLabel");
            return text.endsWith("%") && text != "0.00%";
        }));
    double const usage = labelText(f.page, "txPercentLabel").remove('%').toDouble();
    QVERIFY2(usage > 3.0 && usage < 50.0, qPrintable(QString::number(usage)));
    QCOMPARE(labelText(f.page, "rxPercentLabel"), QString("0.00%"));
}

void tst_operatingPorts::disablesAllMessagesOfAPort()
{
    fixture_t f("outputMessages", file());
    choose(f.page, "portsCombo", "COM2");
    QVERIFY(waitFor([&]() { return f.rowText("messagesTreeWidget", "NMEAZDA", 1) == "Interval 1.00(1)"; }));
    f.tapIn("messagesButtonBox", "Disable All");
    melvox_test::answer(QMessageBox::Yes);
    QVERIFY(waitFor([&]() { return f.rowText("messagesTreeWidget", "NMEAZDA", 1) == "Disabled"; }));
    QVERIFY(waitFor([&]() { return labelText(f.page, "txPercentLabel") == "0.00%"; }));
}

void tst_operatingPorts::setsTheTalker()
{
    fixture_t f("outputMessages", file());
    f.tapIn("messagesButtonBox", "General Settings");
    QVERIFY(waitFor([&]() { return labelText(f.page, "talkerIdLabel") == "No"; }));
    choose(f.page, "talkerIdCombo", "GP");
    f.tapIn("settingsButtonBox", "Apply");
    QVERIFY(waitFor([&]() { return labelText(f.page, "talkerIdLabel") == "GP"; }));
    QCOMPARE(f.unit.receiver()->setting("talkerIdMode").toInt(), 1);
}

void tst_operatingPorts::warnsOfDtmUntilToldNotToEvenAfterARestart()
{
    {
        fixture_t f("outputMessages", file());
        choose(f.page, "portsCombo", "COM4");
        f.selectRow("messagesTreeWidget", "NMEAGLL");
        f.tapIn("messagesButtonBox", "Apply");
        melvoxUiDtmWarnDialog_t* const warning = f.window.findChild<melvoxUiDtmWarnDialog_t*>();
        QVERIFY(warning->isVisible());
        find<QCheckBox>(warning, "suppressWarningCheckBox")->click();
        f.tap(melvox_test::button(warning, "OK"));
        QVERIFY(!warning->isVisible());
        QVERIFY(!f.unit.device()->showDtmWarning());
    }
    fixture_t again("outputMessages", file());
    QVERIFY(!again.unit.device()->showDtmWarning());
    choose(again.page, "portsCombo", "COM4");
    again.selectRow("messagesTreeWidget", "NMEAGLL");
    again.tapIn("messagesButtonBox", "Apply");
    QVERIFY(!again.page->findChild<melvoxUiDtmWarnDialog_t*>()->isVisible());
}

void tst_operatingPorts::listsThePortsOnAPageThatIsOpenedLate()
{
    fixture_t f("solutionControl", file());
    QVERIFY(f.window.screen()->showPage("portConfiguration"));
    QWidget* const page = f.window.screen()->page("portConfiguration");
    QVERIFY(waitFor([&]() { return find<QTreeWidget>(page, "physicalTreeWidget")->topLevelItemCount() > 0; }));
    QVERIFY(waitFor([&]() { return find<QTreeWidget>(page, "virtualTreeWidget")->topLevelItemCount() > 0; }));
}

void tst_operatingPorts::changesALine()
{
    fixture_t f("portConfiguration", file());
    QVERIFY(waitFor([&]() { return f.rowText("physicalTreeWidget", "COM3", 1) == "38400"; }));
    f.selectRow("physicalTreeWidget", "COM3");
    f.tapIn("buttonBox", "Configure Port");
    QWidget* const dialog = f.window.findChild<melvoxUiPhysicalPortConfigDialog_t*>();
    QVERIFY(dialog->isVisible());
    QCOMPARE(chosen(dialog, "baudCombo"), QString("38400"));
    choose(dialog, "baudCombo", "9600");
    choose(dialog, "parityCombo", "Even");
    f.tap(melvox_test::button(dialog, "OK"));
    QVERIFY(waitFor([&]() { return f.rowText("physicalTreeWidget", "COM3", 1) == "9600"; }));
    QCOMPARE(f.rowText("physicalTreeWidget", "COM3", 3), QString("Even"));
    QCOMPARE(f.portRecord("serialConfig", 2).value("baud").toInt(), 9600);
}

void tst_operatingPorts::movesItsOwnLine()
{
    fixture_t f("portConfiguration", file());
    QVERIFY(waitFor([&]() { return f.rowText("physicalTreeWidget", "COM1", 1) == "115200"; }));
    f.selectRow("physicalTreeWidget", "COM1");
    QMetaObject::invokeMethod(f.page, "configureSelectedPhysicalPort");
    QWidget* const dialog = f.window.findChild<melvoxUiPhysicalPortConfigDialog_t*>();
    choose(dialog, "baudCombo", "230400");
    choose(dialog, "stopBitsCombo", "2");
    f.tap(melvox_test::button(dialog, "OK"));
    QVERIFY(waitFor([&]() { return f.rowText("physicalTreeWidget", "COM1", 1) == "230400"; }));
    melvox_link::line_t line = melvox_link::line_t();
    QVERIFY(f.unit.localLink()->displayEnd()->line(line));
    QCOMPARE(melvox_link::lineText(line), QString("230400 8N2"));
    QVERIFY(f.unit.localLink()->receiverEnd()->line(line));
    QCOMPARE(melvox_link::lineText(line), QString("230400 8N2"));
}

void tst_operatingPorts::speedsUpAnOwnLineThatIsTooSlow()
{
    fixture_t f("portConfiguration", file());
    f.unit.localLink()->displayEnd()->makeSerial({9600, 8, 'N', 1});
    f.unit.receiver()->set("serialConfig",
                           QVariantMap{{"port", 0}, {"baud", 9600}, {"charSize", 1}, {"parity", 0}, {"stopBits", 0}});
    QVERIFY(waitFor([]() { return melvox_test::openBox() != nullptr; }));
    QVERIFY(melvox_test::openBox()->text().contains("(9600)"));
    melvox_test::closeBox();
    QVERIFY(waitFor([&]() { return f.portRecord("serialConfig", 0).value("baud").toInt() == 115200; }));
    melvox_link::line_t line = melvox_link::line_t();
    QVERIFY(f.unit.localLink()->displayEnd()->line(line));
    QCOMPARE(line.baud, 115200u);
}

void tst_operatingPorts::enablesAVirtualPort()
{
    fixture_t f("portConfiguration", file());
    f.tapIn("buttonBox", "Virtual");
    QVERIFY(waitFor([&]() { return f.rowText("virtualTreeWidget", "ETH3", 1) == NoString; }));
    f.selectRow("virtualTreeWidget", "ETH3");
    f.tapIn("buttonBox", "Configure Port");
    QWidget* const dialog = f.window.findChild<melvoxUiVirtualPortConfigDialog_t*>();
    QVERIFY(dialog->isVisible());
    choose(dialog, "enabledCombo", "Yes");
    f.typeInto(find<QLineEdit>(dialog, "localPortLineEdit"), "6 1 2 3 done");
    f.tap(melvox_test::button(dialog, "OK"));
    QVERIFY(waitFor([&]() { return f.rowText("virtualTreeWidget", "ETH3", 1) == YesString; }));
    QCOMPARE(f.rowText("virtualTreeWidget", "ETH3", 5), QString("6123"));
    QCOMPARE(f.portRecord("vcomConfig", 2).value("localPort").toInt(), 6123);
}

void tst_operatingPorts::makesTheUsbPortAMassStorage()
{
    fixture_t f("portConfiguration", file());
    QVERIFY(waitFor([&]() { return labelText(f.page, "usbModeLabel") == "Serial Port"; }));
    choose(f.page, "usbModeCombo", "Mass Storage");
    f.tapIn("buttonBox", "Apply");
    QVERIFY(waitFor([&]() { return labelText(f.page, "usbModeLabel") == "Mass Storage"; }));
    QCOMPARE(f.unit.receiver()->setting("usbMode").toInt(), 1);
}

void tst_operatingPorts::takesAddressesOverDhcpWhileTheLinkBlinks()
{
    fixture_t f("ethernetConfiguration", file());
    f.unit.receiver()->setActivePort(f.unit.localLink()->receiverEnd(), 6);
    f.unit.receiver()->clock().setSpeed(10.0);
    QVERIFY(waitFor([&]() { return labelText(f.page, "modeLabel") == "Manual"; }));
    QString const before = labelText(f.page, "ipAddressLabel");
    choose(f.page, "modeCombo", "DHCP");
    f.tapIn("buttonBox", "Apply");
    QVERIFY(melvox_test::openBox());
    melvox_test::answer(QMessageBox::Yes);
    QVERIFY(waitFor([&]() { return labelText(f.page, "modeLabel") == "DHCP"; }));
    QVERIFY(labelText(f.page, "ipAddressLabel") != before);
    QVERIFY(waitFor([&]() { return labelText(&f.window, "linkStateLabel") == "LINK INTERRUPTED"; }));
    QVERIFY(waitFor([&]() { return labelText(&f.window, "linkStateLabel") == "Connected"; }));
}

void tst_operatingPorts::asksForAPasskeyAndForgetsIt()
{
    fixture_t f("outputMessages", file());
    QVERIFY(f.window.screen()->showPage("wiFiPasskey"));
    melvox_test::settle();
    melvoxUiWiFiPasskeyDialog_t* const dialog = f.window.findChild<melvoxUiWiFiPasskeyDialog_t*>();
    QVERIFY(dialog && dialog->isVisible());
    QVERIFY(!melvox_test::button(dialog, "OK")->isEnabled());
    melvox_test::type(dialog, "passkeyEdit", "secret");
    f.tap(melvox_test::button(dialog, "OK"));
    QVERIFY(!dialog->isVisible());
    QCOMPARE(dialog->passkey(), QString());
}

QTEST_MAIN(tst_operatingPorts)
#include "tst_operatingPorts.moc"
