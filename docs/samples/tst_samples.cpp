// The samples of the documents do what the documents say.

#include "keypadOpener.h"
#include "operate.h"
#include "portWatch.h"
#include "screen.h"
#include "settings.h"
#include "transfer.h"

#include "brel_common_qt/kitPort.h"
#include "brel_common_qt/textHelpers.h"
#include "brel_common_qt/usbDriveManager.h"
#include "brel_common_qt_gui/errorText.h"
#include "brel_common_qt_gui/usbDriveSelectDialog.h"
#include "melvox_ui/melvoxUiReceiverInformation.h"
#include "melvox_ui/melvoxUiRtkConfiguration.h"
#include "melvox_ui/melvoxUiWebInterface.h"
#include "support/folder.h"
#include "support/pageTest.h"

#include <QScopedPointer>
#include <QSignalSpy>
#include <QTimer>
#include <QTranslator>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

// begin port
/** The kit's way to a port. The link stays the caller's and must live longer than the proxy. */
remotePort_t* makePort(melvox_link::link_t* link)
{
    return melvox_kit::createPort(link, melvox_kit::LINK_TCP);
}
// end

// begin drives
/** On a unit with USB the drives must be known before the first page is made: a page looks once. */
QWidget* makeWebPage(remoteMelvoxDevice_t* receiver, bool unitHasUsb, QScopedPointer<usbDriveManager_t>& drives)
{
    if (unitHasUsb)
        drives.reset(new usbDriveManager_t);
    return new melvoxUiWebInterface_t(receiver);
}
// end

// begin language
/** Pages that are made from now on speak this language, such as "de_AT", if there are their texts in it. */
bool speak(QString const& language, QString const& folder, QTranslator& texts)
{
    if (!texts.load("melvox_ui_" + language, folder))
        return false;
    qApp->installTranslator(&texts);
    return true;
}
// end

/** An owner that does not take no for an answer. */
class stubborn_t : public QObject
{
    Q_OBJECT

public:
    explicit stubborn_t(QDialog* dialog) : page(dialog), left(1) {}

    dialogPage_t page;
    int left;

public slots:
    void showAgain()
    {
        if (left-- > 0)
            page.show();
    }
};

class tst_samples : public melvox_test::pageTest_t
{
    Q_OBJECT

private slots:
    void operatesAPage();
    void showsDialogsInItsScreen();
    void hidesAFinishedDialogAndShowsItAgain();
    void comesBackToTheDialogBelow();
    void keepsADialogThatIsShownAgainWhenItFinishes();
    void survivesAPageThatTakesItsDialogAlong();
    void knowsWhichKeypadAnEditWants();
    void keepsTheUnitAndThePagesSetting();
    void offersDrivesOnlyWhereThereAreAny();
    void transfersWithTheLinkToItself();
    void givesUpWhenSomebodyElseHasTheLock();
    void followsAGroup();
    void speaksALanguageThatThereIs();
};

void tst_samples::operatesAPage()
{
    melvox_link::scriptedLink_t link;
    QTimer::singleShot(0, qApp, SLOT(quit()));
    QCOMPARE(operate(*static_cast<QApplication*>(qApp), makePort(&link)), 0);
    QVERIFY(link.requests().contains("elevationMask"));
}

void tst_samples::showsDialogsInItsScreen()
{
    screen_t screen;
    melvoxUiRtkConfiguration_t page(device);
    screen.showPage(&page);
    screen.show();
    receiver->report("antennaAlignment", map("mode", 2, "angle", 10.0));
    type(&page, "userAngleLineEdit", "999.00");
    page.submit();
    QDialog* const box = qobject_cast<QDialog*>(screen.currentWidget());
    QVERIFY(box);
    box->accept();
    QCOMPARE(screen.currentWidget(), static_cast<QWidget*>(&page));
    melvox_test::settle();
}

void tst_samples::hidesAFinishedDialogAndShowsItAgain()
{
    screen_t screen;
    QWidget page;
    screen.showPage(&page);
    screen.show();
    QDialog* const dialog = new QDialog;
    dialogPage_t dialogPage(dialog);
    for (int i = 0; i < 2; ++i)
    {
        dialogPage.show();
        QCOMPARE(screen.currentWidget(), static_cast<QWidget*>(dialog));
        QVERIFY(dialog->isVisible());
        dialog->reject();
        QVERIFY(!dialog->isVisible());
        QCOMPARE(screen.currentWidget(), &page);
    }
}

void tst_samples::comesBackToTheDialogBelow()
{
    screen_t screen;
    QWidget page;
    screen.showPage(&page);
    screen.show();
    QDialog* const lower = new QDialog;
    QDialog* const upper = new QDialog;
    dialogPage_t lowerPage(lower);
    dialogPage_t upperPage(upper);
    lowerPage.show();
    upperPage.show();
    upper->accept();
    QCOMPARE(screen.currentWidget(), static_cast<QWidget*>(lower));
    lower->accept();
    QCOMPARE(screen.currentWidget(), &page);
}

void tst_samples::keepsADialogThatIsShownAgainWhenItFinishes()
{
    screen_t screen;
    QWidget page;
    screen.showPage(&page);
    screen.show();
    QDialog* const dialog = new QDialog;
    stubborn_t owner(dialog);
    connect(dialog, SIGNAL(finished(int)), &owner, SLOT(showAgain()));
    owner.page.show();
    dialog->reject();
    QCOMPARE(screen.currentWidget(), static_cast<QWidget*>(dialog));
    QVERIFY(dialog->isVisible());
    dialog->reject();
    QCOMPARE(screen.currentWidget(), &page);
}

void tst_samples::survivesAPageThatTakesItsDialogAlong()
{
    screen_t screen;
    QWidget page;
    screen.showPage(&page);
    {
        dialogPage_t dialogPage(new QDialog);
        dialogPage.show();
        QCOMPARE(screen.count(), 2);
    }
    QCOMPARE(screen.count(), 1);
    QCOMPARE(screen.currentWidget(), &page);
}

void tst_samples::knowsWhichKeypadAnEditWants()
{
    keypadOpener_t opener;
    QSignalSpy spy(&opener, SIGNAL(wanted(QWidget*, bool, QString)));
    melvoxUiRtkConfiguration_t page(device);
    page.show();
    receiver->report("antennaAlignment", map("mode", 2, "angle", 10.0));
    QTest::mouseClick(find<QLineEdit>(&page, "userAngleLineEdit"), Qt::LeftButton);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().at(1).toBool(), true);
    QCOMPARE(spy.first().at(2).toString(), QString("MBRTK User Angle"));
}

void tst_samples::keepsTheUnitAndThePagesSetting()
{
    melvox_test::folder_t folder;
    std::string const path = QFile::encodeName(folder.path("host.conf")).constData();
    {
        settings_t settings(path);
        melvoxUiOutputMessages_t page(device);
        settings.attach(&page);
        guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_US_SURVEY_FOOT);
        device->setShowDtmWarning(false);
        QMetaObject::invokeMethod(&page, "saveUiSettingsNeeded");
    }
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_METER);
    device->setShowDtmWarning(true);
    {
        settings_t settings(path);
        melvoxUiOutputMessages_t page(device);
        settings.attach(&page);
        QCOMPARE(guiSettings_t::get().distanceUnit(), DISTANCE_UNIT_US_SURVEY_FOOT);
        QVERIFY(!device->showDtmWarning());
    }
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_METER);
}

void tst_samples::offersDrivesOnlyWhereThereAreAny()
{
    for (int i = 0; i < 2; ++i)
    {
        screen_t screen;
        QWidget below;
        screen.showPage(&below);
        QScopedPointer<usbDriveManager_t> drives;
        QScopedPointer<QWidget> page(makeWebPage(device, i == 1, drives));
        QCOMPARE(usbDriveManager_t::m_instance != 0, i == 1);
        if (i == 0)
            continue;
        tap(page.data(), "selectPackageButton");
        QVERIFY(qobject_cast<usbDriveSelectDialog_t*>(screen.currentWidget()));
    }
}

void tst_samples::transfersWithTheLinkToItself()
{
    transfer_t transfer(device->port(), "abc");
    QSignalSpy ended(&transfer, SIGNAL(ended(bool)));
    transfer.start();
    QCOMPARE(receiver->commands().join("; "), QString("portLock 1"));
    receiver->report("portLock", 1);
    receiver->report("uploadResult", 0);
    QCOMPARE(ended.count(), 1);
    QCOMPARE(ended.first().first().toBool(), true);
    QCOMPARE(receiver->messages().at(1).value.toByteArray(), QByteArray("abc"));
    QCOMPARE(receiver->commands().last(), QString("portLock 0"));
}

void tst_samples::givesUpWhenSomebodyElseHasTheLock()
{
    transfer_t transfer(device->port(), "abc");
    QSignalSpy ended(&transfer, SIGNAL(ended(bool)));
    transfer.start();
    receiver->report("portLock", 0);
    QCOMPARE(ended.count(), 1);
    QCOMPARE(ended.first().first().toBool(), false);
    QCOMPARE(receiver->commands().join("; "), QString("portLock 1"));
}

void tst_samples::followsAGroup()
{
    portWatch_t watch(device);
    QCOMPARE(watch.text(), NoDataString);
    receiver->report("activePort", int(MELVOX_PORT_USB1));
    QCOMPARE(watch.text(), QString("USB1"));
}

void tst_samples::speaksALanguageThatThereIs()
{
    QString const question = "Toggle the LTE modem?";
    QTranslator texts;
    QVERIFY(!speak("xx", MELVOX_TRANSLATIONS, texts));
    QCOMPARE(melvoxUiReceiverInformation_t::tr(qPrintable(question)), question);
    // On Qt 4 the build makes no texts.
    if (QT_VERSION < 0x050000)
        return;
    QVERIFY(speak("de_AT", MELVOX_TRANSLATIONS, texts));
    QVERIFY(melvoxUiReceiverInformation_t::tr(qPrintable(question)) != question);
}

QTEST_MAIN(tst_samples)
#include "tst_samples.moc"
