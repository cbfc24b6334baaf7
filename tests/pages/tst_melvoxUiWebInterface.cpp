#include "melvox_ui/melvoxUiWebInterface.h"

#include "support/dialogs.h"
#include "support/pageTest.h"

#include <QGroupBox>
#include <QProgressBar>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_test::chooseFile;
using melvox_test::currentDir_t;
using melvox_test::folder_t;
using melvox_test::openDialog;
using melvox_test::openFileDialog;
using melvox_test::usb_t;

class tst_melvoxUiWebInterface : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    void tellControl(bool enabled) { receiver->report("webControl", map("enabled", enabled)); }
    void tellUpload(int state, char const* description)
    {
        receiver->report("webUiUploadState", map("state", state, "description", description));
    }
    static bool warns(QWidget* page) { return !find<QLabel>(page, "warningLabel")->isHidden(); }

private slots:
    void hasItsTexts();
    void showsNoDataBeforeTheFirstReport();
    void asksForTheActivePortWhileItIsNotKnown();
    void asksForNothingOnceThePortIsKnown();
    void showsWhetherTheInterfaceIsOn();
    void fillsTheComboFromTheFirstReportOnly();
    void resetBringsTheComboBack();
    void resetWithoutAReportChangesNothing();
    void enablesTheComboOverPhysicalPortsOnly_data();
    void enablesTheComboOverPhysicalPortsOnly();
    void keepsTheComboDisabledWithoutDataFromTheReceiver();
    void followsTheActivePort();
    void appliesTheChoice_data();
    void appliesTheChoice();
    void appliesNothingOverANetworkLink();
    void appliesNoForNoChoice();
    void queryAsksForTheWebControl();
    void startsWithoutAnUpload();
    void opensAFileDialogOnAUnitWithoutUsb();
    void uploadsTheChosenFile();
    void doesNothingWhenTheFileDialogIsCancelled();
    void findsAPackageOnADrive();
    void showsTheStateOfAnUpload_data();
    void showsTheStateOfAnUpload();
    void ignoresUnknownStates();
    void showsPercentages_data();
    void showsPercentages();
    void changesTheStateTextOnlyWithAState();
    void cancelsThroughTheProxy();
};

void tst_melvoxUiWebInterface::hasItsTexts()
{
    melvoxUiWebInterface_t page(device);
    QCOMPARE(find<QGroupBox>(&page, "webUiSettingsGroup")->title(), QString("Web Interface Settings"));
    QCOMPARE(find<QGroupBox>(&page, "webUploadGroup")->title(), QString("Upload Interface Files"));
    QCOMPARE(labelText(&page, "warningLabel"), QString("Web Interface can only be enabled/disabled when connected via "
                                                       "a physical port (COM or USB)."));
    QCOMPARE(labelText(&page, "noteLabel"),
             QString("Note: Uploading a MELVOX Web Interface can take up to 5 minutes and will interrupt the "
                     "functionality of the receiver.  During the upload, the receiver will be restarted twice."));
    QComboBox const* const combo = find<QComboBox>(&page, "uiEnabledCombo");
    QCOMPARE(combo->count(), 2);
    QCOMPARE(combo->itemText(0), QString("No"));
    QCOMPARE(combo->itemText(1), QString("Yes"));
    QCOMPARE(labelText(&page, "uploadPercentLabel"), QString("0.00%"));
    QCOMPARE(find<QProgressBar>(&page, "uploadProgressBar")->maximum(), 100);
}

void tst_melvoxUiWebInterface::showsNoDataBeforeTheFirstReport()
{
    melvoxUiWebInterface_t page(device);
    QCOMPARE(labelText(&page, "uiEnabledLabel"), NoDataString);
    QVERIFY(!isEnabled(&page, "uiEnabledCombo"));
    tap(&page, "Apply");
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiWebInterface::asksForTheActivePortWhileItIsNotKnown()
{
    melvoxUiWebInterface_t page(device);
    QCOMPARE(receiver->sent(), QStringList("request activePort"));
    receiver->clear();
    tellControl(true);
    QCOMPARE(receiver->sent(), QStringList("request activePort"));
    QVERIFY(!isEnabled(&page, "uiEnabledCombo"));
}

void tst_melvoxUiWebInterface::asksForNothingOnceThePortIsKnown()
{
    receiver->report("activePort", 0);
    melvoxUiWebInterface_t page(device);
    tellControl(true);
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiWebInterface::showsWhetherTheInterfaceIsOn()
{
    melvoxUiWebInterface_t page(device);
    tellControl(true);
    QCOMPARE(labelText(&page, "uiEnabledLabel"), QString("Yes"));
    tellControl(false);
    QCOMPARE(labelText(&page, "uiEnabledLabel"), QString("No"));
}

void tst_melvoxUiWebInterface::fillsTheComboFromTheFirstReportOnly()
{
    melvoxUiWebInterface_t page(device);
    tellControl(true);
    QCOMPARE(chosen(&page, "uiEnabledCombo"), QString("Yes"));
    tellControl(false);
    QCOMPARE(chosen(&page, "uiEnabledCombo"), QString("Yes"));
}

void tst_melvoxUiWebInterface::resetBringsTheComboBack()
{
    receiver->report("activePort", 4);
    melvoxUiWebInterface_t page(device);
    tellControl(true);
    choose(&page, "uiEnabledCombo", "No");
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "uiEnabledCombo"), QString("Yes"));
}

void tst_melvoxUiWebInterface::resetWithoutAReportChangesNothing()
{
    melvoxUiWebInterface_t page(device);
    find<QComboBox>(&page, "uiEnabledCombo")->setCurrentIndex(1);
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "uiEnabledCombo"), QString("Yes"));
}

void tst_melvoxUiWebInterface::enablesTheComboOverPhysicalPortsOnly_data()
{
    QTest::addColumn<int>("port");
    QTest::addColumn<bool>("physical");
    QTest::newRow("COM1") << 0 << true;
    QTest::newRow("USB2") << 5 << true;
    QTest::newRow("ETH1") << 6 << false;
    QTest::newRow("ETH8") << 13 << false;
    QTest::newRow("unknown") << 14 << false;
}

void tst_melvoxUiWebInterface::enablesTheComboOverPhysicalPortsOnly()
{
    QFETCH(int, port);
    QFETCH(bool, physical);
    melvoxUiWebInterface_t page(device);
    tellControl(true);
    receiver->report("activePort", port);
    QCOMPARE(isEnabled(&page, "uiEnabledCombo"), physical);
    QCOMPARE(warns(&page), !physical);
}

void tst_melvoxUiWebInterface::keepsTheComboDisabledWithoutDataFromTheReceiver()
{
    melvoxUiWebInterface_t page(device);
    receiver->report("activePort", 0);
    QVERIFY(!isEnabled(&page, "uiEnabledCombo"));
    QVERIFY(!warns(&page));
    tellControl(false);
    QVERIFY(isEnabled(&page, "uiEnabledCombo"));
}

void tst_melvoxUiWebInterface::followsTheActivePort()
{
    melvoxUiWebInterface_t page(device);
    tellControl(true);
    for (int port : {0, 7, 5})
    {
        receiver->report("activePort", port);
        QCOMPARE(isEnabled(&page, "uiEnabledCombo"), port < 6);
        QCOMPARE(warns(&page), port >= 6);
    }
}

void tst_melvoxUiWebInterface::appliesTheChoice_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("command");
    QTest::newRow("off") << "No"
                         << "webControl enabled=false";
    QTest::newRow("on") << "Yes"
                        << "webControl enabled=true";
}

void tst_melvoxUiWebInterface::appliesTheChoice()
{
    QFETCH(QString, item);
    QFETCH(QString, command);
    receiver->report("activePort", 0);
    melvoxUiWebInterface_t page(device);
    tellControl(true);
    choose(&page, "uiEnabledCombo", item);
    tap(&page, "Apply");
    QCOMPARE(receiver->commands(), QStringList(command));
}

void tst_melvoxUiWebInterface::appliesNothingOverANetworkLink()
{
    receiver->report("activePort", 8);
    melvoxUiWebInterface_t page(device);
    tellControl(true);
    tap(&page, "Apply");
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiWebInterface::appliesNoForNoChoice()
{
    receiver->report("activePort", 0);
    melvoxUiWebInterface_t page(device);
    tellControl(true);
    find<QComboBox>(&page, "uiEnabledCombo")->setCurrentIndex(-1);
    tap(&page, "Apply");
    QCOMPARE(receiver->commands(), QStringList("webControl enabled=false"));
}

void tst_melvoxUiWebInterface::queryAsksForTheWebControl()
{
    receiver->report("activePort", 0);
    melvoxUiWebInterface_t page(device);
    tap(&page, "Query");
    QCOMPARE(receiver->sent(), QStringList("request webControl"));
}

void tst_melvoxUiWebInterface::startsWithoutAnUpload()
{
    tellUpload(1, "Receiving");
    melvoxUiWebInterface_t page(device);
    // Until the first report, whatever ran before.
    QVERIFY(isEnabled(&page, "selectPackageButton"));
    QVERIFY(!isEnabled(&page, "cancelUploadButton"));
    QCOMPARE(labelText(&page, "uploadStatusLabel"), QString());
    QCOMPARE(labelText(&page, "uploadPackageLabel"), QString());
}

void tst_melvoxUiWebInterface::opensAFileDialogOnAUnitWithoutUsb()
{
    melvoxUiWebInterface_t page(device);
    tap(&page, "Select Package");
    QFileDialog* const dialog = openFileDialog();
    QVERIFY(dialog);
    QCOMPARE(dialog->windowTitle(), QString("Open MELVOX Web UI Package"));
    QCOMPARE(dialog->nameFilters(), QStringList() << "MELVOX Web UI Packages (*.webui)"
                                                  << "All Files (*)");
    QCOMPARE(dialog->directory().canonicalPath(), QDir::current().canonicalPath());
    QVERIFY(dialog->isModal());
}

void tst_melvoxUiWebInterface::uploadsTheChosenFile()
{
    currentDir_t current;
    folder_t folder;
    QString const path = folder.write("sub/new.webui", "12345");
    melvoxUiWebInterface_t page(device);
    tap(&page, "Select Package");
    chooseFile(path);
    QCOMPARE(labelText(&page, "uploadPackageLabel"), QString("new.webui"));
    QCOMPARE(receiver->messages().last().group, QString("startWebUiUpload"));
    QCOMPARE(receiver->messages().last().value.toMap().value("path").toString(), path);
    QCOMPARE(QDir::currentPath(), folder.path("sub"));
    // The buttons wait for what the receiver says.
    QVERIFY(isEnabled(&page, "selectPackageButton"));
}

void tst_melvoxUiWebInterface::doesNothingWhenTheFileDialogIsCancelled()
{
    receiver->report("activePort", 0);
    melvoxUiWebInterface_t page(device);
    tellUpload(0, "before");
    tap(&page, "Select Package");
    melvox_test::cancelFileDialog();
    QVERIFY(receiver->sent().isEmpty());
    QCOMPARE(labelText(&page, "uploadPackageLabel"), QString());
    QCOMPARE(labelText(&page, "uploadStatusLabel"), QString("before"));
}

void tst_melvoxUiWebInterface::findsAPackageOnADrive()
{
    usb_t usb;
    QString const path = usb.write("STICK/updates/new.webui", "12345");
    melvoxUiWebInterface_t page(device);
    tap(&page, "Select Package");
    QVERIFY(!openFileDialog());
    usb.choose("STICK");
    QDialog* const list = openDialog("melvoxUiUsbWebUiSelectDialog");
    QVERIFY(list);
    QVERIFY(melvox_test::waitFor([&] { return !melvox_test::button(list, "Stop Scan")->isEnabled(); }));
    QTreeWidget* const tree = find<QTreeWidget>(list, "treeWidget");
    tree->setCurrentItem(tree->topLevelItem(0));
    tap(list, "Select Package");
    QCOMPARE(labelText(&page, "uploadPackageLabel"), QString("new.webui"));
    QCOMPARE(receiver->messages().last().value.toMap().value("path").toString(), path);
}

void tst_melvoxUiWebInterface::showsTheStateOfAnUpload_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("uploading");
    QTest::newRow("in progress") << 1 << "what the receiver says" << true;
    QTest::newRow("complete") << 2 << "Upload Complete" << false;
    QTest::newRow("error") << 0 << "what the receiver says" << false;
}

void tst_melvoxUiWebInterface::showsTheStateOfAnUpload()
{
    QFETCH(int, state);
    QFETCH(QString, text);
    QFETCH(bool, uploading);
    melvoxUiWebInterface_t page(device);
    page.setUploadEnabled(!uploading);
    tellUpload(state, "what the receiver says");
    QCOMPARE(labelText(&page, "uploadStatusLabel"), text);
    QCOMPARE(isEnabled(&page, "selectPackageButton"), !uploading);
    QCOMPARE(isEnabled(&page, "cancelUploadButton"), uploading);
}

void tst_melvoxUiWebInterface::ignoresUnknownStates()
{
    melvoxUiWebInterface_t page(device);
    tellUpload(1, "running");
    tellUpload(7, "what");
    QCOMPARE(labelText(&page, "uploadStatusLabel"), QString("running"));
    QVERIFY(isEnabled(&page, "cancelUploadButton"));
}

void tst_melvoxUiWebInterface::showsPercentages_data()
{
    QTest::addColumn<double>("fraction");
    QTest::addColumn<int>("bar");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << 0.0 << 0 << "0.00%";
    QTest::newRow("truncated on the bar") << 0.4567 << 45 << "45.67%";
    QTest::newRow("rounded in the text") << 0.99999 << 99 << "100.00%";
    QTest::newRow("all") << 1.0 << 100 << "100.00%";
}

void tst_melvoxUiWebInterface::showsPercentages()
{
    QFETCH(double, fraction);
    QFETCH(int, bar);
    QFETCH(QString, text);
    melvoxUiWebInterface_t page(device);
    receiver->report("webUiUploadPercent", fraction);
    QCOMPARE(find<QProgressBar>(&page, "uploadProgressBar")->value(), bar);
    QCOMPARE(labelText(&page, "uploadPercentLabel"), text);
}

void tst_melvoxUiWebInterface::changesTheStateTextOnlyWithAState()
{
    melvoxUiWebInterface_t page(device);
    tellUpload(1, "running");
    receiver->report("webUiUploadPercent", 1.0);
    QCOMPARE(labelText(&page, "uploadStatusLabel"), QString("running"));
    QVERIFY(isEnabled(&page, "cancelUploadButton"));
}

void tst_melvoxUiWebInterface::cancelsThroughTheProxy()
{
    receiver->report("activePort", 0);
    melvoxUiWebInterface_t page(device);
    tellUpload(1, "running");
    tap(&page, "Cancel Upload");
    QCOMPARE(receiver->commands(), QStringList("cancelWebUiUpload"));
    // The receiver says when it is over.
    QVERIFY(isEnabled(&page, "cancelUploadButton"));
}

QTEST_MAIN(tst_melvoxUiWebInterface)
#include "tst_melvoxUiWebInterface.moc"
