#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/usbDriveManager.h"
#include "display/displayStyle.h"
#include "support/scenarioRun.h"
#include "support/unitScreen.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>

using namespace brel_common_qt;
using melvox_test::find;
using melvox_test::scenarioRun_t;
using melvox_test::tap;
using melvox_test::waitFor;

namespace
{

int const PIECE = 100; // milliseconds

/** Chooses the package on the scenario's drive and starts the update. */
void startUpdate(scenarioRun_t& run)
{
    QWidget* const page = melvox_test::showPage(*run.window, "firmwareUpdate");
    QVERIFY(waitFor([&]() { return run.unit.device()->activePortValid(); }));
    tap(page, "Select Package");
    melvox_test::chooseDrive(*run.window, "STICK");
    melvox_test::chooseFile(*run.window, "melvoxUiUsbFirmwareSelectDialog", "release.srec", "Select Package");
    tap(page, "Start Update");
}

/** Turns the time in small pieces while messages pass, until the condition holds. */
template <typename condition_t> bool advanceUntil(scenarioRun_t& run, condition_t condition)
{
    return waitFor(
        [&]()
        {
            run.unit.receiver()->clock().advance(PIECE);
            return condition();
        },
        20000);
}

/** What the receiver has told last of one component. */
QString version(scenarioRun_t const& run, QString const& component)
{
    QString version;
    for (QVariant const& told : run.all("firmwareVersion"))
    {
        if (told.toMap().value("component") == component)
            version = told.toMap().value("version").toString();
    }
    return version;
}

int countDrives()
{
    return int(usbDriveManager_t::m_instance->drives().size());
}

} // namespace

/** Each scenario of the kit does what its line says, on a display unit and over its link. */
class tst_scenarios : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void initTestCase() { melvox_display::applyDisplayStyle(*qApp); }

    void openSkyEndsInAFixedSolution()
    {
        scenarioRun_t run("open-sky");
        int const fixed = 7;
        run.advance(2);
        QVERIFY(run.tells("extendedNavInfo"));
        QVERIFY(run.told("extendedNavInfo", "navMode").toInt() != fixed);
        run.advance(58);
        QVERIFY(waitFor([&]() { return run.told("extendedNavInfo", "navMode").toInt() == fixed; }));
    }

    void lostCorrectionSatelliteGoesAndComesBack()
    {
        scenarioRun_t run("lost-correction-satellite");
        int const corrected = 9;
        run.advance(59);
        QVERIFY(waitFor([&]() { return run.told("correctionSatStats", "inUse").toInt() != 0; }));
        QVERIFY(waitFor([&]() { return run.told("extendedNavInfo", "navSource").toInt() == corrected; }));
        run.advance(3);
        QVERIFY(waitFor([&]() { return run.told("correctionSatStats", "inUse").toInt() == 0; }));
        QVERIFY(waitFor([&]() { return run.told("extendedNavInfo", "navSource").toInt() == 0; }));
        QVERIFY(run.told("correctionSats").toList().isEmpty());
        run.advance(90);
        QVERIFY(waitFor([&]() { return run.told("correctionSats").toList().size() == 4; }));
        QVERIFY(waitFor([&]() { return run.told("extendedNavInfo", "navSource").toInt() == corrected; }));
    }

    void almanacSwitchesAfterAMinute()
    {
        scenarioRun_t run("almanac-switch");
        QVERIFY(run.tells("mrvAlmanacInfo"));
        double const before = run.told("mrvAlmanacInfo", "updateTime").toDouble();
        run.advance(59);
        QVERIFY(waitFor([&]() { return run.told("starfireAlmStatus", "newReady").toBool(); }));
        run.advance(2);
        QVERIFY(waitFor([&]() { return !run.told("starfireAlmStatus", "newReady").toBool(); }));
        QVERIFY(run.told("mrvAlmanacInfo", "updateTime").toDouble() > before);
    }

    void baseStationPutsCorrectionsOutOnCom2()
    {
        scenarioRun_t run("base-station");
        QMap<unsigned int, int> bytes;
        QObject::connect(run.unit.receiver(), &melvox_receiver::receiver_t::portOutput, run.unit.receiver(),
                         [&](unsigned int port, QByteArray const& output) { bytes[port] += int(output.size()); });
        QVERIFY(run.tells("diffConfig"));
        QCOMPARE(run.told("diffConfig", "mode").toInt(), 1);
        QVERIFY(run.tells("baseName"));
        QCOMPARE(run.told("baseName").toString(), QString("North field"));
        QVERIFY(run.tells("basePosition"));
        QCOMPARE(run.told("basePosition", "height").toDouble(), 412.5);
        QVERIFY(waitFor(
            [&]()
            {
                for (QVariant const& output : run.all("output"))
                {
                    if (output.toMap().value("port").toInt() == 1 && output.toMap().value("message") == "RTCM1")
                        return true;
                }
                return false;
            }));
        run.advance(3);
        QVERIFY(bytes.value(1) > 0);
    }

    void twoAntennasTellAHeadingFiveTimesASecond()
    {
        scenarioRun_t run("two-antennas");
        QVERIFY(run.tells("antennaInfo"));
        QCOMPARE(run.told("antennaInfo").toList().at(1).toMap().value("name").toString(),
                 QString("MVXTWIN3         NONE"));
        run.messages.clear();
        run.advance(1);
        QVERIFY(waitFor([&]() { return run.all("vhdInfo").size() == 5; }));
        QCOMPARE(run.told("vhdInfo", "attitude").toDouble(), -90.0);
    }

    void slowLinkTakesItsTime()
    {
        scenarioRun_t run("slow-link");
        QElapsedTimer timer;
        timer.start();
        QVERIFY(waitFor([&]() { return run.unit.device()->elevationMaskValid(); }));
        // Once there and once back.
        QVERIFY2(timer.elapsed() >= 1500, qPrintable(QString::number(timer.elapsed())));
    }

    void silentGroupIsTheOnlyOneWithoutAnAnswer()
    {
        scenarioRun_t run("silent-group");
        // Asked for after the silent one.
        QVERIFY(run.tells("lteModemStat"));
        QVERIFY(run.all("ppsConfig").isEmpty());
        run.unit.device()->queryPpsConfig();
        run.unit.device()->queryPdopLimit();
        int const before = int(run.all("pdopLimit").size());
        QVERIFY(waitFor([&]() { return run.all("pdopLimit").size() > before; }));
        QVERIFY(run.all("ppsConfig").isEmpty());
        QVERIFY(!run.unit.device()->ppsConfigValid());
    }

    void refusedValuesStayAsTheyWere()
    {
        scenarioRun_t run("refused-values");
        QVERIFY(run.tells("lteModemStat"));
        run.messages.clear();
        run.unit.device()->setElevationMask(12.5);
        run.unit.device()->setPdopLimit(6.5);
        run.unit.device()->setGeoidalModel(melvoxGeoidalModel_t(0));
        QVERIFY(run.tells("geoidalModel"));
        QCOMPARE(run.told("geoidalModel").toInt(), 0);
        QCOMPARE(run.told("elevationMask").toDouble(), 7.0);
        QCOMPARE(run.told("pdopLimit").toDouble(), 25.0);
    }

    void refusedLockIsTold()
    {
        scenarioRun_t run("lock-refused");
        QVERIFY(QFileInfo::exists(run.drives.folder() + "/STICK/updates/release.srec"));
        QSignalSpy states(run.unit.device()->port(), &remotePort_t::lockStateUpdated);
        run.unit.device()->port()->setLockState(PORT_LOCK_PLUGIN);
        QVERIFY(waitFor([&]() { return states.size() == 1; }));
        QCOMPARE(run.unit.device()->port()->lockState(), PORT_LOCK_NONE);
        QCOMPARE(run.told("portLock").toInt(), 0);
    }

    void firmwareFailureHitsTheSecondComponentOnly()
    {
        scenarioRun_t run("firmware-failure");
        startUpdate(run);
        melvox_display::displayDialogHost_t const* const host = run.window->screen()->dialogs();
        QVERIFY(advanceUntil(run, [&]() { return host->currentCard() != nullptr; }));
        QMessageBox* const box = qobject_cast<QMessageBox*>(host->currentCard());
        QVERIFY(box);
        QCOMPARE(box->windowTitle(), QString("Firmware Update Failed"));
        QTreeWidget* const statuses =
            find<QTreeWidget>(run.window->screen()->page("firmwareUpdate"), "statusTreeWidget");
        QStringList texts;
        for (int i = 0; i < statuses->topLevelItemCount(); ++i)
            texts << statuses->topLevelItem(i)->text(2);
        QCOMPARE(texts, (QStringList{"Success", "Failure", "Success"}));
    }

    void powerCutInterruptsTheUpdateAndTheLink()
    {
        scenarioRun_t run("power-cut");
        startUpdate(run);
        QVERIFY(advanceUntil(run, [&]() { return run.unit.linkState() == melvox_display::linkState_t::INTERRUPTED; }));
        run.messages.clear();
        run.advance(9);
        QCOMPARE(run.unit.linkState(), melvox_display::linkState_t::INTERRUPTED);
        QVERIFY(run.messages.isEmpty());
        run.advance(2);
        QCOMPARE(run.unit.linkState(), melvox_display::linkState_t::CONNECTED);
        QVERIFY(run.tells("firmwareUpdateState"));
        QCOMPARE(run.told("firmwareUpdateState", "description").toString(),
                 QString("The power was lost while NAV was written; update it again"));
        QCOMPARE(version(run, "NAV"), QString("incomplete"));
    }

    void driveIsPulledOutAfterHalfAMinute()
    {
        scenarioRun_t run("drive-pulled-out");
        QVERIFY(waitFor([]() { return countDrives() == 1; }));
        QVERIFY(QFileInfo(run.drives.folder() + "/STICK/updates/release.srec").size() > 0);
        run.advance(29);
        QCOMPARE(countDrives(), 1);
        run.advance(2);
        QVERIFY(waitFor([]() { return countDrives() == 0; }));
        QVERIFY(!QFileInfo::exists(run.drives.folder() + "/STICK"));
    }

    void oldNavigationFirmwareIsWarnedOf()
    {
        scenarioRun_t run("old-navigation-firmware", "receiverInformation");
        melvox_display::displayDialogHost_t const* const host = run.window->screen()->dialogs();
        QVERIFY(waitFor([&]() { return host->currentDialog() != nullptr; }));
        QCOMPARE(melvox_test::labelText(host->currentDialog(), "currentVersionLabel"), QString("1.12.7"));
        QCOMPARE(version(run, "NAV"), QString("1.12.7"));
    }

    void lteModemNeverGetsThrough()
    {
        scenarioRun_t run("lte-pending");
        QVERIFY(run.tells("lteModemStat"));
        QCOMPARE(run.told("lteModemStat", "modemStatus").toString(), QString("PENDING"));
        for (bool on : {true, false, true})
        {
            run.messages.clear();
            run.unit.device()->setLteModemStatus(on);
            QVERIFY(run.tells("lteModemStat"));
            run.advance(60);
            run.unit.device()->queryLteModemStatus();
            QVERIFY(waitFor([&]() { return run.all("lteModemStat").size() >= 2; }));
            QCOMPARE(run.told("lteModemStat", "modemStatus").toString(), QString("PENDING"));
        }
    }

    void badBaudRateIsToldAndMended()
    {
        scenarioRun_t run("bad-baud-rate", "portConfiguration");
        QMessageBox* const box = melvox_test::shownCard(*run.window);
        QVERIFY(box);
        QVERIFY2(box->text().contains("(19200)"), qPrintable(box->text()));
        melvox_link::line_t line = melvox_link::line_t();
        QVERIFY(waitFor([&]() { return run.unit.tap()->line(line) && line.baud == 115200; }));
        QVERIFY(waitFor(
            [&]() { return run.unit.receiver()->setting("serialConfig").toList().first().toMap()["baud"] == 115200; }));
    }

    void overEthTheLinkIsATcpOne()
    {
        scenarioRun_t run("connected-over-eth");
        QVERIFY(waitFor([&]() { return run.unit.device()->activePortValid(); }));
        QCOMPARE(run.unit.device()->activePort(), MELVOX_PORT_ETH1);
        QVERIFY(run.unit.device()->isPortTcpConnect());
        QVERIFY(!qobject_cast<remoteSerialPort_t*>(run.unit.device()->port()));
        melvox_link::line_t line = melvox_link::line_t();
        QVERIFY(!run.unit.tap()->line(line));
    }

    /** A new one must not be forgotten here. */
    void everyScenarioHasItsTest() { QCOMPARE(int(melvox_scenarios::scenarioNames().size()), 16); }
};

QTEST_MAIN(tst_scenarios)
#include "tst_scenarios.moc"
