#include "brel_common_qt/kitUsb.h"
#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/usbDriveManager.h"
#include "display/displayStyle.h"
#include "display/uiSettings.h"
#include "display/unit.h"
#include "link/localLink.h"
#include "receiver/profileText.h"
#include "receiver/receiver.h"
#include "receiver/simClock.h"
#include "support/folder.h"
#include "support/unitScreen.h"

#include <QApplication>
#include <QProcess>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>

using namespace melvox_display;
using melvox_test::button;
using melvox_test::find;
using melvox_test::labelText;
using melvox_test::tap;
using melvox_test::waitFor;

namespace
{

/** A whole unit with a drive and a receiver whose time runs fast. */
struct fixture_t
{
    fixture_t()
        : drives((melvox_kit::setUsbRoot(usb.path()), nullptr)), unit(connection_t()),
          settings(folder.filePath("display.conf")), window(allPages(), &unit, &settings, QSize(800, 480))
    {
        unit.localLink()->setLatency(1);
        unit.receiver()->clock().setSpeed(20);
        unit.start();
        window.showFirstPage("solutionControl");
        window.show();
        ready = waitFor([this]() { return unit.device()->activePortValid() && unit.device()->ntripPPPModeValid(); });
    }
    ~fixture_t() { melvox_kit::setUsbRoot(QString()); }

    QWidget* page(QString const& name) { return melvox_test::showPage(window, name); }
    QDialog* dialog(char const* name) { return melvox_test::shownDialog(window, name); }
    QMessageBox* card() { return melvox_test::shownCard(window); }
    void chooseDrive(QString const& name) { melvox_test::chooseDrive(window, name); }
    void chooseFile(char const* list, QString const& name, char const* select)
    {
        melvox_test::chooseFile(window, list, name, select);
    }

    /** The page that compares, with this file of the drive chosen. */
    QWidget* compare(QString const& name)
    {
        QWidget* const compared = page("compareProfile");
        tap(compared, "Choose Profile");
        chooseDrive("STICK");
        chooseFile("melvoxUiUsbProfileListDialog", name, "Compare Profile");
        return compared;
    }

    /** What of a page cannot be seen as a whole. */
    QStringList cutOff(QWidget* page)
    {
        QStringList faults;
        for (QScrollArea* view : window.screen()->pageArea()->findChildren<QScrollArea*>("pageView"))
        {
            if (view->isVisible() && view->verticalScrollBar()->maximum() > 0)
                faults << QString("scrolls by %1").arg(view->verticalScrollBar()->maximum());
        }
        for (QWidget* widget : page->findChildren<QWidget*>())
        {
            bool const matters = qobject_cast<QLabel*>(widget) || qobject_cast<QAbstractButton*>(widget) ||
                                 qobject_cast<QAbstractScrollArea*>(widget) || qobject_cast<QComboBox*>(widget);
            if (matters && widget->isVisible() && widget->window() == &window &&
                !widget->objectName().startsWith("qt_") && !widget->parentWidget()->rect().contains(widget->geometry()))
                faults << widget->objectName();
        }
        return faults;
    }

    /** What the receiver says that it runs. */
    QString version(std::string const& component)
    {
        for (brel_common_qt::melvoxFirmwareVersion_t const& one : unit.device()->firmwareVersions())
        {
            if (one.first == component)
                return QString::fromStdString(one.second);
        }
        return QString();
    }

    QTemporaryDir folder;
    melvox_test::folder_t usb;
    brel_common_qt::usbDriveManager_t drives;
    unit_t unit;
    uiSettings_t settings;
    displayWindow_t window;
    bool ready;
};

void makePackage(QString const& path)
{
    QCOMPARE(QProcess::execute(MELVOX_FIRMWARE_PROGRAM,
                               {"make", path, "NAV=1.15.2", "BOOT1=2.9", "PIOAPP=7.7", "--size", "64"}),
             0);
}

/** A receiver's settings as a profile, but for one. */
QByteArray profileWith(QString const& group, QVariant const& value)
{
    melvox_receiver::settings_t settings = melvox_receiver::startSettings();
    settings.insert(group, value);
    return melvox_receiver::profileText(settings);
}

} // namespace

/** Files on their whole way: drive, page, proxy, link, receiver and back. */
class tst_filesOnDisplay : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void initTestCase() { applyDisplayStyle(*qApp); }

    void screensFitTheSmallestUnit_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("port");
        QTest::addColumn<QString>("sign");
        QTest::newRow("web interface") << "webInterface" << 0 << "noteLabel";
        QTest::newRow("web interface with its warning") << "webInterface" << 7 << "warningLabel";
        QTest::newRow("firmware update") << "firmwareUpdate" << 0 << "packageTreeWidget";
        QTest::newRow("profiles") << "settingsProfiles" << 0 << "profileList";
        QTest::newRow("information") << "receiverInformation" << 0 << "lteRssiLabel";
    }

    void screensFitTheSmallestUnit()
    {
        QFETCH(QString, name);
        QFETCH(int, port);
        QFETCH(QString, sign);
        fixture_t f;
        QVERIFY(f.ready);
        f.unit.receiver()->setActivePort(f.unit.localLink()->receiverEnd(), unsigned(port));
        QVERIFY(waitFor([&]() { return f.unit.device()->activePort() == port; }));
        QWidget* const page = f.page(name);
        QWidget const* const shown = find<QWidget>(page, sign);
        QVERIFY(waitFor([&]() { return shown->isVisible(); }));
        QCOMPARE(f.cutOff(page).join(", "), QString());
    }

    void listsOfFilesFitTheSmallestUnit()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.usb.makeDir("STICK");
        for (char const* name : {"STICK/a.srec", "STICK/b.srec", "STICK/c.srec"})
            makePackage(f.usb.path(name));
        tap(f.page("firmwareUpdate"), "Select Package");
        QVERIFY(f.dialog("usbDriveSelectDialog"));
        QCOMPARE(f.cutOff(f.dialog("usbDriveSelectDialog")).join(", "), QString());
        f.chooseDrive("STICK");
        QDialog* const files = f.dialog("melvoxUiUsbFirmwareSelectDialog");
        QTreeWidget* const tree = find<QTreeWidget>(files, "treeWidget");
        QVERIFY(waitFor([&]() { return tree->topLevelItemCount() == 3; }));
        QCOMPARE(f.cutOff(files).join(", "), QString());
        QVERIFY(tree->visualItemRect(tree->topLevelItem(1)).bottom() < tree->viewport()->height());
    }

    void aPackageFromADriveBecomesTheFirmware()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.usb.makeDir("STICK/updates");
        makePackage(f.usb.path("STICK/updates/release.srec"));
        QWidget* const page = f.page("firmwareUpdate");
        QVERIFY(waitFor([&]() { return f.version("NAV") == "1.14.40"; }));
        tap(page, "Select Package");
        f.chooseDrive("STICK");
        f.chooseFile("melvoxUiUsbFirmwareSelectDialog", "release.srec", "Select Package");
        QVERIFY(waitFor([&]() { return labelText(page, "packageLabel") == "release.srec"; }));
        tap(page, "Start Update");
        QMessageBox* const box = f.card();
        QVERIFY(box);
        QCOMPARE(box->windowTitle(), QString("Firmware Update Successful"));
        QTreeWidget* const statuses = find<QTreeWidget>(page, "statusTreeWidget");
        for (int i = 0; i < 3; ++i)
            QCOMPARE(statuses->topLevelItem(i)->text(2), QString("Success"));
        QCOMPARE(f.version("NAV"), QString("1.14.40"));
        box->button(QMessageBox::Ok)->click();
        QVERIFY(waitFor([&]() { return f.version("NAV") == "1.15.2"; }));
        QVERIFY(waitFor([&]() { return f.version("BOOT1") == "2.9" && f.version("PIOAPP") == "7.7"; }));
        QCOMPARE(f.unit.device()->port()->lockState(), brel_common_qt::PORT_LOCK_NONE);
        QWidget* const information = f.page("receiverInformation");
        tap(information, "Query");
        QVERIFY(waitFor([&]() { return labelText(information, "firmwareLabel") == "1.15.2"; }));
    }

    void aFailingComponentIsToldOnTheScreen()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.unit.receiver()->setSituation("failingFirmware", "BOOT1");
        f.usb.makeDir("STICK");
        makePackage(f.usb.path("STICK/release.srec"));
        QWidget* const page = f.page("firmwareUpdate");
        tap(page, "Select Package");
        f.chooseDrive("STICK");
        f.chooseFile("melvoxUiUsbFirmwareSelectDialog", "release.srec", "Select Package");
        tap(page, "Start Update");
        QMessageBox* const box = f.card();
        QVERIFY(box);
        QCOMPARE(box->windowTitle(), QString("Firmware Update Failed"));
        QCOMPARE(labelText(page, "statusLabel"), QString("Could not be written: BOOT1"));
        box->button(QMessageBox::Ok)->click();
        QVERIFY(waitFor([&]() { return f.version("BOOT1") == "incomplete"; }));
    }

    void anUpdateGoesOnWhileTheOperatorIsElsewhere()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.unit.receiver()->clock().setSpeed(1);
        f.usb.makeDir("STICK");
        makePackage(f.usb.path("STICK/release.srec"));
        QWidget* const page = f.page("firmwareUpdate");
        tap(page, "Select Package");
        f.chooseDrive("STICK");
        f.chooseFile("melvoxUiUsbFirmwareSelectDialog", "release.srec", "Select Package");
        tap(page, "Start Update");
        QProgressBar* const bar = find<QProgressBar>(page, "progressBar");
        QVERIFY(waitFor([&]() { return bar->value() > 0; }));
        f.page("solutionControl");
        int const before = bar->value();
        QVERIFY(waitFor([&]() { return bar->value() > before; }));
        QCOMPARE(f.page("firmwareUpdate"), page);
        QVERIFY(find<QTreeWidget>(page, "statusTreeWidget")->isVisible());
        f.unit.receiver()->clock().setSpeed(20);
        QMessageBox* const box = f.card();
        QVERIFY(box);
        box->button(QMessageBox::Ok)->click();
    }

    void aProfileIsDumpedRenamedAndLoadedOnAChangedReceiver()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.usb.makeDir("STICK");
        QVERIFY(f.unit.receiver()->set("elevationMask", 12.5));
        f.page("dumpProfile");
        f.chooseDrive("STICK");
        QDialog* const dump = f.dialog("melvoxUiProfileDumpDialog");
        QVERIFY(waitFor([&]() { return labelText(dump, "statusLabel") == "Dump complete"; }));
        QDir const stick(f.usb.path("STICK"));
        QStringList const dumped = stick.entryList({"profile_*.dravel"});
        QCOMPARE(int(dumped.size()), 1);
        QVERIFY(QFile::rename(stick.filePath(dumped.first()), stick.filePath("profile_mine.melvox")));

        QVERIFY(f.unit.receiver()->set("elevationMask", 33.0));
        f.page("loadProfile");
        f.chooseDrive("STICK");
        f.chooseFile("melvoxUiUsbProfileListDialog", "profile_mine.melvox", "Load Profile");
        QDialog* const load = f.dialog("melvoxUiProfileLoadDialog");
        QVERIFY(waitFor([&]() { return labelText(load, "statusLabel") == "Load Complete"; }));
        QCOMPARE(f.unit.receiver()->setting("elevationMask").toDouble(), 12.5);
        QWidget* const page = f.page("solutionControl");
        QVERIFY(waitFor([&]() { return labelText(page, "elevationMaskLabel") == "12.5"; }));
        QVERIFY(waitFor([&]() { return f.unit.device()->port()->lockState() == brel_common_qt::PORT_LOCK_NONE; }));
    }

    void aDriveThatIsPulledOutDuringADumpIsTold()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.usb.makeDir("STICK");
        f.unit.localLink()->setLatency(200);
        f.page("dumpProfile");
        f.chooseDrive("STICK");
        QDialog* const dump = f.dialog("melvoxUiProfileDumpDialog");
        QCOMPARE(labelText(dump, "statusLabel"), QString("Dumping..."));
        melvox_test::folder_t::remove(f.usb.path("STICK"));
        QVERIFY(
            waitFor([&]() { return labelText(dump, "statusLabel").startsWith("The profile could not be written: "); }));
        QVERIFY(!QFile::exists(f.usb.path("STICK")));
    }

    void aPackageThatIsCutOffDuringAnUpdateIsTold()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.usb.makeDir("STICK");
        makePackage(f.usb.path("STICK/release.srec"));
        QWidget* const page = f.page("firmwareUpdate");
        tap(page, "Select Package");
        f.chooseDrive("STICK");
        f.chooseFile("melvoxUiUsbFirmwareSelectDialog", "release.srec", "Select Package");
        f.unit.localLink()->setLatency(50);
        tap(page, "Start Update");
        QProgressBar* const bar = find<QProgressBar>(page, "progressBar");
        QVERIFY(waitFor([&]() { return bar->value() > 0; }));
        QVERIFY(QFile::resize(f.usb.path("STICK/release.srec"), 100));
        QMessageBox* const box = f.card();
        QVERIFY(box);
        QCOMPARE(box->windowTitle(), QString("Firmware Update Failed"));
        QCOMPARE(labelText(page, "statusLabel"), QString("The file ended too early"));
        box->button(QMessageBox::Ok)->click();
        QVERIFY(waitFor([&]() { return f.version("NAV") == "1.14.40"; }));
    }

    void anAlteredProfileChangesNothing()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.usb.makeDir("STICK");
        f.page("dumpProfile");
        f.chooseDrive("STICK");
        QDialog* const dump = f.dialog("melvoxUiProfileDumpDialog");
        QVERIFY(waitFor([&]() { return labelText(dump, "statusLabel") == "Dump complete"; }));
        QString const dumped = QDir(f.usb.path("STICK")).entryList({"profile_*"}).first();
        QByteArray bytes = f.usb.read("STICK/" + dumped);
        QVERIFY(bytes.contains("\"elevationMask\":7"));
        f.usb.write("STICK/profile_bad.melvox", bytes.replace("\"elevationMask\":7", "\"elevationMask\":8"));
        f.page("loadProfile");
        f.chooseDrive("STICK");
        f.chooseFile("melvoxUiUsbProfileListDialog", "profile_bad.melvox", "Load Profile");
        QDialog* const load = f.dialog("melvoxUiProfileLoadDialog");
        QVERIFY(waitFor([&]() { return labelText(load, "statusLabel") == "Error writing to port"; }));
        QCOMPARE(f.unit.receiver()->setting("elevationMask").toDouble(), 7.0);
    }

    void aLoadShowsItsProgressAgainWhenTheOperatorComesBack()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.unit.localLink()->setLatency(300);
        f.usb.write("STICK/profile_long.melvox", "melvox-profile 1\n" + QByteArray(20000, '\n'));
        f.page("loadProfile");
        f.chooseDrive("STICK");
        f.chooseFile("melvoxUiUsbProfileListDialog", "profile_long.melvox", "Load Profile");
        QDialog* const load = f.dialog("melvoxUiProfileLoadDialog");
        QVERIFY(waitFor([&]() { return labelText(load, "statusLabel").startsWith("Loading data"); }));
        f.page("solutionControl");
        QVERIFY(!load->isVisible());
        f.page("loadProfile");
        QCOMPARE(f.dialog("melvoxUiProfileLoadDialog"), load);
        QVERIFY(load->isVisible());
        QVERIFY(labelText(load, "statusLabel").startsWith("Loading data"));
        tap(load, "Cancel Load");
        QCOMPARE(labelText(load, "statusLabel"), QString("Upload cancelled"));
        f.unit.localLink()->setLatency(1);
    }

    void drivesComeAndGoOnTheScreen()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.page("loadProfile");
        QDialog* const choice = f.dialog("usbDriveSelectDialog");
        QTreeWidget* const tree = find<QTreeWidget>(choice, "driveTreeWidget");
        QCOMPARE(tree->topLevelItemCount(), 0);
        f.usb.makeDir("STICK");
        QVERIFY(waitFor([&]() { return tree->topLevelItemCount() == 1; }));
        melvox_test::folder_t::remove(f.usb.path("STICK"));
        QVERIFY(waitFor([&]() { return tree->topLevelItemCount() == 0; }));
    }

    void profilesAreSavedUsedAndDeleted()
    {
        fixture_t f;
        QVERIFY(f.ready);
        QWidget* const page = f.page("settingsProfiles");
        QTreeWidget* const list = find<QTreeWidget>(page, "profileList");
        QVERIFY(f.unit.receiver()->set("elevationMask", 12.5));
        find<QLineEdit>(page, "profileNameLineEdit")->setText("Field");
        tap(page, "saveNewButton");
        QVERIFY(waitFor([&]() { return list->findItems("Field", Qt::MatchExactly, 1).size() == 1; }));
        QVERIFY(f.unit.receiver()->set("elevationMask", 33.0));
        list->setCurrentItem(list->findItems("Field", Qt::MatchExactly, 1).first());
        tap(page, "Set Active");
        QVERIFY(waitFor([&]() { return f.unit.receiver()->setting("elevationMask").toDouble() == 12.5; }));
        QVERIFY(waitFor([&]() { return list->findItems("Field", Qt::MatchExactly, 1).first()->text(0) == "Yes"; }));
        tap(page, "Delete");
        f.card()->button(QMessageBox::Yes)->click();
        tap(page, "Query");
        QVERIFY(waitFor([&]() { return list->findItems("Field", Qt::MatchExactly, 1).isEmpty(); }));
    }

    void aWebPackageIsUploadedFromADrive()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.usb.write("STICK/new.webui", QByteArray(50000, 'w'));
        QWidget* const page = f.page("webInterface");
        tap(page, "Select Package");
        f.chooseDrive("STICK");
        f.chooseFile("melvoxUiUsbWebUiSelectDialog", "new.webui", "Select Package");
        QVERIFY(waitFor([&]() { return !button(page, "Select Package")->isEnabled(); }));
        QVERIFY(waitFor([&]() { return labelText(page, "uploadStatusLabel").contains("2 of 2"); }));
        QVERIFY(waitFor([&]() { return labelText(page, "uploadStatusLabel") == "Upload Complete"; }));
        QCOMPARE(labelText(page, "uploadPercentLabel"), QString("100.00%"));
    }

    void aWebUploadThatALostLinkBreaksOffIsToldAfterwards()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.usb.write("STICK/new.webui", QByteArray(200000, 'w'));
        QWidget* const page = f.page("webInterface");
        tap(page, "Select Package");
        f.chooseDrive("STICK");
        f.unit.localLink()->setLatency(50);
        f.chooseFile("melvoxUiUsbWebUiSelectDialog", "new.webui", "Select Package");
        QVERIFY(waitFor([&]() { return !button(page, "Select Package")->isEnabled(); }));
        f.unit.localLink()->setOpen(false);
        f.unit.localLink()->setOpen(true);
        QVERIFY(waitFor([&]() { return labelText(page, "uploadStatusLabel") == "The display is gone"; }));
        QVERIFY(button(page, "Select Package")->isEnabled());
        QVERIFY(!button(page, "Cancel Upload")->isEnabled());
    }

    void theLteModemIsSwitchedFromTheScreen()
    {
        fixture_t f;
        QVERIFY(f.ready);
        QWidget* const page = f.page("receiverInformation");
        tap(page, "Query");
        QVERIFY(waitFor([&]() { return labelText(page, "lteModemStatusLabel") == "OFF"; }));
        tap(page, "toggleLteModemButton");
        f.card()->button(QMessageBox::Yes)->click();
        QVERIFY(waitFor([&]() { return labelText(page, "lteModemStatusLabel") == "PENDING"; }));
        QVERIFY(waitFor([&]() { return labelText(page, "lteModemStatusLabel") == "ON"; }));
        QVERIFY(button(page, "toggleLteModemButton")->isEnabled());
    }

    void aProfileIsComparedBeforeItIsLoaded()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.usb.write("STICK/profile_field.melvox", profileWith("elevationMask", 12.5));
        QWidget* const page = f.compare("profile_field.melvox");
        QTreeWidget* const tree = find<QTreeWidget>(page, "differenceTreeWidget");
        QVERIFY(waitFor([&]() { return tree->topLevelItemCount() == 1; }));
        QCOMPARE(labelText(page, "profileFileLabel"), QString("Profile: profile_field.melvox"));
        QCOMPARE(labelText(page, "statusLabel"), QString("1 setting would change."));
        QCOMPARE(melvox_test::rowTexts(tree, 0),
                 QStringList({"Elevation mask", "7", "12.5", QString::fromUtf8("\xc2\xb0")}));
        QCOMPARE(f.unit.receiver()->setting("elevationMask").toDouble(), 7.0);

        tap(page, "Load This Profile");
        QDialog* const load = f.dialog("melvoxUiProfileLoadDialog");
        QVERIFY(waitFor([&]() { return labelText(load, "statusLabel") == "Load Complete"; }));
        QCOMPARE(f.unit.receiver()->setting("elevationMask").toDouble(), 12.5);
        tap(load, "Close");
        QVERIFY(waitFor([&]() { return labelText(page, "statusLabel").startsWith("Nothing would change"); }));
        QCOMPARE(tree->topLevelItemCount(), 0);
        QVERIFY(!button(page, "Load This Profile")->isEnabled());
    }

    void theComparisonIsWithWhatTheReceiverHasNow()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.usb.write("STICK/profile_field.melvox", profileWith("elevationMask", 12.5));
        QWidget* const page = f.compare("profile_field.melvox");
        QTreeWidget* const tree = find<QTreeWidget>(page, "differenceTreeWidget");
        QVERIFY(waitFor([&]() { return tree->topLevelItemCount() == 1; }));
        QVERIFY(f.unit.receiver()->set("pdopLimit", 8.0));
        tap(page, "Query");
        QVERIFY(waitFor([&]() { return tree->topLevelItemCount() == 2; }));
        QCOMPARE(melvox_test::rowTexts(tree, 1), QStringList({"Maximum PDOP", "8", "25", ""}));
        QCOMPARE(labelText(page, "statusLabel"), QString("2 settings would change."));
        f.page("solutionControl");
        QVERIFY(f.unit.receiver()->set("pdopLimit", 25.0));
        f.page("compareProfile");
        QVERIFY(waitFor([&]() { return tree->topLevelItemCount() == 1; }));
    }

    void anAlteredProfileIsNeitherComparedNorLoaded()
    {
        fixture_t f;
        QVERIFY(f.ready);
        QByteArray bytes = profileWith("elevationMask", 12.5);
        f.usb.write("STICK/profile_bad.melvox", bytes.replace("12.5", "13.5"));
        QWidget* const page = f.compare("profile_bad.melvox");
        QVERIFY(waitFor([&]() { return labelText(page, "statusLabel").contains("damaged or was altered"); }));
        QCOMPARE(find<QTreeWidget>(page, "differenceTreeWidget")->topLevelItemCount(), 0);
        QVERIFY(!button(page, "Load This Profile")->isEnabled());
    }

    void aProfileThatIsSpoiltLaterTakesTheComparisonAway()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.usb.write("STICK/profile_field.melvox", profileWith("elevationMask", 12.5));
        QWidget* const page = f.compare("profile_field.melvox");
        QTreeWidget* const tree = find<QTreeWidget>(page, "differenceTreeWidget");
        QVERIFY(waitFor([&]() { return tree->topLevelItemCount() == 1; }));
        f.usb.write("STICK/profile_field.melvox", profileWith("elevationMask", 33.0));
        tap(page, "Load This Profile");
        QVERIFY(waitFor([&]() { return tree->topLevelItemCount() == 1 && tree->topLevelItem(0)->text(2) == "33"; }));
        QCOMPARE(f.unit.receiver()->setting("elevationMask").toDouble(), 7.0);
        melvox_test::folder_t::remove(f.usb.path("STICK"));
        tap(page, "Load This Profile");
        QVERIFY(labelText(page, "statusLabel").startsWith("The file cannot be read:"));
        QCOMPARE(tree->topLevelItemCount(), 0);
    }

    void aReceiverThatIsGoneIsToldOfInTheComparison()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.usb.write("STICK/profile_field.melvox", profileWith("elevationMask", 12.5));
        QWidget* const page = f.compare("profile_field.melvox");
        QTreeWidget* const tree = find<QTreeWidget>(page, "differenceTreeWidget");
        QVERIFY(waitFor([&]() { return tree->topLevelItemCount() == 1; }));
        f.unit.localLink()->setOpen(false);
        tap(page, "Query");
        QVERIFY(waitFor(
            [&]()
            {
                return labelText(page, "statusLabel") ==
                       "The receiver's settings could not be read: The link to the receiver was lost. Try Query.";
            }));
        QCOMPARE(tree->topLevelItemCount(), 0);
        f.unit.localLink()->setOpen(true);
        tap(page, "Query");
        QVERIFY(waitFor([&]() { return tree->topLevelItemCount() == 1; }));
    }

    void nothingIsLoadedFromTheComparisonWhileATransferRuns()
    {
        fixture_t f;
        QVERIFY(f.ready);
        f.usb.write("STICK/profile_field.melvox", profileWith("elevationMask", 12.5));
        QWidget* const page = f.compare("profile_field.melvox");
        QVERIFY(waitFor([&]() { return button(page, "Load This Profile")->isEnabled(); }));
        brel_common_qt::remotePort_t* const port = f.unit.device()->port();
        port->setLockState(brel_common_qt::PORT_LOCK_PLUGIN);
        QVERIFY(waitFor([&]() { return port->lockState() == brel_common_qt::PORT_LOCK_PLUGIN; }));
        tap(page, "Load This Profile");
        QVERIFY(labelText(page, "statusLabel").startsWith("Another transfer to the receiver is running."));
        port->setLockState(brel_common_qt::PORT_LOCK_NONE);
        QVERIFY(waitFor([&]() { return port->lockState() == brel_common_qt::PORT_LOCK_NONE; }));
        QCOMPARE(f.unit.receiver()->setting("elevationMask").toDouble(), 7.0);
    }

    void theComparisonFitsTheScreenAndFollowsTheUnits()
    {
        fixture_t f;
        QVERIFY(f.ready);
        QVariantMap position = f.unit.receiver()->setting("basePosition").toMap();
        position.insert("height", 40.5);
        f.usb.write("STICK/profile_field.melvox", profileWith("basePosition", position));
        QWidget* const page = f.compare("profile_field.melvox");
        QTreeWidget* const tree = find<QTreeWidget>(page, "differenceTreeWidget");
        QVERIFY(waitFor([&]() { return tree->topLevelItemCount() == 1; }));
        QCOMPARE(melvox_test::rowTexts(tree, 0), QStringList({"Base height", "38.420", "40.500", "m"}));
        QVERIFY(!tree->horizontalScrollBar()->isVisible());
        for (char const* name : {"chooseButton", "queryButton", "loadButton"})
            QVERIFY(button(page, name)->height() >= 40);
        QWidget* const display = f.page("displaySettings");
        tap(display, "feetButton");
        f.page("compareProfile");
        QVERIFY(waitFor([&]() { return tree->topLevelItemCount() == 1 && tree->topLevelItem(0)->text(3) == "ft"; }));
        tap(f.page("displaySettings"), "metersButton");
    }
};

QTEST_MAIN(tst_filesOnDisplay)
#include "tst_filesOnDisplay.moc"
