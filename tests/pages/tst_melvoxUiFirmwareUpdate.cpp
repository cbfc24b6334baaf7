#include "melvox_ui/melvoxUiFirmwareUpdate.h"

#include "brel_common_qt/kitPort.h"

#include "support/dialogs.h"
#include "support/firmware.h"
#include "support/looks.h"
#include "support/pageTest.h"

#include <QGroupBox>
#include <QProgressBar>
#include <QStackedWidget>
#include <QTextEdit>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_test::chooseFile;
using melvox_test::folder_t;
using melvox_test::openBox;
using melvox_test::package_t;
using melvox_test::rowTexts;

class tst_melvoxUiFirmwareUpdate : public melvox_test::pageTest_t
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    /** A page that is ready for packages. */
    void openPage();
    void choose(QString const& path);
    /** A combined package of three components. */
    QString combined();
    void startUpdate();
    QTreeWidget* packages() { return find<QTreeWidget>(page, "packageTreeWidget"); }
    QTreeWidget* statuses() { return find<QTreeWidget>(page, "statusTreeWidget"); }
    QString shownPage() { return find<QStackedWidget>(page, "stackedWidget")->currentWidget()->objectName(); }
    bool okEnabled() { return melvox_test::button(page, "OK")->isEnabled(); }
    bool startEnabled() { return melvox_test::button(page, "Start Update")->isEnabled(); }
    QVariantMap lastUpdate();
    int updates() { return int(receiver->commands().filter("startFirmwareUpdate").size()); }
    void reportState(int state, char const* text)
    {
        receiver->report("firmwareUpdateState", map("state", state, "description", text));
    }

    melvoxUiFirmwareUpdate_t* page;
    folder_t* folder;
    melvox_test::currentDir_t* current;

private slots:
    void startsDisabledAndSaysWhy();
    void hasItsTextsAndColumns();
    void offersItsButtonsInOrder();
    void makesRoomForWhatItsTreesShow();
    void staysDisabledOrNotByTheActivePort_data();
    void staysDisabledOrNotByTheActivePort();
    void entersPackageModeOverATcpConnection_data();
    void entersPackageModeOverATcpConnection();
    void knowsAnActivePortThatWasToldBefore();
    void neverReturnsToDisabledMode();
    void leavesTheShownPageAloneOnceItIsEnabled();
    void showsTheCurrentVersions();
    void startsWithNothingToToggleOrStart();
    void showsTheComponentsOfAPackageInItsOrder();
    void putsTheReceiversProductFirst();
    void replacesThePackage();
    void keepsThePackageWhenNothingIsChosen();
    void togglesTheSelectedComponent();
    void togglesTheFirstSelectedComponentOnADoubleClick();
    void togglesNothingWithoutASelection();
    void enablesStartWhileAComponentIsIncluded();
    void asksForThePluginLockFirst();
    void showsTheIncludedComponentsOnceItStarts();
    void sendsACombinedPackageByOnePath();
    void sendsALoneComponentByItsOwnPath();
    void sendsADirectoryByAPathForEachFile();
    void sendsComponentsInTheOrderOfTheTree();
    void leavesExcludedComponentsOut();
    void sendsFileIndexesUnchanged();
    void tellsThatTheLockWasRefused_data();
    void tellsThatTheLockWasRefused();
    void canStartAgainAfterARefusedLock();
    void ignoresLocksThatItDidNotAskFor();
    void startsAgainWhenTheLockIsReportedAgain();
    void showsAnErrorForALockLostDuringAnUpdateAndStillReleasesIt();
    void showsTheDescriptionWhileInProgress();
    void completesWithTextsDialogAndRelease();
    void failsWithTextsDialogAndRelease();
    void ignoresUnknownStates();
    void releasesTheLockOnEveryOutcomeOnce();
    void showsAnOutcomeThatItDidNotWaitFor();
    void showsGoodTextsAgainAfterAFailure();
    void showsPercentages_data();
    void showsPercentages();
    void emptiesTheBarWithTheOutcome();
    void showsTheStatusOfEachComponent();
    void ignoresProgressOfComponentsThatAreNotInTheTree();
    void setsTheFirstOfTwoItemsOfOneComponent();
    void rebootsHoweverTheOutcomeIsClosed_data();
    void rebootsHoweverTheOutcomeIsClosed();
    void okGoesBackToThePackageWithEverythingKept();
    void survivesBeingDestroyedDuringAnUpdate();
    void givesTheLockBackWhenItIsDestroyedBeforeItsUpdateStarts_data();
    void givesTheLockBackWhenItIsDestroyedBeforeItsUpdateStarts();
    void leavesTheLockToItsUpdateUntilTheOutcome_data();
    void leavesTheLockToItsUpdateUntilTheOutcome();
    void releasesNoLockThatIsGoneBeforeTheOutcome();
};

void tst_melvoxUiFirmwareUpdate::setUp()
{
    pageTest_t::setUp();
    page = 0;
    folder = new folder_t;
    current = new melvox_test::currentDir_t;
}

void tst_melvoxUiFirmwareUpdate::tearDown()
{
    delete page;
    delete current;
    delete folder;
    pageTest_t::tearDown();
}

void tst_melvoxUiFirmwareUpdate::openPage()
{
    receiver->report("activePort", 4);
    page = new melvoxUiFirmwareUpdate_t(device);
}

void tst_melvoxUiFirmwareUpdate::choose(QString const& path)
{
    tap(page, "Select Package");
    chooseFile(path);
}

QString tst_melvoxUiFirmwareUpdate::combined()
{
    return folder->write("all.srec", package_t().add(2, "1.15").add(0, "2.2").add(6, "7.7").bytes());
}

void tst_melvoxUiFirmwareUpdate::startUpdate()
{
    openPage();
    choose(combined());
    tap(page, "Start Update");
    receiver->report("portLock", 2);
}

QVariantMap tst_melvoxUiFirmwareUpdate::lastUpdate()
{
    QList<melvox_link::message_t> const& messages = receiver->messages();
    for (int i = int(messages.size()) - 1; i >= 0; --i)
    {
        if (messages.at(i).group == "startFirmwareUpdate")
            return messages.at(i).value.toMap();
    }
    return QVariantMap();
}

void tst_melvoxUiFirmwareUpdate::startsDisabledAndSaysWhy()
{
    page = new melvoxUiFirmwareUpdate_t(device);
    QCOMPARE(shownPage(), QString("progressPage"));
    QCOMPARE(labelText(page, "instructionsLabel"),
             QString("Firmware updates must be performed over the receiver's serial, USB, or TCP interfaces."));
    QCOMPARE(find<QLabel>(page, "instructionsLabel")->styleSheet(), QString("QLabel { color:#000000; }"));
    QCOMPARE(labelText(page, "statusLabel"), QString());
    QCOMPARE(find<QLabel>(page, "statusLabel")->styleSheet(), QString("QLabel { color:#000000; }"));
    QVERIFY(!okEnabled());
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiFirmwareUpdate::hasItsTextsAndColumns()
{
    openPage();
    QCOMPARE(find<QGroupBox>(page, "packageGroup")->title(), QString("Melvox Firmware Update"));
    QCOMPARE(find<QGroupBox>(page, "progressGroup")->title(), QString("Melvox Firmware Update"));
    QCOMPARE(find<QGroupBox>(page, "currentVersionsGroup")->title(), QString("Current Versions"));
    QCOMPARE(labelText(page, "packageLabel"), QString("(none)"));
    QCOMPARE(melvox_test::headerTexts(packages()).join("|"), QString("Component|Version|Update?"));
    QCOMPARE(melvox_test::headerTexts(statuses()).join("|"), QString("Component|Version|Status"));
    QVERIFY(packages()->isSortingEnabled());
    QVERIFY(statuses()->isSortingEnabled());
    QVERIFY(!packages()->rootIsDecorated());
    QVERIFY(!statuses()->rootIsDecorated());
    QCOMPARE(find<QProgressBar>(page, "progressBar")->maximum(), 10000);
    QVERIFY(!find<QProgressBar>(page, "progressBar")->isTextVisible());
    QCOMPARE(labelText(page, "percentLabel"), QString("0.00%"));
}

void tst_melvoxUiFirmwareUpdate::offersItsButtonsInOrder()
{
    openPage();
    QCOMPARE(melvox_test::actionTexts(page, "packageButtonBox"), QStringList() << "Select Package"
                                                                               << "Toggle Component"
                                                                               << "Start Update");
}

void tst_melvoxUiFirmwareUpdate::makesRoomForWhatItsTreesShow()
{
    openPage();
    page->resize(800, 480);
    page->show();
    choose(folder->write("a.srec", package_t().add(2, "1.15.2-with-everything-that-was-asked-for").bytes()));
    QVERIFY(melvox_test::showsColumn(packages(), 1));
    tap(page, "Start Update");
    QVERIFY(melvox_test::showsColumn(statuses(), 1));
}

void tst_melvoxUiFirmwareUpdate::staysDisabledOrNotByTheActivePort_data()
{
    QTest::addColumn<int>("port");
    QTest::addColumn<QString>("shown");
    QTest::newRow("COM1") << 0 << "packagePage";
    QTest::newRow("COM4") << 3 << "packagePage";
    QTest::newRow("USB2") << 5 << "packagePage";
    QTest::newRow("ETH1") << 6 << "progressPage";
    QTest::newRow("ETH3") << 8 << "progressPage";
    QTest::newRow("ETH8") << 13 << "progressPage";
    QTest::newRow("unknown") << 14 << "progressPage";
}

void tst_melvoxUiFirmwareUpdate::staysDisabledOrNotByTheActivePort()
{
    QFETCH(int, port);
    QFETCH(QString, shown);
    page = new melvoxUiFirmwareUpdate_t(device);
    receiver->report("activePort", port);
    QCOMPARE(shownPage(), shown);
}

void tst_melvoxUiFirmwareUpdate::entersPackageModeOverATcpConnection_data()
{
    QTest::addColumn<int>("port");
    QTest::addColumn<QString>("shown");
    QTest::newRow("USB1") << 4 << "packagePage";
    QTest::newRow("ETH1") << 6 << "packagePage";
    QTest::newRow("ETH3") << 8 << "packagePage";
    QTest::newRow("ETH8") << 13 << "packagePage";
    QTest::newRow("unknown") << 14 << "progressPage";
}

void tst_melvoxUiFirmwareUpdate::entersPackageModeOverATcpConnection()
{
    QFETCH(int, port);
    QFETCH(QString, shown);
    melvox_link::scriptedLink_t link;
    remoteMelvoxDevice_t tcp(melvox_kit::createPort(&link, melvox_kit::LINK_TCP));
    page = new melvoxUiFirmwareUpdate_t(&tcp);
    link.report("activePort", port);
    QCOMPARE(shownPage(), shown);
    delete page;
    page = 0;
}

void tst_melvoxUiFirmwareUpdate::knowsAnActivePortThatWasToldBefore()
{
    openPage();
    QCOMPARE(shownPage(), QString("packagePage"));
}

void tst_melvoxUiFirmwareUpdate::neverReturnsToDisabledMode()
{
    openPage();
    receiver->report("activePort", 7);
    QCOMPARE(shownPage(), QString("packagePage"));
    receiver->report("activePort", 14);
    QCOMPARE(shownPage(), QString("packagePage"));
}

void tst_melvoxUiFirmwareUpdate::leavesTheShownPageAloneOnceItIsEnabled()
{
    startUpdate();
    receiver->report("activePort", 0);
    QCOMPARE(shownPage(), QString("progressPage"));
    reportState(2, "done");
    reportedErrors();
}

void tst_melvoxUiFirmwareUpdate::showsTheCurrentVersions()
{
    openPage();
    receiver->report("firmwareVersion", map("component", "NAV", "version", "1.14.40"));
    QCOMPARE(find<QTextEdit>(page, "currentVersionsTextEdit")->toPlainText(), QString("NAV: 1.14.40\n"));
}

void tst_melvoxUiFirmwareUpdate::startsWithNothingToToggleOrStart()
{
    openPage();
    QVERIFY(!startEnabled());
    QVERIFY(!melvox_test::button(page, "Toggle Component")->isEnabled());
    QVERIFY(melvox_test::button(page, "Select Package")->isEnabled());
}

void tst_melvoxUiFirmwareUpdate::showsTheComponentsOfAPackageInItsOrder()
{
    openPage();
    choose(combined());
    QCOMPARE(labelText(page, "packageLabel"), QString("all.srec"));
    QCOMPARE(packages()->topLevelItemCount(), 3);
    QCOMPARE(rowTexts(packages(), 0), QStringList() << "NAV"
                                                    << "1.15" << YesString);
    QCOMPARE(rowTexts(packages(), 1), QStringList() << "BOOT1"
                                                    << "2.2" << YesString);
    QCOMPARE(rowTexts(packages(), 2), QStringList() << "PIOAPP"
                                                    << "7.7" << YesString);
    QVERIFY(startEnabled());
    QVERIFY(!melvox_test::button(page, "Toggle Component")->isEnabled());
}

void tst_melvoxUiFirmwareUpdate::putsTheReceiversProductFirst()
{
    openPage();
    QString const path = folder->write("a.srec", package_t().add(2, "other", 3).add(0, "own", 8).bytes());
    choose(path);
    QCOMPARE(packages()->topLevelItem(0)->text(1), QString("own"));
    // Whatever the receiver says that it is.
    receiver->report("productInfo", map("serialNumber", "3", "modelName", "3"));
    choose(path);
    QCOMPARE(packages()->topLevelItem(0)->text(1), QString("own"));
}

void tst_melvoxUiFirmwareUpdate::replacesThePackage()
{
    openPage();
    choose(combined());
    packages()->setCurrentItem(packages()->topLevelItem(0));
    choose(folder->write("other.srec", package_t().add(3, "9.9").bytes()));
    QCOMPARE(labelText(page, "packageLabel"), QString("other.srec"));
    QCOMPARE(packages()->topLevelItemCount(), 1);
    QCOMPARE(packages()->topLevelItem(0)->text(1), QString("9.9"));
    // What was selected is gone.
    QVERIFY(!melvox_test::button(page, "Toggle Component")->isEnabled());
}

void tst_melvoxUiFirmwareUpdate::keepsThePackageWhenNothingIsChosen()
{
    openPage();
    choose(combined());
    tap(page, "Select Package");
    melvox_test::cancelFileDialog();
    QCOMPARE(packages()->topLevelItemCount(), 3);
    page->enterSelectedPackage(); // with nothing to take
    QCOMPARE(packages()->topLevelItemCount(), 3);
    QCOMPARE(labelText(page, "packageLabel"), QString("all.srec"));
}

void tst_melvoxUiFirmwareUpdate::togglesTheSelectedComponent()
{
    openPage();
    choose(combined());
    packages()->setCurrentItem(packages()->topLevelItem(1));
    QVERIFY(melvox_test::button(page, "Toggle Component")->isEnabled());
    tap(page, "Toggle Component");
    QCOMPARE(packages()->topLevelItem(0)->text(2), YesString);
    QCOMPARE(packages()->topLevelItem(1)->text(2), NoString);
    QCOMPARE(packages()->topLevelItem(2)->text(2), YesString);
    tap(page, "Toggle Component");
    QCOMPARE(packages()->topLevelItem(1)->text(2), YesString);
}

void tst_melvoxUiFirmwareUpdate::togglesTheFirstSelectedComponentOnADoubleClick()
{
    openPage();
    choose(combined());
    packages()->setCurrentItem(packages()->topLevelItem(2));
    // Whichever item the double click was on.
    QMetaObject::invokeMethod(packages(), "itemDoubleClicked", Q_ARG(QTreeWidgetItem*, packages()->topLevelItem(0)),
                              Q_ARG(int, 0));
    QCOMPARE(packages()->topLevelItem(0)->text(2), YesString);
    QCOMPARE(packages()->topLevelItem(2)->text(2), NoString);
}

void tst_melvoxUiFirmwareUpdate::togglesNothingWithoutASelection()
{
    openPage();
    choose(combined());
    page->toggleComponent();
    for (int i = 0; i < 3; ++i)
        QCOMPARE(packages()->topLevelItem(i)->text(2), YesString);
}

void tst_melvoxUiFirmwareUpdate::enablesStartWhileAComponentIsIncluded()
{
    openPage();
    choose(combined());
    for (int i = 0; i < 3; ++i)
    {
        QVERIFY(startEnabled());
        packages()->setCurrentItem(packages()->topLevelItem(i));
        tap(page, "Toggle Component");
    }
    QVERIFY(!startEnabled());
    tap(page, "Toggle Component");
    QVERIFY(startEnabled());
}

void tst_melvoxUiFirmwareUpdate::asksForThePluginLockFirst()
{
    openPage();
    choose(combined());
    tap(page, "Start Update");
    QCOMPARE(receiver->commands(), QStringList("portLock 2"));
    QCOMPARE(shownPage(), QString("progressPage"));
    QCOMPARE(labelText(page, "instructionsLabel"),
             QString("Firmware update in progress.  Do not turn off the receiver or unplug the USB device."));
    QCOMPARE(find<QLabel>(page, "instructionsLabel")->styleSheet(), QString("QLabel { color:#000000; }"));
    QVERIFY(!okEnabled());
    receiver->report("portLock", 2);
    QCOMPARE(updates(), 1);
}

void tst_melvoxUiFirmwareUpdate::showsTheIncludedComponentsOnceItStarts()
{
    openPage();
    choose(combined());
    packages()->setCurrentItem(packages()->topLevelItem(0));
    tap(page, "Toggle Component");
    tap(page, "Start Update");
    QCOMPARE(statuses()->topLevelItemCount(), 2);
    QCOMPARE(rowTexts(statuses(), 0), QStringList() << "BOOT1"
                                                    << "2.2" << QString());
    QCOMPARE(rowTexts(statuses(), 1), QStringList() << "PIOAPP"
                                                    << "7.7" << QString());
}

void tst_melvoxUiFirmwareUpdate::sendsACombinedPackageByOnePath()
{
    startUpdate();
    QCOMPARE(lastUpdate().value("combinedPath").toString(), folder->path("all.srec"));
    QVariantList const components = lastUpdate().value("components").toList();
    QCOMPARE(int(components.size()), 3);
    for (QVariant const& component : components)
        QCOMPARE(component.toMap().value("path").toString(), QString());
    reportState(2, "done");
    reportedErrors();
}

void tst_melvoxUiFirmwareUpdate::sendsALoneComponentByItsOwnPath()
{
    openPage();
    choose(folder->write("nav.srec", package_t().add(2, "1.15").bytes()));
    tap(page, "Start Update");
    receiver->report("portLock", 2);
    QCOMPARE(lastUpdate().value("combinedPath").toString(), QString());
    QVariantList const components = lastUpdate().value("components").toList();
    QCOMPARE(int(components.size()), 1);
    QCOMPARE(components.at(0).toMap().value("path").toString(), folder->path("nav.srec"));
    QCOMPARE(components.at(0).toMap().value("component").toInt(), 2);
}

void tst_melvoxUiFirmwareUpdate::sendsADirectoryByAPathForEachFile()
{
    melvox_test::usb_t usb;
    QString const nav = usb.write("STICK/release/nav.srec", package_t().add(2, "1.15").bytes());
    QString const boot = usb.write("STICK/release/boot.srec", package_t().add(0, "2.2").bytes());
    openPage();
    tap(page, "Select Package");
    usb.choose("STICK");
    QDialog* const list = melvox_test::openDialog("melvoxUiUsbFirmwareSelectDialog");
    QVERIFY(list);
    QVERIFY(melvox_test::waitFor([&] { return !melvox_test::button(list, "Stop Scan")->isEnabled(); }));
    QTreeWidget* const tree = find<QTreeWidget>(list, "treeWidget");
    tree->setCurrentItem(tree->findItems("release", Qt::MatchExactly).value(0));
    tap(list, "Select Package");
    QCOMPARE(packages()->topLevelItemCount(), 2);
    tap(page, "Start Update");
    receiver->report("portLock", 2);
    QCOMPARE(lastUpdate().value("combinedPath").toString(), QString());
    QVariantList const components = lastUpdate().value("components").toList();
    QCOMPARE(components.value(0).toMap().value("path").toString(), boot);
    QCOMPARE(components.value(0).toMap().value("component").toInt(), 0);
    QCOMPARE(components.value(1).toMap().value("path").toString(), nav);
    QCOMPARE(components.value(1).toMap().value("component").toInt(), 2);
}

void tst_melvoxUiFirmwareUpdate::sendsComponentsInTheOrderOfTheTree()
{
    openPage();
    choose(combined());
    packages()->sortByColumn(0, Qt::DescendingOrder);
    tap(page, "Start Update");
    receiver->report("portLock", 2);
    QList<int> components;
    for (QVariant const& component : lastUpdate().value("components").toList())
        components << component.toMap().value("component").toInt();
    QCOMPARE(components, QList<int>() << 6 << 2 << 0);
    QCOMPARE(rowTexts(statuses(), 0).at(0), QString("PIOAPP"));
}

void tst_melvoxUiFirmwareUpdate::leavesExcludedComponentsOut()
{
    openPage();
    choose(combined());
    packages()->setCurrentItem(packages()->topLevelItem(1));
    tap(page, "Toggle Component");
    tap(page, "Start Update");
    receiver->report("portLock", 2);
    QVariantList const components = lastUpdate().value("components").toList();
    QCOMPARE(int(components.size()), 2);
    QCOMPARE(components.at(0).toMap().value("component").toInt(), 2);
    QCOMPARE(components.at(1).toMap().value("component").toInt(), 6);
    // It is the package that is combined, however few of its components are wanted.
    QCOMPARE(lastUpdate().value("combinedPath").toString(), folder->path("all.srec"));
}

void tst_melvoxUiFirmwareUpdate::sendsFileIndexesUnchanged()
{
    startUpdate();
    QVariantList const components = lastUpdate().value("components").toList();
    for (int i = 0; i < 3; ++i)
        QCOMPARE(components.at(i).toMap().value("fileIndex").toInt(), i);
}

void tst_melvoxUiFirmwareUpdate::tellsThatTheLockWasRefused_data()
{
    QTest::addColumn<int>("lock");
    QTest::newRow("refused") << 0;
    QTest::newRow("taken by the framework") << 1;
}

void tst_melvoxUiFirmwareUpdate::tellsThatTheLockWasRefused()
{
    QFETCH(int, lock);
    openPage();
    choose(combined());
    tap(page, "Start Update");
    receiver->clear();
    receiver->report("portLock", lock);
    QCOMPARE(labelText(page, "statusLabel"), QString("Unable to lock port"));
    QCOMPARE(find<QLabel>(page, "statusLabel")->styleSheet(), QString("QLabel { color:#ff0000; }"));
    QVERIFY(okEnabled());
    QVERIFY2(receiver->sent().isEmpty(), qPrintable(receiver->sent().join(", ")));
    // A lock that comes too late starts nothing.
    receiver->report("portLock", 2);
    QVERIFY(receiver->commands().isEmpty());
    tap(page, "OK");
    QCOMPARE(shownPage(), QString("packagePage"));
}

void tst_melvoxUiFirmwareUpdate::canStartAgainAfterARefusedLock()
{
    openPage();
    choose(combined());
    tap(page, "Start Update");
    receiver->report("portLock", 0);
    tap(page, "OK");
    tap(page, "Start Update");
    QVERIFY(!okEnabled());
    receiver->report("portLock", 2);
    QCOMPARE(updates(), 1);
}

void tst_melvoxUiFirmwareUpdate::ignoresLocksThatItDidNotAskFor()
{
    openPage();
    choose(combined());
    receiver->report("portLock", 2);
    receiver->report("portLock", 1);
    receiver->report("portLock", 0);
    QVERIFY(receiver->commands().isEmpty());
    QCOMPARE(labelText(page, "statusLabel"), QString());
}

void tst_melvoxUiFirmwareUpdate::startsAgainWhenTheLockIsReportedAgain()
{
    startUpdate();
    receiver->report("portLock", 2);
    QCOMPARE(updates(), 2);
}

void tst_melvoxUiFirmwareUpdate::showsAnErrorForALockLostDuringAnUpdateAndStillReleasesIt()
{
    startUpdate();
    receiver->report("portLock", 0);
    QCOMPARE(labelText(page, "statusLabel"), QString("Unable to lock port"));
    QVERIFY(okEnabled());
    receiver->clear();
    reportState(0, "failed");
    QCOMPARE(receiver->commands(), QStringList("portLock 0"));
    reportedErrors();
}

void tst_melvoxUiFirmwareUpdate::showsTheDescriptionWhileInProgress()
{
    startUpdate();
    receiver->clear();
    reportState(1, "Erasing NAV");
    QCOMPARE(labelText(page, "statusLabel"), QString("Erasing NAV"));
    QCOMPARE(find<QLabel>(page, "statusLabel")->styleSheet(), QString("QLabel { color:#000000; }"));
    QVERIFY(!okEnabled());
    QVERIFY(receiver->sent().isEmpty());
    QVERIFY(!openBox());
}

void tst_melvoxUiFirmwareUpdate::completesWithTextsDialogAndRelease()
{
    startUpdate();
    receiver->clear();
    reportState(2, "All components updated");
    QCOMPARE(labelText(page, "statusLabel"), QString("All components updated"));
    QCOMPARE(find<QLabel>(page, "statusLabel")->styleSheet(), QString("QLabel { color:#000000; }"));
    QCOMPARE(labelText(page, "instructionsLabel"), QString("Firmware update complete.  Cycle power to the receiver."));
    QCOMPARE(find<QLabel>(page, "instructionsLabel")->styleSheet(), QString("QLabel { color:#000000; }"));
    QVERIFY(okEnabled());
    QCOMPARE(receiver->commands(), QStringList("portLock 0"));
    QVERIFY(openBox());
    QCOMPARE(openBox()->windowTitle(), QString("Firmware Update Successful"));
    QCOMPARE(openBox()->icon(), QMessageBox::Information);
    QCOMPARE(openBox()->standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(reportedErrors(), QString("Firmware update complete.  Press OK to power cycle the receiver"));
}

void tst_melvoxUiFirmwareUpdate::failsWithTextsDialogAndRelease()
{
    startUpdate();
    receiver->clear();
    reportState(0, "NAV could not be written");
    QCOMPARE(labelText(page, "statusLabel"), QString("NAV could not be written"));
    QCOMPARE(find<QLabel>(page, "statusLabel")->styleSheet(), QString("QLabel { color:#ff0000; }"));
    QCOMPARE(labelText(page, "instructionsLabel"),
             QString("Update of one or more firmware components failed.  Cycle power to the receiver and retry."));
    QCOMPARE(find<QLabel>(page, "instructionsLabel")->styleSheet(), QString("QLabel { color:#ff0000; }"));
    QVERIFY(okEnabled());
    QCOMPARE(receiver->commands(), QStringList("portLock 0"));
    QVERIFY(openBox());
    QCOMPARE(openBox()->windowTitle(), QString("Firmware Update Failed"));
    QCOMPARE(openBox()->icon(), QMessageBox::Information);
    QCOMPARE(openBox()->standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    QCOMPARE(reportedErrors(), QString("Update of one or more firmware components failed.  Press OK to power cycle "
                                       "the receiver then retry."));
}

void tst_melvoxUiFirmwareUpdate::ignoresUnknownStates()
{
    startUpdate();
    receiver->clear();
    page->updateFirmwareUpdateState(firmwareUpdateState_t(3), "what");
    QVERIFY(labelText(page, "statusLabel") != "what");
    QVERIFY(receiver->commands().isEmpty());
    QVERIFY(!openBox());
}

void tst_melvoxUiFirmwareUpdate::releasesTheLockOnEveryOutcomeOnce()
{
    startUpdate();
    reportState(2, "done");
    reportedErrors();
    receiver->report("portLock", 0);
    receiver->clear();
    // Locks that are reported afterwards are none that was asked for.
    receiver->report("portLock", 0);
    receiver->report("portLock", 2);
    QVERIFY(receiver->commands().isEmpty());
    QCOMPARE(labelText(page, "statusLabel"), QString("done"));
}

// Updates that another display runs are told to this one too.
void tst_melvoxUiFirmwareUpdate::showsAnOutcomeThatItDidNotWaitFor()
{
    openPage();
    reportState(0, "failed");
    QCOMPARE(labelText(page, "statusLabel"), QString("failed"));
    QVERIFY(okEnabled());
    QCOMPARE(receiver->commands(), QStringList("portLock 0"));
    QVERIFY(openBox());
    QCOMPARE(openBox()->windowTitle(), QString("Firmware Update Failed"));
    reportedErrors();
}

void tst_melvoxUiFirmwareUpdate::showsGoodTextsAgainAfterAFailure()
{
    startUpdate();
    reportState(0, "failed");
    reportedErrors();
    tap(page, "OK");
    tap(page, "Start Update");
    QCOMPARE(find<QLabel>(page, "instructionsLabel")->styleSheet(), QString("QLabel { color:#000000; }"));
    receiver->report("portLock", 2);
    reportState(1, "again");
    QCOMPARE(find<QLabel>(page, "statusLabel")->styleSheet(), QString("QLabel { color:#000000; }"));
}

void tst_melvoxUiFirmwareUpdate::showsPercentages_data()
{
    QTest::addColumn<double>("fraction");
    QTest::addColumn<int>("bar");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << 0.0 << 0 << "0.00%";
    QTest::newRow("half") << 0.5 << 5000 << "50.00%";
    QTest::newRow("many decimals") << 0.123456 << 1234 << "12.35%";
    QTest::newRow("almost all") << 0.99999 << 9999 << "100.00%";
    QTest::newRow("all") << 1.0 << 10000 << "100.00%";
}

void tst_melvoxUiFirmwareUpdate::showsPercentages()
{
    QFETCH(double, fraction);
    QFETCH(int, bar);
    QFETCH(QString, text);
    startUpdate();
    receiver->report("firmwareUpdatePercent", fraction);
    QCOMPARE(find<QProgressBar>(page, "progressBar")->value(), bar);
    QCOMPARE(labelText(page, "percentLabel"), text);
}

void tst_melvoxUiFirmwareUpdate::emptiesTheBarWithTheOutcome()
{
    startUpdate();
    for (int outcome : {2, 0})
    {
        receiver->report("firmwareUpdatePercent", 1.0);
        reportState(outcome, "over");
        QCOMPARE(find<QProgressBar>(page, "progressBar")->value(), 0);
        QCOMPARE(labelText(page, "percentLabel"), QString("0.00%"));
        reportedErrors();
    }
}

void tst_melvoxUiFirmwareUpdate::showsTheStatusOfEachComponent()
{
    startUpdate();
    receiver->report("firmwareUpdateProgress", list(map("component", 6, "status", 1), map("component", 2, "status", 2),
                                                    map("component", 0, "status", 3)));
    QCOMPARE(rowTexts(statuses(), 0).at(2), melvoxFirmwareUpdateStatusString(MELVOX_FWU_STATUS_SUCCESS));
    QCOMPARE(rowTexts(statuses(), 1).at(2), melvoxFirmwareUpdateStatusString(MELVOX_FWU_STATUS_FAILURE));
    QCOMPARE(rowTexts(statuses(), 2).at(2), melvoxFirmwareUpdateStatusString(MELVOX_FWU_STATUS_IN_PROGRESS));
}

void tst_melvoxUiFirmwareUpdate::ignoresProgressOfComponentsThatAreNotInTheTree()
{
    openPage();
    receiver->report("firmwareUpdateProgress", list(map("component", 2, "status", 2)));
    choose(combined());
    packages()->setCurrentItem(packages()->topLevelItem(0));
    tap(page, "Toggle Component");
    tap(page, "Start Update");
    receiver->report("portLock", 2);
    receiver->report("firmwareUpdateProgress", list(map("component", 2, "status", 2)));
    QCOMPARE(rowTexts(statuses(), 0).at(2), QString());
    QCOMPARE(rowTexts(statuses(), 1).at(2), QString());
}

void tst_melvoxUiFirmwareUpdate::setsTheFirstOfTwoItemsOfOneComponent()
{
    openPage();
    choose(folder->write("twice.srec", package_t().add(2, "a").add(2, "b").bytes()));
    tap(page, "Start Update");
    receiver->report("portLock", 2);
    receiver->report("firmwareUpdateProgress", list(map("component", 2, "status", 2)));
    QVERIFY(!rowTexts(statuses(), 0).at(2).isEmpty());
    QCOMPARE(rowTexts(statuses(), 1).at(2), QString());
}

void tst_melvoxUiFirmwareUpdate::rebootsHoweverTheOutcomeIsClosed_data()
{
    QTest::addColumn<int>("outcome");
    QTest::addColumn<bool>("withOk");
    QTest::newRow("success, OK") << 2 << true;
    QTest::newRow("success, closed") << 2 << false;
    QTest::newRow("failure, OK") << 0 << true;
    QTest::newRow("failure, closed") << 0 << false;
}

void tst_melvoxUiFirmwareUpdate::rebootsHoweverTheOutcomeIsClosed()
{
    QFETCH(int, outcome);
    QFETCH(bool, withOk);
    startUpdate();
    reportState(outcome, "over");
    // The lock is given back before anything else can go over the link.
    receiver->report("portLock", 0);
    receiver->clear();
    if (withOk)
        answer(QMessageBox::Ok);
    else
        melvox_test::closeBox();
    QCOMPARE(receiver->commands(), QStringList("reboot delay=0"));
}

void tst_melvoxUiFirmwareUpdate::okGoesBackToThePackageWithEverythingKept()
{
    startUpdate();
    reportState(2, "done");
    reportedErrors();
    tap(page, "OK");
    QCOMPARE(shownPage(), QString("packagePage"));
    QCOMPARE(packages()->topLevelItemCount(), 3);
    QCOMPARE(labelText(page, "packageLabel"), QString("all.srec"));
    QVERIFY(startEnabled());
    QCOMPARE(labelText(page, "statusLabel"), QString("done"));
    tap(page, "Start Update");
    QCOMPARE(statuses()->topLevelItemCount(), 3);
    receiver->report("portLock", 2);
    QCOMPARE(updates(), 2);
}

void tst_melvoxUiFirmwareUpdate::survivesBeingDestroyedDuringAnUpdate()
{
    startUpdate();
    delete page;
    page = 0;
    reportState(2, "done");
    QVERIFY(!openBox());
}

void tst_melvoxUiFirmwareUpdate::givesTheLockBackWhenItIsDestroyedBeforeItsUpdateStarts_data()
{
    QTest::addColumn<int>("lockBefore");
    QTest::newRow("no lock was held") << 0;
    QTest::newRow("the receiver had told of such a lock before") << 2;
}

void tst_melvoxUiFirmwareUpdate::givesTheLockBackWhenItIsDestroyedBeforeItsUpdateStarts()
{
    QFETCH(int, lockBefore);
    openPage();
    choose(combined());
    receiver->report("portLock", lockBefore);
    tap(page, "Start Update");
    receiver->clear();
    delete page;
    page = 0;
    QCOMPARE(receiver->commands(), QStringList("portLock 0"));
}

void tst_melvoxUiFirmwareUpdate::leavesTheLockToItsUpdateUntilTheOutcome_data()
{
    QTest::addColumn<int>("state");
    QTest::newRow("failed") << 0;
    QTest::newRow("complete") << 2;
}

void tst_melvoxUiFirmwareUpdate::leavesTheLockToItsUpdateUntilTheOutcome()
{
    QFETCH(int, state);
    startUpdate();
    receiver->clear();
    delete page;
    page = 0;
    reportState(1, "writing");
    // A receiver may tell of the lock that is still held.
    receiver->report("portLock", 2);
    melvox_test::settle();
    QVERIFY(receiver->commands().isEmpty());
    reportState(state, "over");
    reportState(state, "over");
    melvox_test::settle();
    reportState(state, "over");
    QCOMPARE(receiver->commands(), QStringList("portLock 0"));
}

void tst_melvoxUiFirmwareUpdate::releasesNoLockThatIsGoneBeforeTheOutcome()
{
    startUpdate();
    receiver->clear();
    delete page;
    page = 0;
    receiver->report("portLock", 0);
    melvox_test::settle();
    reportState(2, "done");
    QVERIFY(receiver->commands().isEmpty());
}

QTEST_MAIN(tst_melvoxUiFirmwareUpdate)
#include "tst_melvoxUiFirmwareUpdate.moc"
