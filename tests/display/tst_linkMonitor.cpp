#include "display/linkMonitor.h"
#include "display/monitorModel.h"
#include "support/test.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

using namespace melvox_display;
using melvox_link::message_t;

namespace
{

message_t report(double value)
{
    return message_t(message_t::REPORT, "elevationMask", value);
}

QString cell(QAbstractItemModel const& model, int row, int column)
{
    return model.index(row, column).data().toString();
}

bool waitForRows(monitorModel_t const& model, int count)
{
    return melvox_test::waitFor([&]() { return model.rowCount() == count; });
}

bool hasTimer(QObject* object)
{
    return !QAbstractEventDispatcher::instance()->registeredTimers(object).isEmpty();
}

bool anyTimerIn(QObject* root)
{
    bool any = hasTimer(root);
    for (QObject* child : root->findChildren<QObject*>())
        any = any || hasTimer(child);
    return any;
}

} // namespace

class tst_linkMonitor : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    /** As on the display: a cursor that blinks would be a timer too. */
    void initTestCase() { QApplication::setCursorFlashTime(0); }

    void showsEveryMessageAsItPassed()
    {
        monitorModel_t model(10);
        model.add(message_t(message_t::REQUEST, "elevationMask"), true);
        model.add(report(12.5), false);
        QVERIFY(waitForRows(model, 2));
        QCOMPARE(cell(model, 0, monitorModel_t::COLUMN_DIRECTION), QString("to receiver"));
        QCOMPARE(cell(model, 0, monitorModel_t::COLUMN_KIND), QString("request"));
        QCOMPARE(cell(model, 0, monitorModel_t::COLUMN_GROUP), QString("elevationMask"));
        QCOMPARE(cell(model, 0, monitorModel_t::COLUMN_VALUE), QString());
        QCOMPARE(cell(model, 1, monitorModel_t::COLUMN_DIRECTION), QString("to display"));
        QCOMPARE(cell(model, 1, monitorModel_t::COLUMN_KIND), QString("report"));
        QCOMPARE(cell(model, 1, monitorModel_t::COLUMN_VALUE), QString("12.5"));
        QVERIFY(QRegularExpression("^\\d\\d:\\d\\d:\\d\\d\\.\\d\\d\\d$")
                    .match(cell(model, 1, monitorModel_t::COLUMN_TIME))
                    .hasMatch());
        QCOMPARE(model.textOf(model.index(1, 0)), QString("report elevationMask 12.5"));
    }

    void comesInBatches()
    {
        monitorModel_t model(5000);
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        for (int i = 0; i < 1000; ++i)
            model.add(report(i), false);
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(waitForRows(model, 1000));
        QCOMPARE(inserted.size(), 1);
    }

    void keepsTheLastMessagesOnly()
    {
        monitorModel_t model(5);
        for (int i = 0; i < 3; ++i)
            model.add(report(i), false);
        QVERIFY(waitForRows(model, 3));
        for (int i = 3; i < 7; ++i)
            model.add(report(i), false);
        QVERIFY(waitForRows(model, 5));
        QCOMPARE(cell(model, 0, monitorModel_t::COLUMN_VALUE), QString("2"));
        QCOMPARE(cell(model, 4, monitorModel_t::COLUMN_VALUE), QString("6"));
    }

    void oneBatchMayBeLongerThanWhatIsKept()
    {
        monitorModel_t model(5);
        for (int i = 0; i < 23; ++i)
            model.add(report(i), false);
        QVERIFY(waitForRows(model, 5));
        QCOMPARE(cell(model, 0, monitorModel_t::COLUMN_VALUE), QString("18"));
    }

    void standsStillWhilePaused()
    {
        monitorModel_t model(5);
        model.add(report(1), false);
        model.setPaused(true);
        QCOMPARE(model.rowCount(), 1);
        QSignalSpy changed(&model, &monitorModel_t::changed);
        for (int i = 2; i < 10; ++i)
            model.add(report(i), false);
        QVERIFY(changed.wait(2000));
        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(model.waiting(), 8);
        model.setPaused(false);
        QCOMPARE(model.rowCount(), 5);
        QCOMPARE(model.waiting(), 0);
        QCOMPARE(cell(model, 4, monitorModel_t::COLUMN_VALUE), QString("9"));
    }

    void clearForgetsAll()
    {
        monitorModel_t model(5);
        model.add(report(1), false);
        QVERIFY(waitForRows(model, 1));
        model.setPaused(true);
        model.add(report(2), false);
        model.clear();
        QCOMPARE(model.rowCount(), 0);
        model.setPaused(false);
        QCOMPARE(model.rowCount(), 0);
    }

    void timerRunsOnlyWhileSomethingIsPending()
    {
        monitorModel_t model(5);
        linkMonitor_t monitor(&model);
        monitor.show();
        QVERIFY(!anyTimerIn(&model));
        model.add(report(1), false);
        QVERIFY(anyTimerIn(&model));
        QVERIFY(waitForRows(model, 1));
        QVERIFY(melvox_test::waitFor([&]() { return !anyTimerIn(&model); }));
        // Ages go on only while somebody can see them.
        QVERIFY(anyTimerIn(&monitor));
        monitor.findChild<QPushButton*>("monitorPauseButton")->click();
        QVERIFY(melvox_test::waitFor([&]() { return !anyTimerIn(&monitor); }));
        monitor.findChild<QPushButton*>("monitorPauseButton")->click();
        QVERIFY(anyTimerIn(&monitor));
        monitor.hide();
        QVERIFY(melvox_test::waitFor([&]() { return !anyTimerIn(&monitor); }));
        monitor.show();
        QVERIFY(anyTimerIn(&monitor));
        model.clear();
        QVERIFY(melvox_test::waitFor([&]() { return !anyTimerIn(&monitor); }));
    }

    void newestIsInSightUnlessOneReadsFurtherUp()
    {
        monitorModel_t model(5000);
        linkMonitor_t monitor(&model);
        monitor.resize(600, 400);
        monitor.show();
        for (int i = 0; i < 200; ++i)
            model.add(report(i), false);
        QVERIFY(waitForRows(model, 200));
        melvox_test::settle();
        QScrollBar* bar = monitor.findChild<QTableView*>("monitorTable")->verticalScrollBar();
        QVERIFY(bar->maximum() > 0);
        QCOMPARE(bar->value(), bar->maximum());
        bar->triggerAction(QAbstractSlider::SliderToMinimum);
        melvox_test::settle();
        for (int i = 0; i < 10; ++i)
            model.add(report(i), false);
        QVERIFY(waitForRows(model, 210));
        melvox_test::settle();
        QCOMPARE(bar->value(), 0);
    }

    void pauseButtonPausesAndTellsHowManyWait()
    {
        monitorModel_t model(50);
        linkMonitor_t monitor(&model);
        QPushButton* pause = monitor.findChild<QPushButton*>("monitorPauseButton");
        QLabel* state = monitor.findChild<QLabel*>("monitorStateLabel");
        pause->click();
        QVERIFY(model.isPaused());
        QCOMPARE(pause->text(), QString("Go on"));
        for (int i = 0; i < 7; ++i)
            model.add(report(i), false);
        QVERIFY(melvox_test::waitFor([&]() { return state->text() == "paused, 7 new"; }));
        pause->click();
        QVERIFY(!model.isPaused());
        QCOMPARE(state->text(), QString("7 messages"));
        monitor.findChild<QPushButton*>("monitorClearButton")->click();
        QCOMPARE(state->text(), QString("0 messages"));
    }

    void filterLeavesWhatContainsTheText()
    {
        monitorModel_t model(50);
        linkMonitor_t monitor(&model);
        model.add(report(1), false);
        model.add(message_t(message_t::REPORT, "pdopLimit", 6.0), false);
        QVERIFY(waitForRows(model, 2));
        QTableView* table = monitor.findChild<QTableView*>("monitorTable");
        QLineEdit* filter = monitor.findChild<QLineEdit*>("monitorFilterEdit");
        filter->setText("PDOP");
        QCOMPARE(table->model()->rowCount(), 1);
        filter->setText(".*");
        QCOMPARE(table->model()->rowCount(), 0);
        filter->clear();
        QCOMPARE(table->model()->rowCount(), 2);
    }

    void filterDoesNotHeedTheAge()
    {
        monitorModel_t model(50);
        linkMonitor_t monitor(&model);
        model.add(message_t(message_t::REQUEST, "pdopLimit"), true);
        QVERIFY(waitForRows(model, 1));
        monitor.findChild<QLineEdit*>("monitorFilterEdit")->setText(" s");
        QCOMPARE(monitor.findChild<QTableView*>("monitorTable")->model()->rowCount(), 0);
    }

    void ageIsReadable_data()
    {
        QTest::addColumn<qint64>("milliseconds");
        QTest::addColumn<QString>("text");
        QTest::newRow("clock set back") << qint64(-5000) << "0.0 s";
        QTest::newRow("just now") << qint64(99) << "0.0 s";
        QTest::newRow("seconds") << qint64(3299) << "3.2 s";
        QTest::newRow("last seconds") << qint64(59999) << "59.9 s";
        QTest::newRow("minutes") << qint64(60000) << "1 min 00 s";
        QTest::newRow("last minutes") << qint64(3599999) << "59 min 59 s";
        QTest::newRow("hours") << qint64(7620000) << "2 h 07 min";
    }

    void ageIsReadable()
    {
        QFETCH(qint64, milliseconds);
        QTEST(ageText(milliseconds), "text");
    }

    void ageGoesOnUntilItIsPaused()
    {
        monitorModel_t model(5);
        model.add(report(1), false);
        QVERIFY(waitForRows(model, 1));
        QString const first = cell(model, 0, monitorModel_t::COLUMN_AGE);
        QVERIFY(melvox_test::waitFor([&]() { return cell(model, 0, monitorModel_t::COLUMN_AGE) != first; }));
        model.setPaused(true);
        QString const paused = cell(model, 0, monitorModel_t::COLUMN_AGE);
        QElapsedTimer timer;
        timer.start();
        QVERIFY(melvox_test::waitFor([&]() { return timer.elapsed() > 150; }));
        QCOMPARE(cell(model, 0, monitorModel_t::COLUMN_AGE), paused);
        model.setPaused(false);
        QVERIFY(cell(model, 0, monitorModel_t::COLUMN_AGE) != paused);
    }

    void copiesAllRowsThatPassTheFilterOrTheSelectedOnes()
    {
        monitorModel_t model(50);
        linkMonitor_t monitor(&model);
        QPushButton* copy = monitor.findChild<QPushButton*>("monitorCopyButton");
        QVERIFY(!copy->isEnabled());
        QString const longText(500, 'x');
        model.add(message_t(message_t::REQUEST, "pdopLimit"), true);
        model.add(report(1), false);
        model.add(message_t(message_t::REPORT, "baseName", longText), false);
        QVERIFY(waitForRows(model, 3));
        copy->click();
        QStringList lines = QApplication::clipboard()->text().split('\n');
        QCOMPARE(int(lines.size()), 4);
        QVERIFY2(QRegularExpression("^\\d\\d:\\d\\d:\\d\\d\\.\\d\\d\\d to receiver request pdopLimit$")
                     .match(lines.first())
                     .hasMatch(),
                 qPrintable(lines.first()));
        QVERIFY(lines.at(2).contains(longText));
        monitor.findChild<QLineEdit*>("monitorFilterEdit")->setText("to display");
        copy->click();
        QCOMPARE(int(QApplication::clipboard()->text().split('\n').size()), 3);
        QTableView* table = monitor.findChild<QTableView*>("monitorTable");
        table->selectRow(0);
        monitor.show();
        monitor.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&monitor));
        table->setFocus();
        QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
        QVERIFY(QApplication::clipboard()->text().endsWith("to display report elevationMask 1\n"));
        QCOMPARE(int(QApplication::clipboard()->text().count('\n')), 1);
    }

    void selectedMessageCanBeReadWhole()
    {
        monitorModel_t model(50);
        linkMonitor_t monitor(&model);
        QVariantList list;
        for (int i = 0; i < 100; ++i)
            list << QVariantMap{{"name", QString("signal%1").arg(i)}};
        model.add(message_t(message_t::REPORT, "measUse", list), false);
        QVERIFY(waitForRows(model, 1));
        QVERIFY(cell(model, 0, monitorModel_t::COLUMN_VALUE).size() <= 200);
        QTableView* table = monitor.findChild<QTableView*>("monitorTable");
        table->selectRow(0);
        QVERIFY(monitor.findChild<QPlainTextEdit*>("monitorMessageText")->toPlainText().contains("signal99"));
    }

    void aThousandMessagesASecondLeaveTimeForTheScreen()
    {
        monitorModel_t model(5000);
        linkMonitor_t monitor(&model);
        monitor.resize(600, 400);
        monitor.show();
        for (int i = 0; i < 5000; ++i)
            model.add(report(i), false);
        QVERIFY(waitForRows(model, 5000));
        // A second's worth of messages into a full monitor, shown: a small part of that second.
        QElapsedTimer timer;
        timer.start();
        for (int i = 0; i < 1000; ++i)
            model.add(report(i), false);
        QSignalSpy changed(&model, &monitorModel_t::changed);
        qint64 const added = timer.elapsed();
        QVERIFY(changed.wait(2000));
        timer.restart();
        QApplication::processEvents();
        QVERIFY2(added + timer.elapsed() < 500, "too slow");
        QCOMPARE(model.rowCount(), 5000);
    }
};

QTEST_MAIN(tst_linkMonitor)
#include "tst_linkMonitor.moc"
