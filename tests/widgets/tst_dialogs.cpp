#include "brel_common_qt_gui/dialogPage.h"
#include "brel_common_qt_gui/errorText.h"
#include "brel_common_qt_gui/guiSettings.h"
#include "support/test.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPointer>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

namespace
{

/** Takes dialogs as a host does that shows them on a screen of its own. */
class host_t : public dialogHost_t
{
public:
    void showDialog(QDialog* dialog) override { taken << dialog; }

    QList<QPointer<QDialog>> taken;
};

QList<QMessageBox*> openReports()
{
    QList<QMessageBox*> reports;
    QWidgetList const windows = QApplication::topLevelWidgets();
    for (int i = 0; i < windows.size(); ++i)
    {
        QMessageBox* const box = qobject_cast<QMessageBox*>(windows.at(i));
        if (box && box->objectName() == "errorReport" && box->isVisible())
            reports << box;
    }
    return reports;
}

QTextStream& endLine(QTextStream& stream)
{
#if QT_VERSION < 0x050e00
    return endl(stream);
#else
    return Qt::endl(stream);
#endif
}

} // namespace

/** Ends a modal box that should not have been run, so that the test can say so. */
class loopGuard_t : public QObject
{
    Q_OBJECT

public:
    loopGuard_t() : loopRan(false) { startTimer(0); }

    bool loopRan;

protected:
    void timerEvent(QTimerEvent*) override
    {
        loopRan = true;
        if (QWidget* const modal = QApplication::activeModalWidget())
            modal->close();
    }
};

class tst_dialogs : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void nothingIsReportedWithoutText();
    void reportShowsAllLinesTogether();
    void reportHasTheDefaultTitle();
    void reportHasTheCustomTitle();
    void reportTextIsShownAsItIs();
    void reportDoesNotWait();
    void reportCanOutliveItsText();
    void reportDeletesItselfWhenItIsFinished_data();
    void reportDeletesItselfWhenItIsFinished();
    void reportGoesToTheHost();
    void reportButtonsAreLargeEnough();

    void dialogOpensAsAWindowWithoutAHost();
    void showingADialogDoesNotWait();
    void dialogCanBeShownTwice();
    void dialogCanBeShownAgainAfterItWasFinished();
    void dialogGoesToTheHost();
    void dialogIsDestroyedWithItsPageWhileItIsShown();
    void dialogIsDestroyedWithItsPageWhileAHostShowsIt();
    void dialogMayBeDeletedElsewhere();
    void dialogOfADestroyedParentIsSurvived();
    void hostCanBeTakenAway();
    void reusedMessageBoxTellsEachOutcome();

    void preferencesAreTheSameForAll();
    void changesOfPreferencesAreTold();

private:
    void tearDown() override;
};

void tst_dialogs::tearDown()
{
    dialogPage_t::setHost(nullptr);
    guiSettings_t::get().setLatLonFormat(LATLON_FORMAT_DEGREE);
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_METER);
    QList<QMessageBox*> const left = openReports();
    for (int i = 0; i < left.size(); ++i)
        delete left.at(i);
}

void tst_dialogs::nothingIsReportedWithoutText()
{
    host_t host;
    errorText_t err;
    QVERIFY(err.isEmpty());
    err.report();
    QVERIFY(openReports().isEmpty());
    dialogPage_t::setHost(&host);
    err.report();
    QVERIFY(host.taken.isEmpty());
}

void tst_dialogs::reportShowsAllLinesTogether()
{
    errorText_t err;
    err << "Elevation mask must be " << 4.0 << " - " << 60.0 << endLine;
    err << "PDOP limit must be " << 1 << " - " << 25.5 << endLine;
    QVERIFY(!err.isEmpty());
    err.report();
    QCOMPARE(openReports().size(), 1);
    QCOMPARE(openReports().first()->text(), QString("Elevation mask must be 4 - 60\nPDOP limit must be 1 - 25.5\n"));
}

void tst_dialogs::reportHasTheDefaultTitle()
{
    QCOMPARE(errorText_t::defaultTitle, QString("Invalid Settings"));
    errorText_t err;
    QVERIFY(err.customTitle().isEmpty());
    err << "wrong" << endLine;
    err.report();
    QCOMPARE(openReports().first()->windowTitle(), errorText_t::defaultTitle);
}

void tst_dialogs::reportHasTheCustomTitle()
{
    errorText_t err("Antenna");
    QCOMPARE(err.customTitle(), QString("Antenna"));
    err.setCustomTitle("Second Antenna");
    err << "wrong" << endLine;
    err.report();
    QCOMPARE(openReports().first()->windowTitle(), QString("Second Antenna"));
}

void tst_dialogs::reportTextIsShownAsItIs()
{
    errorText_t err;
    err << "<b>4 < 5 & 6</b>" << endLine;
    err.report();
    QCOMPARE(openReports().first()->text(), QString("<b>4 < 5 & 6</b>\n"));
    QCOMPARE(openReports().first()->textFormat(), Qt::PlainText);
}

void tst_dialogs::reportDoesNotWait()
{
    loopGuard_t guard;
    errorText_t err;
    err << "wrong" << endLine;
    err.report();
    QVERIFY(!guard.loopRan);
    QCOMPARE(openReports().size(), 1);
}

void tst_dialogs::reportCanOutliveItsText()
{
    {
        errorText_t err;
        err << "wrong" << endLine;
        err.report();
    }
    melvox_test::settle();
    QCOMPARE(openReports().first()->text(), QString("wrong\n"));
}

void tst_dialogs::reportDeletesItselfWhenItIsFinished_data()
{
    QTest::addColumn<bool>("byButton");
    QTest::newRow("button") << true;
    QTest::newRow("window") << false;
}

void tst_dialogs::reportDeletesItselfWhenItIsFinished()
{
    QFETCH(bool, byButton);
    errorText_t err;
    err << "wrong" << endLine;
    err.report();
    QPointer<QMessageBox> const box = openReports().first();
    if (byButton)
        QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    else
        box->close();
    melvox_test::settle();
    QVERIFY(!box);
}

void tst_dialogs::reportGoesToTheHost()
{
    host_t host;
    dialogPage_t::setHost(&host);
    errorText_t err;
    err << "wrong" << endLine;
    err.report();
    QCOMPARE(host.taken.size(), 1);
    QVERIFY(openReports().isEmpty());
    QCOMPARE(qobject_cast<QMessageBox*>(host.taken.first())->text(), QString("wrong\n"));
    host.taken.first()->done(0);
    melvox_test::settle();
    QVERIFY(!host.taken.first());
}

void tst_dialogs::reportButtonsAreLargeEnough()
{
    errorText_t err;
    err << "wrong" << endLine;
    err.report();
    QVERIFY(openReports().first()->button(QMessageBox::Ok)->height() >= 40);
}

void tst_dialogs::dialogOpensAsAWindowWithoutAHost()
{
    QWidget page;
    page.show();
    QDialog* const dialog = new QDialog(&page);
    dialogPage_t dialogPage(dialog);
    QVERIFY(!dialog->isVisible());
    dialogPage.show();
    QVERIFY(dialog->isVisible());
    QVERIFY(dialog->isWindow());
    QCOMPARE(dialog->windowModality(), Qt::WindowModal);
}

void tst_dialogs::showingADialogDoesNotWait()
{
    loopGuard_t guard;
    dialogPage_t dialogPage(new QMessageBox(QMessageBox::Question, "title", "text", QMessageBox::Yes));
    dialogPage.show();
    QVERIFY(!guard.loopRan);
}

void tst_dialogs::dialogCanBeShownTwice()
{
    QDialog* const dialog = new QDialog;
    dialogPage_t dialogPage(dialog);
    QSignalSpy finished(dialog, SIGNAL(finished(int)));
    dialogPage.show();
    dialogPage.show();
    QVERIFY(dialog->isVisible());
    dialog->accept();
    QVERIFY(!dialog->isVisible());
    QCOMPARE(finished.count(), 1);
}

void tst_dialogs::dialogCanBeShownAgainAfterItWasFinished()
{
    QPointer<QDialog> const dialog = new QDialog;
    dialogPage_t dialogPage(dialog);
    dialogPage.show();
    dialog->reject();
    melvox_test::settle();
    QVERIFY(dialog);
    dialogPage.show();
    QVERIFY(dialog->isVisible());
}

void tst_dialogs::dialogGoesToTheHost()
{
    host_t host;
    dialogPage_t::setHost(&host);
    QCOMPARE(dialogPage_t::host(), static_cast<dialogHost_t*>(&host));
    QDialog* const dialog = new QDialog;
    dialogPage_t dialogPage(dialog);
    QVERIFY(host.taken.isEmpty());
    dialogPage.show();
    QCOMPARE(host.taken.size(), 1);
    QCOMPARE(host.taken.first().data(), dialog);
    QVERIFY(!dialog->isVisible());
}

void tst_dialogs::dialogIsDestroyedWithItsPageWhileItIsShown()
{
    QWidget* const window = new QWidget;
    window->show();
    QPointer<QDialog> const dialog = new QDialog(window);
    dialogPage_t* const dialogPage = new dialogPage_t(dialog);
    dialogPage->show();
    delete dialogPage;
    QVERIFY(!dialog);
    delete window;
}

void tst_dialogs::dialogIsDestroyedWithItsPageWhileAHostShowsIt()
{
    host_t host;
    dialogPage_t::setHost(&host);
    {
        dialogPage_t dialogPage(new QDialog);
        dialogPage.show();
    }
    QVERIFY(!host.taken.first());
}

void tst_dialogs::dialogMayBeDeletedElsewhere()
{
    host_t host;
    QDialog* const dialog = new QDialog;
    dialogPage_t dialogPage(dialog);
    dialogPage.show();
    delete dialog;
    dialogPage.show();
    dialogPage_t::setHost(&host);
    dialogPage.show();
    QVERIFY(host.taken.isEmpty());
}

void tst_dialogs::dialogOfADestroyedParentIsSurvived()
{
    QWidget* const parent = new QWidget;
    dialogPage_t dialogPage(new QDialog(parent));
    dialogPage.show();
    delete parent;
    dialogPage.show();
}

void tst_dialogs::hostCanBeTakenAway()
{
    host_t host;
    QDialog* const dialog = new QDialog;
    dialogPage_t dialogPage(dialog);
    dialogPage_t::setHost(&host);
    dialogPage.show();
    dialogPage_t::setHost(nullptr);
    QVERIFY(!dialogPage_t::host());
    dialogPage.show();
    QCOMPARE(host.taken.size(), 1);
    QVERIFY(dialog->isVisible());
}

void tst_dialogs::reusedMessageBoxTellsEachOutcome()
{
    QMessageBox* const box =
        new QMessageBox(QMessageBox::Question, "title", "text", QMessageBox::Yes | QMessageBox::No);
    dialogPage_t dialogPage(box);
    QSignalSpy finished(box, SIGNAL(finished(int)));
    dialogPage.show();
    QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
    dialogPage.show();
    QTest::mouseClick(box->button(QMessageBox::No), Qt::LeftButton);
    QCOMPARE(finished.count(), 2);
    QCOMPARE(finished.at(0).at(0).toInt(), int(QMessageBox::Yes));
    QCOMPARE(finished.at(1).at(0).toInt(), int(QMessageBox::No));
}

void tst_dialogs::preferencesAreTheSameForAll()
{
    QCOMPARE(&guiSettings_t::get(), &guiSettings_t::get());
    QCOMPARE(int(guiSettings_t::get().latLonFormat()), int(LATLON_FORMAT_DEGREE));
    QCOMPARE(int(guiSettings_t::get().distanceUnit()), int(DISTANCE_UNIT_METER));
    guiSettings_t::get().setLatLonFormat(LATLON_FORMAT_DEGMINSEC);
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_US_SURVEY_FOOT);
    QCOMPARE(int(guiSettings_t::get().latLonFormat()), int(LATLON_FORMAT_DEGMINSEC));
    QCOMPARE(int(guiSettings_t::get().distanceUnit()), int(DISTANCE_UNIT_US_SURVEY_FOOT));
}

void tst_dialogs::changesOfPreferencesAreTold()
{
    QSignalSpy format(&guiSettings_t::get(), SIGNAL(latLonFormatChanged()));
    QSignalSpy unit(&guiSettings_t::get(), SIGNAL(distanceUnitChanged()));
    guiSettings_t::get().setLatLonFormat(LATLON_FORMAT_DEGMIN);
    guiSettings_t::get().setLatLonFormat(LATLON_FORMAT_DEGMIN);
    QCOMPARE(format.count(), 1);
    QCOMPARE(unit.count(), 0);
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_US_SURVEY_FOOT);
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_US_SURVEY_FOOT);
    QCOMPARE(format.count(), 1);
    QCOMPARE(unit.count(), 1);
}

QTEST_MAIN(tst_dialogs)
#include "tst_dialogs.moc"
