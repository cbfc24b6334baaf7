#include "brel_common_qt/remoteMelvoxDevice.h"
#include "display/displayStyle.h"
#include "display/displayWindow.h"
#include "display/driveRack.h"
#include "display/keypad.h"
#include "display/linkMonitor.h"
#include "display/monitorModel.h"
#include "display/receiverPanel.h"
#include "display/screen.h"
#include "display/simulation.h"
#include "display/statusStrip.h"
#include "display/uiSettings.h"
#include "display/unit.h"
#include "link/localLink.h"
#include "receiver/simClock.h"
#include "support/test.h"

#include <QApplication>
#include <QLabel>
#include <QTableView>
#include <QTemporaryDir>
#include <QToolButton>

using namespace melvox_display;

namespace
{

struct fixture_t
{
    explicit fixture_t(QSize const& size = QSize(1024, 600))
        : unit(connection_t()), drives(QString()), simulation(unit, drives), settings(folder.filePath("display.conf")),
          window(allPages(), &unit, &settings, size, &simulation)
    {
        unit.start();
        window.showFirstPage(QString());
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
    }

    QTemporaryDir folder;
    unit_t unit;
    driveRack_t drives;
    simulation_t simulation;
    uiSettings_t settings;
    displayWindow_t window;
};

QStringList timersIn(QObject* root)
{
    QStringList running;
    for (QObject* object : QList<QObject*>{root} + root->findChildren<QObject*>())
    {
        if (!QAbstractEventDispatcher::instance()->registeredTimers(object).isEmpty())
            running << QString("%1 %2").arg(object->metaObject()->className(), object->objectName());
    }
    return running;
}

} // namespace

class tst_displayWindow : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void initTestCase() { applyDisplayStyle(*qApp); }

    void firstPageIsTheNamedOneOrTheLastOneOrTheFirst()
    {
        fixture_t f;
        QCOMPARE(f.window.screen()->currentPage(), QString(allPages().front().name));
        f.settings.setLastPage("displaySettings");
        f.window.showFirstPage(QString());
        QCOMPARE(f.window.screen()->currentPage(), QString("displaySettings"));
        f.window.showFirstPage("solutionControl");
        QCOMPARE(f.window.screen()->currentPage(), QString("solutionControl"));
        f.settings.setLastPage("gone");
        f.window.showFirstPage(QString());
        QCOMPARE(f.window.screen()->currentPage(), QString(allPages().front().name));
    }

    void screenKeepsItsSizeWhenTheMonitorOpensBesideIt()
    {
        fixture_t f;
        QCOMPARE(f.window.screen()->size(), QSize(1024, 600));
        f.window.toggleMonitor();
        QVERIFY(f.window.isMonitorShown());
        QCOMPARE(f.window.screen()->size(), QSize(1024, 600));
        QVERIFY(!f.window.screen()->geometry().intersects(f.window.monitor()->geometry()));
        QVERIFY(f.window.rect().contains(f.window.monitor()->geometry()));
        f.window.toggleMonitor();
        QVERIFY(!f.window.isMonitorShown());
        QCOMPARE(f.window.size(), QSize(1024, 600));
        QCOMPARE(f.window.screen()->size(), QSize(1024, 600));
    }

    void monitorLiesOverASmallScreenAndLeavesTheStrip()
    {
        fixture_t f(QSize(800, 480));
        f.window.toggleMonitor();
        QCOMPARE(f.window.size(), QSize(800, 480));
        QCOMPARE(f.window.screen()->size(), QSize(800, 480));
        QVERIFY(f.window.rect().contains(f.window.monitor()->geometry()));
        statusStrip_t* strip = f.window.screen()->strip();
        QRect const stripPlace(strip->mapTo(&f.window, QPoint(0, 0)), strip->size());
        QVERIFY(!stripPlace.intersects(f.window.monitor()->geometry()));
        f.window.toggleMonitor();
        QVERIFY(!f.window.isMonitorShown());
    }

    void buttonAndKeyToggleTheMonitor()
    {
        fixture_t f;
        QTest::mouseClick(f.window.findChild<QToolButton*>("monitorButton"), Qt::LeftButton);
        QVERIFY(f.window.isMonitorShown());
        QTest::keyClick(&f.window, Qt::Key_F12);
        QVERIFY(!f.window.isMonitorShown());
        QVERIFY(!f.window.findChild<QToolButton*>("monitorButton")->isChecked());
    }

    void buttonAndKeyToggleTheReceiverPanel()
    {
        fixture_t f;
        QTest::mouseClick(f.window.findChild<QToolButton*>("panelButton"), Qt::LeftButton);
        QVERIFY(f.window.isPanelShown());
        QCOMPARE(f.window.screen()->size(), QSize(1024, 600));
        QTest::keyClick(&f.window, Qt::Key_F11);
        QVERIFY(!f.window.isPanelShown());
        QVERIFY(!f.window.findChild<QToolButton*>("panelButton")->isChecked());
    }

    void monitorAndPanelTakeTheSamePlace()
    {
        fixture_t f;
        f.window.toggleMonitor();
        QSize const size = f.window.size();
        f.window.togglePanel();
        QVERIFY(f.window.isPanelShown());
        QVERIFY(!f.window.isMonitorShown());
        QCOMPARE(f.window.size(), size);
        QVERIFY(!f.window.findChild<QToolButton*>("monitorButton")->isChecked());
        QVERIFY(f.window.findChild<QToolButton*>("panelButton")->isChecked());
        f.window.toggleMonitor();
        QVERIFY(f.window.isMonitorShown());
        QVERIFY(!f.window.isPanelShown());
    }

    void withoutASimulationThereIsNoPanel()
    {
        fixture_t f;
        displayWindow_t plain(allPages(), &f.unit, &f.settings, QSize(800, 480));
        plain.show();
        QVERIFY(!plain.findChild<QToolButton*>("panelButton")->isVisible());
        plain.toggleMonitor();
        plain.togglePanel();
        QVERIFY(!plain.isPanelShown());
        QVERIFY(plain.isMonitorShown());
    }

    void monitorShowsWhatPassesOverTheLink()
    {
        fixture_t f;
        QTableView* table = f.window.monitor()->findChild<QTableView*>("monitorTable");
        QVERIFY(melvox_test::waitFor([&]() { return table->model()->rowCount() > 20; }));
        QStringList rows;
        for (int row = 0; row < table->model()->rowCount(); ++row)
            rows << table->model()->index(row, monitorModel_t::COLUMN_DIRECTION).data().toString() + " " +
                        table->model()->index(row, monitorModel_t::COLUMN_GROUP).data().toString();
        QVERIFY(rows.contains("to receiver elevationMask"));
    }

    void stripFollowsTheLink()
    {
        fixture_t f;
        QLabel* state = f.window.findChild<QLabel*>("linkStateLabel");
        QCOMPARE(state->text(), QString("Connected"));
        QVERIFY(f.window.findChild<QLabel*>("simulatedLabel")->isVisible());
        f.unit.localLink()->setOpen(false);
        QCOMPARE(state->text(), QString("LINK INTERRUPTED"));
        f.unit.localLink()->setOpen(true);
        QCOMPARE(state->text(), QString("Connected"));
    }

    void noTimerRunsOnceAllIsQuiet()
    {
        fixture_t f;
        QVERIFY(melvox_test::waitFor([&]() { return f.unit.device()->elevationMaskValid(); }));
        for (pageEntry_t const& page : allPages())
            f.window.screen()->showPage(page.name);
        f.window.toggleMonitor();
        f.window.toggleMonitor();
        f.window.screen()->showPage("solutionControl");
        f.window.screen()->keypad()->open(f.window.findChild<QLineEdit*>("pdopLineEdit"));
        // Messages that go on coming are the receiver's own doing.
        f.unit.localLink()->setOpen(false);
        QVERIFY2(melvox_test::waitFor([&]() { return timersIn(&f.window).isEmpty(); }, 10000),
                 qPrintable(timersIn(&f.window).join(", ")));
    }
};

QTEST_MAIN(tst_displayWindow)
#include "tst_displayWindow.moc"
