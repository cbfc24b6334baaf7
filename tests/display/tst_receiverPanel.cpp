#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/usbDriveManager.h"
#include "display/displayStyle.h"
#include "display/displayWindow.h"
#include "display/driveRack.h"
#include "display/receiverPanel.h"
#include "display/screen.h"
#include "display/simulation.h"
#include "display/uiSettings.h"
#include "display/unit.h"
#include "link/faultFilter.h"
#include "link/localLink.h"
#include "link/tcpServer.h"
#include "receiver/receiver.h"
#include "scenarios/scenarioReader.h"
#include "support/folder.h"
#include "support/operator.h"
#include "support/test.h"

#include <QApplication>
#include <QPushButton>
#include <QScrollArea>

using namespace melvox_display;
using namespace brel_common_qt;
using melvox_test::button;
using melvox_test::choose;
using melvox_test::chosen;
using melvox_test::find;
using melvox_test::isEnabled;
using melvox_test::labelText;
using melvox_test::rowTexts;
using melvox_test::tap;
using melvox_test::waitFor;

namespace
{

/** A unit with its panel open. */
struct fixture_t
{
    explicit fixture_t(QString const& usb = QString(), connection_t const& connection = connection_t(),
                       QSize const& size = QSize(1024, 600))
        : drives(usb), unit(connection), simulation(unit, drives), settings(folder.path("display.conf")),
          window(allPages(), &unit, &settings, size, &simulation), panel(window.panel())
    {
        if (unit.localLink())
            unit.localLink()->setLatency(0);
        unit.start();
        window.showFirstPage("solutionControl");
        window.show();
        window.togglePanel();
    }

    bool knowsAll()
    {
        return waitFor([this]() { return unit.device()->ppsConfigValid(); });
    }

    /** Whether the receiver answers for the PPS configuration; what is asked for afterwards is answered for sure. */
    bool answersForPps()
    {
        QSignalSpy pps(unit.device(), &remoteMelvoxDevice_t::ppsConfigUpdated);
        QSignalSpy pdop(unit.device(), &remoteMelvoxDevice_t::pdopLimitUpdated);
        unit.device()->queryPpsConfig();
        unit.device()->queryPdopLimit();
        waitFor([&]() { return pdop.size() > 0; });
        return pps.size() > 0;
    }

    QTreeWidget* list(char const* name) { return find<QTreeWidget>(panel, name); }

    melvox_test::folder_t folder;
    driveRack_t drives;
    unit_t unit;
    simulation_t simulation;
    uiSettings_t settings;
    displayWindow_t window;
    receiverPanel_t* panel;
};

int countDrives()
{
    return usbDriveManager_t::m_instance ? int(usbDriveManager_t::m_instance->drives().size()) : -1;
}

} // namespace

/** The panel in the hands of somebody at the desk. */
class tst_receiverPanel : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void initTestCase() { applyDisplayStyle(*qApp); }

    void offersAllScenariosAndSaysWhatTheyShow()
    {
        fixture_t f;
        QCOMPARE(find<QComboBox>(f.panel, "scenarioCombo")->count(), int(melvox_scenarios::scenarioNames().size()));
        QCOMPARE(labelText(f.panel, "scenarioStateLabel"), QString("The receiver runs as it was delivered."));
        choose(f.panel, "scenarioCombo", "Slow link");
        QVERIFY(labelText(f.panel, "scenarioShowsLabel").startsWith("Every message is under way for 0.8 s"));
        QCOMPARE(f.unit.localLink()->latency(), 0);
        tap(f.panel, "Start");
        QCOMPARE(f.unit.localLink()->latency(), 800);
        QCOMPARE(labelText(f.panel, "scenarioStateLabel"), QString("Running: Slow link."));
    }

    void theNextScenarioBeginsWithAReceiverAsDelivered()
    {
        fixture_t f;
        choose(f.panel, "scenarioCombo", "Receiver that never answers one group");
        tap(f.panel, "Start");
        QCOMPARE(f.list("faultList")->topLevelItemCount(), 1);
        QVERIFY(f.unit.receiver()->set("elevationMask", 33.0));
        choose(f.panel, "scenarioCombo", "Lost correction satellite");
        tap(f.panel, "Start");
        QCOMPARE(f.list("faultList")->topLevelItemCount(), 0);
        QCOMPARE(f.unit.receiver()->setting("elevationMask").toDouble(), 7.0);
        QCOMPARE(labelText(f.panel, "scenarioStateLabel"),
                 QString("Running: Lost correction satellite. Steps to come: 2."));
        QVERIFY(waitFor([&]() { return f.unit.device()->elevationMask() == 7.0; }));
    }

    void aFileThatWasSpoiltIsRefusedAndTheOldScenarioRunsOn()
    {
        fixture_t f;
        QString const file = f.folder.write("mine.json", "{\"title\": \"Mine\", \"shows\": \"It.\", \"latency\": 5}");
        melvox_scenarios::scenario_t scenario;
        QString error;
        QVERIFY2(melvox_scenarios::loadScenario(file, scenario, error), qPrintable(error));
        f.simulation.start(scenario);
        QCOMPARE(chosen(f.panel, "scenarioCombo"), QString("Mine"));
        QCOMPARE(labelText(f.panel, "scenarioShowsLabel"), QString("It."));
        f.folder.write("mine.json", "{\"title\": \"Mine\",\n\"shows\": \"It.\",\n\"latncy\": 6}");
        tap(f.panel, "Start");
        QVERIFY2(labelText(f.panel, "scenarioStateLabel").startsWith(file + ":3: there is no key \"latncy\""),
                 qPrintable(labelText(f.panel, "scenarioStateLabel")));
        QCOMPARE(f.unit.localLink()->latency(), 5);
        QCOMPARE(f.simulation.scenario().title, QString("Mine"));
    }

    void clockSpeedIsChosen()
    {
        fixture_t f;
        QCOMPARE(chosen(f.panel, "speedCombo"), QString("1 x"));
        choose(f.panel, "speedCombo", "60 x");
        QCOMPARE(f.unit.receiver()->clock().speed(), 60.0);
        choose(f.panel, "speedCombo", "Stopped");
        QCOMPARE(f.unit.receiver()->clock().speed(), 0.0);
        f.simulation.setSpeed(7.5);
        QCOMPARE(chosen(f.panel, "speedCombo"), QString("7.5 x"));
    }

    void anotherActivePortBringsItsUsualKindOfLink()
    {
        fixture_t f;
        QVERIFY(f.knowsAll());
        QCOMPARE(chosen(f.panel, "activePortCombo"), QString("COM1"));
        QCOMPARE(chosen(f.panel, "linkKindCombo"), QString("Serial line"));
        QVERIFY(qobject_cast<remoteSerialPort_t*>(f.unit.device()->port()));
        f.window.screen()->showPage("ppsConfiguration");
        choose(f.panel, "activePortCombo", "ETH3");
        QCOMPARE(chosen(f.panel, "linkKindCombo"), QString("TCP"));
        QVERIFY(f.unit.device()->isPortTcpConnect());
        QVERIFY(waitFor([&]() { return f.unit.device()->activePortValid(); }));
        QCOMPARE(f.unit.device()->activePort(), MELVOX_PORT_ETH3);
        // The pages are others, on another proxy, but the operator is where he was.
        QCOMPARE(f.window.screen()->currentPage(), QString("ppsConfiguration"));
        QVERIFY(f.window.screen()->isVisible());
        QVERIFY(f.window.isPanelShown());
        QVERIFY(f.knowsAll());
    }

    void theKindOfLinkCanBeAnUnusualOne()
    {
        fixture_t f;
        choose(f.panel, "activePortCombo", "ETH1");
        choose(f.panel, "linkKindCombo", "Other (USB, UDP)");
        QVERIFY(!f.unit.device()->isPortTcpConnect());
        QVERIFY(!qobject_cast<remoteSerialPort_t*>(f.unit.device()->port()));
        QCOMPARE(chosen(f.panel, "activePortCombo"), QString("ETH1"));
        choose(f.panel, "linkKindCombo", "Serial line");
        QVERIFY(qobject_cast<remoteSerialPort_t*>(f.unit.device()->port()));
    }

    void disconnectsAndConnects()
    {
        fixture_t f;
        QCOMPARE(button(f.panel, "connectButton")->text(), QString("Disconnect"));
        tap(f.panel, "connectButton");
        QCOMPARE(f.unit.linkState(), linkState_t::INTERRUPTED);
        QCOMPARE(button(f.panel, "connectButton")->text(), QString("Connect"));
        tap(f.panel, "connectButton");
        QCOMPARE(f.unit.linkState(), linkState_t::CONNECTED);
        QVERIFY(f.knowsAll());
    }

    void aFaultStrikesItsGroupUntilItIsRemoved()
    {
        fixture_t f;
        QVERIFY(f.knowsAll());
        QVERIFY(f.answersForPps());
        choose(f.panel, "faultGroupCombo", "ppsConfig");
        choose(f.panel, "faultKindCombo", "Lost");
        choose(f.panel, "faultDirectionCombo", "To display");
        tap(f.panel, "Set Fault");
        QCOMPARE(rowTexts(f.list("faultList"), 0), (QStringList{"ppsConfig", "Lost", "To display", "100 %"}));
        QVERIFY(!f.answersForPps());
        tap(f.panel, "Remove");
        QCOMPARE(f.list("faultList")->topLevelItemCount(), 0);
        QVERIFY(f.answersForPps());
        QVERIFY(!isEnabled(f.panel, "faultRemoveButton"));
    }

    void everyKindOfFaultCanBeSet()
    {
        fixture_t f;
        QStringList const kinds = {"Lost", "Late", "Twice", "Out of order", "Garbled"};
        choose(f.panel, "faultProbabilityCombo", "5 %");
        for (QString const& kind : kinds)
        {
            choose(f.panel, "faultKindCombo", kind);
            tap(f.panel, "Set Fault");
        }
        QList<melvox_link::faultSetting_t> const faults = f.unit.faultFilter()->faults();
        QCOMPARE(int(faults.size()), int(melvox_link::NUM_FAULTS));
        for (int i = 0; i < faults.size(); ++i)
        {
            QCOMPARE(int(faults.at(i).fault), i);
            QCOMPARE(faults.at(i).group, QString());
            QCOMPARE(faults.at(i).probability, 0.05);
            QCOMPARE(rowTexts(f.list("faultList"), i), (QStringList{"Every group", kinds.at(i), "Both ways", "5 %"}));
        }
        tap(f.panel, "Clear All");
        QVERIFY(f.unit.faultFilter()->faults().isEmpty());
        QCOMPARE(f.list("faultList")->topLevelItemCount(), 0);
        QVERIFY(!isEnabled(f.panel, "faultClearButton"));
    }

    void removesTheFaultThatIsSelected()
    {
        fixture_t f;
        for (char const* group : {"ppsConfig", "pdopLimit", "ggaMode"})
        {
            choose(f.panel, "faultGroupCombo", group);
            tap(f.panel, "Set Fault");
        }
        f.list("faultList")->setCurrentItem(f.list("faultList")->topLevelItem(1));
        tap(f.panel, "Remove");
        QCOMPARE(rowTexts(f.list("faultList"), 0).first(), QString("ppsConfig"));
        QCOMPARE(rowTexts(f.list("faultList"), 1).first(), QString("ggaMode"));
        QCOMPARE(int(f.unit.faultFilter()->faults().size()), 2);
    }

    void drivesAreMadePulledOutAndPluggedInAgain()
    {
        fixture_t f;
        QCOMPARE(countDrives(), -1);
        QVERIFY(labelText(f.panel, "driveNoteLabel").startsWith("Without --usb"));
        tap(f.panel, "Plug In New");
        QVERIFY(waitFor([]() { return countDrives() == 1; }));
        QVERIFY(waitFor([&]() { return f.list("driveList")->topLevelItemCount() == 1; }));
        QCOMPARE(rowTexts(f.list("driveList"), 0), (QStringList{"DRIVE1", "Plugged in"}));
        QVERIFY(labelText(f.panel, "driveNoteLabel").contains("deleted when the program ends"));
        tap(f.panel, "Pull Out");
        QVERIFY(waitFor([]() { return countDrives() == 0; }));
        QVERIFY(waitFor([&]() { return rowTexts(f.list("driveList"), 0).last() == "Pulled out"; }));
        tap(f.panel, "Plug In");
        QVERIFY(waitFor([]() { return countDrives() == 1; }));
    }

    void ownDrivesKeepTheirFilesWhilePulledOut()
    {
        melvox_test::folder_t usb;
        usb.write("STICK/profile_mine.melvox", "mine");
        {
            fixture_t f(usb.path());
            QCOMPARE(rowTexts(f.list("driveList"), 0), (QStringList{"STICK", "Plugged in"}));
            tap(f.panel, "Pull Out");
            QVERIFY(waitFor([]() { return countDrives() == 0; }));
            QVERIFY(!QDir(usb.path()).exists("STICK"));
            QVERIFY(waitFor([&]() { return rowTexts(f.list("driveList"), 0).last() == "Pulled out"; }));
            tap(f.panel, "Plug In");
            QVERIFY(waitFor([]() { return countDrives() == 1; }));
        }
        QCOMPARE(usb.read("STICK/profile_mine.melvox"), QByteArray("mine"));
    }

    void realDrivesAreLeftToTheHand()
    {
        fixture_t f;
        f.drives.openReal();
        f.window.togglePanel();
        f.window.togglePanel();
        QVERIFY(labelText(f.panel, "driveNoteLabel").contains("by hand"));
        QVERIFY(!isEnabled(f.panel, "driveNewButton"));
        QVERIFY(!isEnabled(f.panel, "driveToggleButton"));
        QVERIFY(!f.drives.plugIn("STICK"));
    }

    void theNextScenarioKeepsTheFolderOfProfiles()
    {
        fixture_t f;
        QVERIFY(f.unit.keepProfiles(f.folder.path("profiles")));
        choose(f.panel, "scenarioCombo", "Open sky");
        tap(f.panel, "Start");
        f.unit.receiver()->obey("saveAsProfile", "Mine");
        QCOMPARE(int(QDir(f.folder.path("profiles")).entryList({"Mine*"}).size()), 1);
    }

    void aScenariosDriveLeavesOwnFilesAlone()
    {
        melvox_test::folder_t usb;
        usb.write("STICK/readme.txt", "mine");
        driveRack_t rack(usb.path());
        QVERIFY(rack.plugIn("STICK", {{"readme.txt", "other"}, {"updates/new.txt", "new"}}));
        QCOMPARE(usb.read("STICK/readme.txt"), QByteArray("mine"));
        QCOMPARE(usb.read("STICK/updates/new.txt"), QByteArray("new"));
    }

    void aReceiverElsewhereLeavesFaultsAndDrives()
    {
        melvox_link::tcpServer_t server;
        QVERIFY(server.listen(QHostAddress::LocalHost, 0));
        connection_t connection;
        connection.kind = connection_t::TCP;
        connection.host = "127.0.0.1";
        connection.port = server.port();
        fixture_t f(QString(), connection);
        QVERIFY(find<QLabel>(f.panel, "elsewhereLabel")->isVisible());
        QVERIFY(labelText(f.panel, "elsewhereLabel").contains("melvox_receiver --scenario"));
        for (char const* name : {"scenarioCombo", "scenarioStartButton", "speedCombo", "activePortCombo",
                                 "linkKindCombo", "connectButton"})
            QVERIFY2(!isEnabled(f.panel, name), name);
        choose(f.panel, "faultGroupCombo", "pdopLimit");
        tap(f.panel, "Set Fault");
        QCOMPARE(int(f.unit.faultFilter()->faults().size()), 1);
        tap(f.panel, "Plug In New");
        QVERIFY(waitFor([]() { return countDrives() == 1; }));
    }

    void nothingIsTooWideOrTooLowForAFinger_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("small screen") << QSize(800, 480);
        QTest::newRow("wide screen") << QSize(1024, 600);
        QTest::newRow("smallest window") << QSize(640, 400);
    }

    void nothingIsTooWideOrTooLowForAFinger()
    {
        QFETCH(QSize, size);
        fixture_t f(QString(), connection_t(), size);
        melvox_test::settle();
        QScrollArea* const view = find<QScrollArea>(f.panel, "receiverPanelView");
        QVERIFY2(view->widget()->width() <= view->viewport()->width(), "too wide");
        QVERIFY(f.window.rect().contains(f.panel->geometry()));
        for (QWidget* widget : view->widget()->findChildren<QWidget*>())
        {
            bool const isTouched = qobject_cast<QComboBox*>(widget) || qobject_cast<QPushButton*>(widget);
            if (isTouched && widget->isVisible())
                QVERIFY2(widget->height() >= 40 && widget->width() >= widget->minimumSizeHint().width(),
                         qPrintable(widget->objectName()));
        }
    }
};

QTEST_MAIN(tst_receiverPanel)
#include "tst_receiverPanel.moc"
