#include "melvox_ui/melvoxUiAntennaIdentification.h"

#include "melvox_ui/melvoxUiAntennaConfigDialog.h"
#include "support/pageTest.h"

#include <QGroupBox>
#include <QHeaderView>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

class tst_melvoxUiAntennaIdentification : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    void reportInfo();
    void reportHeight();
    void reportNames();
    void reportRemote(bool automatic, QString const& name);
    void reportEverything();
    QTreeWidget* tree(QWidget* page) { return find<QTreeWidget>(page, "antennaTree"); }
    QString row(QWidget* page, int row) { return melvox_test::rowTexts(tree(page), row).join("|"); }
    QString items(QWidget* page, char const* combo);
    int index(QWidget* page, char const* combo) { return find<QComboBox>(page, combo)->currentIndex(); }

private slots:
    void showsNoDataBeforeTheFirstReport();
    void sendsBothSettingsAlsoBeforeTheFirstReport();
    void showsValuesThatTheProxyHeldBeforeThePageWasBuilt();
    void namesItsGroupsAndColumns();
    void captionsItsValues();
    void fitsItsColumnsToWhatTheyHold();
    void makesARowForEachAntenna();
    void fillsHeightsIntoTheSameRows();
    void makesTheRowsFromHeightsToo();
    void neverHasMoreThanTwoRows();
    void writesMillimetresInSixDigits_data();
    void writesMillimetresInSixDigits();
    void keepsTheSelectedRowWhileReportsArrive();
    void offersAutoAndNoneBeforeTheNames();
    void listsTheNamesThatAreKnownAlready();
    void appendsEachNameThatArrives();
    void startsTheListAgainWhenTheReceiverDoes();
    void choosesTheReceiversValueOnceItsNameArrives();
    void bringsBothEditorsBackWhenANameArrives();
    void marksAnAutomaticAntenna();
    void showsAnAntennaByItsName();
    void choosesTheAntennaOfTheReceiver_data();
    void choosesTheAntennaOfTheReceiver();
    void sendsTheRemoteAntenna_data();
    void sendsTheRemoteAntenna();
    void sendsAnEmptyNameWhenNoneIsChosen();
    void offersTwoDualModes();
    void showsAndChoosesTheDualMode_data();
    void showsAndChoosesTheDualMode();
    void sendsTheDualMode();
    void sendsAnEmptyDualModeWhenNoneIsChosen();
    void fillsEachEditorFromTheFirstReportOnly();
    void resetBringsBothEditorsBackToTheReceiver();
    void resetBeforeTheFirstReportChangesNothing();
    void sendsBothSettingsInThePagesOrder();
    void asksForEveryGroupInThePagesOrder();
    void enablesConfigureOnlyWithASelectedRow();
    void opensTheDialogForTheSelectedAntenna();
    void opensTheDialogAtADoubleClick();
    void opensNothingWithoutASelectedRow();
    void loadsTheReceiversValuesEachTimeTheDialogOpens();
    void takesNamesIntoTheOpenDialog();
    void showsWhatTheDialogSentOnceTheReceiverTookIt();
    void takesItsDialogAlong();
};

void tst_melvoxUiAntennaIdentification::reportInfo()
{
    receiver->report("antennaInfo", list(map("name", "TRM55971.00     NONE", "serial", "s1", "id", 11),
                                         map("name", "NAX3G+C         NONE", "serial", "s2", "id", 255)));
}

void tst_melvoxUiAntennaIdentification::reportHeight()
{
    receiver->report("antennaHeight",
                     list(map("useAdjustments", true, "height", 1.5, "slantRange", 1234.5, "radius", -10.0),
                          map("useAdjustments", false, "height", 2.5, "slantRange", -200.25, "radius", 20.5)));
}

void tst_melvoxUiAntennaIdentification::reportNames()
{
    receiver->event("antennaListReset");
    receiver->report("antennaName", "TRM55971.00     NONE");
    receiver->report("antennaName", "NAX3g+c         None");
}

void tst_melvoxUiAntennaIdentification::reportRemote(bool automatic, QString const& name)
{
    receiver->report("antennaRemote", map("automatic", automatic, "name", name));
}

void tst_melvoxUiAntennaIdentification::reportEverything()
{
    reportNames();
    reportInfo();
    reportHeight();
    reportRemote(false, "NAX3G+C         NONE");
    receiver->report("antennaDualMode", "SFONLY");
}

QString tst_melvoxUiAntennaIdentification::items(QWidget* page, char const* combo)
{
    QStringList texts;
    QComboBox const* const found = find<QComboBox>(page, combo);
    for (int i = 0; i < found->count(); ++i)
        texts << found->itemText(i);
    return texts.join("|");
}

void tst_melvoxUiAntennaIdentification::showsNoDataBeforeTheFirstReport()
{
    melvoxUiAntennaIdentification_t page(device);
    QCOMPARE(labelText(&page, "antRemoteNameLabel"), NoDataString);
    QCOMPARE(labelText(&page, "antDualModeLabel"), NoDataString);
    QCOMPARE(tree(&page)->topLevelItemCount(), 0);
}

void tst_melvoxUiAntennaIdentification::sendsBothSettingsAlsoBeforeTheFirstReport()
{
    melvoxUiAntennaIdentification_t page(device);
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().join("\n"),
             QString("antennaRemote automatic=true name=\"\"\nantennaDualMode DEFAULT"));
    QCOMPARE(reportedErrors(), QString());
}

void tst_melvoxUiAntennaIdentification::showsValuesThatTheProxyHeldBeforeThePageWasBuilt()
{
    reportEverything();
    melvoxUiAntennaIdentification_t page(device);
    QCOMPARE(row(&page, 0),
             melvoxAntennaName(MELVOX_ANTENNA_FIRST) + "|TRM55971.00     NONE|s1|11|" + YesString + "|1234.5|-10");
    QCOMPARE(row(&page, 1),
             melvoxAntennaName(MELVOX_ANTENNA_SECOND) + "|NAX3G+C         NONE|s2|255|" + NoString + "|-200.25|20.5");
    QCOMPARE(labelText(&page, "antRemoteNameLabel"), QString("NAX3G+C         NONE"));
    QCOMPARE(labelText(&page, "antDualModeLabel"), QString("SFONLY"));
    QCOMPARE(index(&page, "antRemoteNameCombo"), 3);
    QCOMPARE(chosen(&page, "antDualModeCombo"), QString("SFONLY"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiAntennaIdentification::namesItsGroupsAndColumns()
{
    melvoxUiAntennaIdentification_t page(device);
    QCOMPARE(find<QGroupBox>(&page, "antennasGroup")->title(), QString("Antennas"));
    QCOMPARE(find<QGroupBox>(&page, "baseInfoGroup")->title(), QString("Base Station Antenna Identification"));
    QCOMPARE(find<QGroupBox>(&page, "baseInfoGroup_2")->title(), QString("Dual Antenna Mode"));
    QCOMPARE(melvox_test::headerTexts(tree(&page)).join("|"),
             QString("Antenna|IGS Antenna Name|Serial Number|Setup ID|Use Adjustments|Slant Range (mm)|Radius (mm)"));
}

void tst_melvoxUiAntennaIdentification::captionsItsValues()
{
    melvoxUiAntennaIdentification_t page(device);
    QCOMPARE(labelText(&page, "antRemoteNameTitleLabel"), QString("IGS Antenna:"));
    QCOMPARE(labelText(&page, "antDualModeTitleLabel"), QString("Dual Antenna Mode:"));
}

void tst_melvoxUiAntennaIdentification::fitsItsColumnsToWhatTheyHold()
{
    melvoxUiAntennaIdentification_t page(device);
    page.show();
    reportInfo();
    melvox_test::settle();
    int const before = tree(&page)->header()->sectionSize(2);
    receiver->report("antennaInfo", list(map("name", "NONE", "serial", QString(40, '8'), "id", 11),
                                         map("name", "NONE", "serial", "s2", "id", 255)));
    melvox_test::settle();
    QVERIFY(tree(&page)->header()->sectionSize(2) > before);
    reportInfo();
    melvox_test::settle();
    QCOMPARE(tree(&page)->header()->sectionSize(2), before);
}

void tst_melvoxUiAntennaIdentification::makesARowForEachAntenna()
{
    melvoxUiAntennaIdentification_t page(device);
    reportInfo();
    QCOMPARE(tree(&page)->topLevelItemCount(), 2);
    QCOMPARE(row(&page, 0), melvoxAntennaName(MELVOX_ANTENNA_FIRST) + "|TRM55971.00     NONE|s1|11|||");
    QCOMPARE(row(&page, 1), melvoxAntennaName(MELVOX_ANTENNA_SECOND) + "|NAX3G+C         NONE|s2|255|||");
}

void tst_melvoxUiAntennaIdentification::fillsHeightsIntoTheSameRows()
{
    melvoxUiAntennaIdentification_t page(device);
    reportInfo();
    reportHeight();
    QCOMPARE(tree(&page)->topLevelItemCount(), 2);
    QVERIFY(row(&page, 0).endsWith("|11|" + YesString + "|1234.5|-10"));
    QVERIFY(row(&page, 1).endsWith("|255|" + NoString + "|-200.25|20.5"));
}

void tst_melvoxUiAntennaIdentification::makesTheRowsFromHeightsToo()
{
    melvoxUiAntennaIdentification_t page(device);
    reportHeight();
    QCOMPARE(tree(&page)->topLevelItemCount(), 2);
    QCOMPARE(row(&page, 0), melvoxAntennaName(MELVOX_ANTENNA_FIRST) + "||||" + YesString + "|1234.5|-10");
    reportInfo();
    QVERIFY(row(&page, 0).contains("|s1|11|"));
}

void tst_melvoxUiAntennaIdentification::neverHasMoreThanTwoRows()
{
    melvoxUiAntennaIdentification_t page(device);
    for (int i = 0; i < 3; ++i)
        reportEverything();
    QCOMPARE(tree(&page)->topLevelItemCount(), 2);
}

void tst_melvoxUiAntennaIdentification::writesMillimetresInSixDigits_data()
{
    QTest::addColumn<double>("millimetres");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << 170.0 << "170";
    QTest::newRow("six digits") << 1234.56 << "1234.56";
    QTest::newRow("more digits") << 12345.678 << "12345.7";
    QTest::newRow("negative") << -0.5 << "-0.5";
    QTest::newRow("large") << 1234567.0 << "1.23457e+06";
}

void tst_melvoxUiAntennaIdentification::writesMillimetresInSixDigits()
{
    QFETCH(double, millimetres);
    QFETCH(QString, text);
    melvoxUiAntennaIdentification_t page(device);
    receiver->report("antennaHeight",
                     list(map("useAdjustments", true, "height", 0.0, "slantRange", millimetres, "radius", 1.0),
                          map("useAdjustments", true, "height", 0.0, "slantRange", 2.0, "radius", millimetres)));
    QCOMPARE(tree(&page)->topLevelItem(0)->text(5), text);
    QCOMPARE(tree(&page)->topLevelItem(1)->text(6), text);
}

void tst_melvoxUiAntennaIdentification::keepsTheSelectedRowWhileReportsArrive()
{
    melvoxUiAntennaIdentification_t page(device);
    reportEverything();
    tree(&page)->setCurrentItem(tree(&page)->topLevelItem(1));
    reportEverything();
    QCOMPARE(tree(&page)->selectedItems().size(), 1);
    QCOMPARE(tree(&page)->selectedItems().first()->text(2), QString("s2"));
}

void tst_melvoxUiAntennaIdentification::offersAutoAndNoneBeforeTheNames()
{
    melvoxUiAntennaIdentification_t page(device);
    QCOMPARE(items(&page, "antRemoteNameCombo"), QString("AUTO|NONE"));
}

void tst_melvoxUiAntennaIdentification::listsTheNamesThatAreKnownAlready()
{
    reportNames();
    melvoxUiAntennaIdentification_t page(device);
    QCOMPARE(items(&page, "antRemoteNameCombo"), QString("AUTO|NONE|TRM55971.00     NONE|NAX3g+c         None"));
}

void tst_melvoxUiAntennaIdentification::appendsEachNameThatArrives()
{
    melvoxUiAntennaIdentification_t page(device);
    reportNames();
    QCOMPARE(items(&page, "antRemoteNameCombo"), QString("AUTO|NONE|TRM55971.00     NONE|NAX3g+c         None"));
    receiver->report("antennaName", "LATE");
    QVERIFY(items(&page, "antRemoteNameCombo").endsWith("|LATE"));
}

void tst_melvoxUiAntennaIdentification::startsTheListAgainWhenTheReceiverDoes()
{
    melvoxUiAntennaIdentification_t page(device);
    reportNames();
    receiver->event("antennaListReset");
    QCOMPARE(items(&page, "antRemoteNameCombo"), QString("AUTO|NONE"));
    receiver->report("antennaName", "LATE");
    QCOMPARE(items(&page, "antRemoteNameCombo"), QString("AUTO|NONE|LATE"));
}

void tst_melvoxUiAntennaIdentification::choosesTheReceiversValueOnceItsNameArrives()
{
    melvoxUiAntennaIdentification_t page(device);
    reportRemote(false, "LATE");
    QCOMPARE(index(&page, "antRemoteNameCombo"), -1);
    receiver->report("antennaName", "EARLY");
    QCOMPARE(index(&page, "antRemoteNameCombo"), -1);
    receiver->report("antennaName", "Late");
    QCOMPARE(chosen(&page, "antRemoteNameCombo"), QString("Late"));
}

void tst_melvoxUiAntennaIdentification::bringsBothEditorsBackWhenANameArrives()
{
    melvoxUiAntennaIdentification_t page(device);
    reportEverything();
    choose(&page, "antRemoteNameCombo", "AUTO");
    choose(&page, "antDualModeCombo", "DEFAULT");
    receiver->report("antennaName", "LATE");
    QCOMPARE(index(&page, "antRemoteNameCombo"), 3);
    QCOMPARE(chosen(&page, "antDualModeCombo"), QString("SFONLY"));
}

void tst_melvoxUiAntennaIdentification::marksAnAutomaticAntenna()
{
    melvoxUiAntennaIdentification_t page(device);
    reportRemote(true, "TRM55971.00     NONE");
    QCOMPARE(labelText(&page, "antRemoteNameLabel"), QString("(Auto) TRM55971.00     NONE"));
    reportRemote(true, "");
    QCOMPARE(labelText(&page, "antRemoteNameLabel"), QString("(Auto) "));
}

void tst_melvoxUiAntennaIdentification::showsAnAntennaByItsName()
{
    melvoxUiAntennaIdentification_t page(device);
    reportRemote(false, "Any Name");
    QCOMPARE(labelText(&page, "antRemoteNameLabel"), QString("Any Name"));
}

void tst_melvoxUiAntennaIdentification::choosesTheAntennaOfTheReceiver_data()
{
    QTest::addColumn<bool>("automatic");
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("item");
    QTest::newRow("automatic") << true << "" << 0;
    QTest::newRow("automatic, with a name") << true << "TRM55971.00     NONE" << 0;
    QTest::newRow("none") << false << "NONE" << 1;
    QTest::newRow("a name") << false << "TRM55971.00     NONE" << 2;
    QTest::newRow("another case") << false << "nax3G+C         none" << 3;
    QTest::newRow("a part of a name") << false << "TRM55971.00" << -1;
    QTest::newRow("no name") << false << "" << -1;
    QTest::newRow("a name that is not listed") << false << "UNHEARD OF" << -1;
}

void tst_melvoxUiAntennaIdentification::choosesTheAntennaOfTheReceiver()
{
    QFETCH(bool, automatic);
    QFETCH(QString, name);
    QFETCH(int, item);
    reportNames();
    melvoxUiAntennaIdentification_t page(device);
    reportRemote(automatic, name);
    QCOMPARE(index(&page, "antRemoteNameCombo"), item);
}

void tst_melvoxUiAntennaIdentification::sendsTheRemoteAntenna_data()
{
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("sent");
    QTest::newRow("automatic") << "AUTO"
                               << "automatic=true name=\"\"";
    QTest::newRow("none is a name") << "NONE"
                                    << "automatic=false name=NONE";
    QTest::newRow("in capitals") << "NAX3g+c         None"
                                 << "automatic=false name=NAX3G+C         NONE";
}

void tst_melvoxUiAntennaIdentification::sendsTheRemoteAntenna()
{
    QFETCH(QString, item);
    QFETCH(QString, sent);
    melvoxUiAntennaIdentification_t page(device);
    reportNames();
    choose(&page, "antRemoteNameCombo", item);
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().first(), "antennaRemote " + sent);
}

void tst_melvoxUiAntennaIdentification::sendsAnEmptyNameWhenNoneIsChosen()
{
    melvoxUiAntennaIdentification_t page(device);
    reportRemote(false, "UNHEARD OF");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().first(), QString("antennaRemote automatic=false name=\"\""));
}

void tst_melvoxUiAntennaIdentification::offersTwoDualModes()
{
    melvoxUiAntennaIdentification_t page(device);
    QCOMPARE(items(&page, "antDualModeCombo"), QString("DEFAULT|SFONLY"));
}

void tst_melvoxUiAntennaIdentification::showsAndChoosesTheDualMode_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<int>("item");
    QTest::newRow("default") << "DEFAULT" << 0;
    QTest::newRow("the other") << "SFONLY" << 1;
    QTest::newRow("another case") << "sfOnly" << 1;
    QTest::newRow("one that it does not know") << "TRIPLE" << -1;
}

void tst_melvoxUiAntennaIdentification::showsAndChoosesTheDualMode()
{
    QFETCH(QString, mode);
    QFETCH(int, item);
    melvoxUiAntennaIdentification_t page(device);
    receiver->report("antennaDualMode", mode);
    QCOMPARE(labelText(&page, "antDualModeLabel"), mode);
    QCOMPARE(index(&page, "antDualModeCombo"), item);
}

void tst_melvoxUiAntennaIdentification::sendsTheDualMode()
{
    melvoxUiAntennaIdentification_t page(device);
    choose(&page, "antDualModeCombo", "SFONLY");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().last(), QString("antennaDualMode SFONLY"));
}

void tst_melvoxUiAntennaIdentification::sendsAnEmptyDualModeWhenNoneIsChosen()
{
    melvoxUiAntennaIdentification_t page(device);
    receiver->report("antennaDualMode", "TRIPLE");
    tap(&page, "Apply");
    QCOMPARE(receiver->commands().last(), QString("antennaDualMode \"\""));
}

void tst_melvoxUiAntennaIdentification::fillsEachEditorFromTheFirstReportOnly()
{
    melvoxUiAntennaIdentification_t page(device);
    reportEverything();
    reportRemote(true, "X");
    receiver->report("antennaDualMode", "DEFAULT");
    QCOMPARE(index(&page, "antRemoteNameCombo"), 3);
    QCOMPARE(chosen(&page, "antDualModeCombo"), QString("SFONLY"));
    QCOMPARE(labelText(&page, "antRemoteNameLabel"), QString("(Auto) X"));
    QCOMPARE(labelText(&page, "antDualModeLabel"), QString("DEFAULT"));
}

void tst_melvoxUiAntennaIdentification::resetBringsBothEditorsBackToTheReceiver()
{
    melvoxUiAntennaIdentification_t page(device);
    reportEverything();
    choose(&page, "antRemoteNameCombo", "AUTO");
    choose(&page, "antDualModeCombo", "DEFAULT");
    tap(&page, "Reset");
    QCOMPARE(index(&page, "antRemoteNameCombo"), 3);
    QCOMPARE(chosen(&page, "antDualModeCombo"), QString("SFONLY"));
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiAntennaIdentification::resetBeforeTheFirstReportChangesNothing()
{
    melvoxUiAntennaIdentification_t page(device);
    choose(&page, "antRemoteNameCombo", "NONE");
    choose(&page, "antDualModeCombo", "SFONLY");
    tap(&page, "Reset");
    QCOMPARE(chosen(&page, "antRemoteNameCombo"), QString("NONE"));
    QCOMPARE(chosen(&page, "antDualModeCombo"), QString("SFONLY"));
}

void tst_melvoxUiAntennaIdentification::sendsBothSettingsInThePagesOrder()
{
    melvoxUiAntennaIdentification_t page(device);
    reportEverything();
    choose(&page, "antRemoteNameCombo", "TRM55971.00     NONE");
    choose(&page, "antDualModeCombo", "DEFAULT");
    tap(&page, "Apply");
    QCOMPARE(receiver->sent().join("\n"), QString("command antennaRemote automatic=false name=TRM55971.00     NONE\n"
                                                  "command antennaDualMode DEFAULT"));
}

void tst_melvoxUiAntennaIdentification::asksForEveryGroupInThePagesOrder()
{
    melvoxUiAntennaIdentification_t page(device);
    QVERIFY(receiver->sent().isEmpty());
    tap(&page, "Query");
    QStringList asked = receiver->requests();
    // The proxy asks for the names along with the first query.
    asked.removeAll("antennaList");
    QCOMPARE(asked.join("\n"), QString("antennaInfo\nantennaHeight\nantennaRemote\nantennaDualMode"));
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiAntennaIdentification::enablesConfigureOnlyWithASelectedRow()
{
    melvoxUiAntennaIdentification_t page(device);
    QAbstractButton const* const configure = melvox_test::button(&page, "Configure");
    QVERIFY(!configure->isEnabled());
    reportInfo();
    QVERIFY(!configure->isEnabled());
    tree(&page)->setCurrentItem(tree(&page)->topLevelItem(0));
    QVERIFY(configure->isEnabled());
    tree(&page)->clearSelection();
    QVERIFY(!configure->isEnabled());
}

void tst_melvoxUiAntennaIdentification::opensTheDialogForTheSelectedAntenna()
{
    melvoxUiAntennaIdentification_t page(device);
    page.show();
    reportEverything();
    QWidget* const dialog = page.findChild<melvoxUiAntennaConfigDialog_t*>();
    QVERIFY(dialog && !dialog->isVisible());
    tree(&page)->setCurrentItem(tree(&page)->topLevelItem(1));
    tap(&page, "Configure");
    QVERIFY(dialog->isVisible());
    QCOMPARE(labelText(dialog, "antennaLabel"), melvoxAntennaName(MELVOX_ANTENNA_SECOND));
    QCOMPARE(chosen(dialog, "nameCombo"), QString("NAX3g+c         None"));
    QCOMPARE(editText(dialog, "serialNumberLineEdit"), QString("s2"));
    QCOMPARE(editText(dialog, "setupIdLineEdit"), QString("255"));
    QCOMPARE(chosen(dialog, "useAdjustmentsCombo"), QString("No"));
    QCOMPARE(editText(dialog, "slantRangeLineEdit"), QString("00200"));
    QCOMPARE(index(dialog, "slantRangeSignCombo"), 1);
    QCOMPARE(editText(dialog, "radiusLineEdit"), QString("00020"));
    QCOMPARE(index(dialog, "radiusSignCombo"), 0);
}

void tst_melvoxUiAntennaIdentification::opensTheDialogAtADoubleClick()
{
    melvoxUiAntennaIdentification_t page(device);
    page.resize(800, 430);
    page.show();
    reportEverything();
    melvox_test::settle();
    QPoint const spot = tree(&page)->visualItemRect(tree(&page)->topLevelItem(0)).center();
    QTest::mouseClick(tree(&page)->viewport(), Qt::LeftButton, Qt::NoModifier, spot);
    QTest::mouseDClick(tree(&page)->viewport(), Qt::LeftButton, Qt::NoModifier, spot);
    QWidget* const dialog = page.findChild<melvoxUiAntennaConfigDialog_t*>();
    QVERIFY(dialog->isVisible());
    QCOMPARE(labelText(dialog, "antennaLabel"), melvoxAntennaName(MELVOX_ANTENNA_FIRST));
    QCOMPARE(editText(dialog, "slantRangeLineEdit"), QString("01234"));
}

void tst_melvoxUiAntennaIdentification::opensNothingWithoutASelectedRow()
{
    melvoxUiAntennaIdentification_t page(device);
    reportEverything();
    page.configureSelectedAntenna();
    QVERIFY(!page.findChild<melvoxUiAntennaConfigDialog_t*>()->isVisible());
}

void tst_melvoxUiAntennaIdentification::loadsTheReceiversValuesEachTimeTheDialogOpens()
{
    melvoxUiAntennaIdentification_t page(device);
    reportEverything();
    tree(&page)->setCurrentItem(tree(&page)->topLevelItem(0));
    tap(&page, "Configure");
    QWidget* const dialog = page.findChild<melvoxUiAntennaConfigDialog_t*>();
    type(dialog, "serialNumberLineEdit", "typed");
    type(dialog, "setupIdLineEdit", "200");
    tap(dialog, "Cancel");
    tap(&page, "Configure");
    QCOMPARE(editText(dialog, "serialNumberLineEdit"), QString("s1"));
    QCOMPARE(editText(dialog, "setupIdLineEdit"), QString("011"));
    QVERIFY(receiver->commands().isEmpty());
}

void tst_melvoxUiAntennaIdentification::takesNamesIntoTheOpenDialog()
{
    melvoxUiAntennaIdentification_t page(device);
    reportEverything();
    tree(&page)->setCurrentItem(tree(&page)->topLevelItem(0));
    tap(&page, "Configure");
    QWidget* const dialog = page.findChild<melvoxUiAntennaConfigDialog_t*>();
    type(dialog, "serialNumberLineEdit", "typed");
    receiver->report("antennaName", "LATE");
    QVERIFY(items(dialog, "nameCombo").endsWith("|LATE"));
    QCOMPARE(chosen(dialog, "nameCombo"), QString("TRM55971.00     NONE"));
    QCOMPARE(editText(dialog, "serialNumberLineEdit"), QString("typed"));
    choose(dialog, "nameCombo", "LATE");
    tap(dialog, "OK");
    QVERIFY(receiver->commands().first().startsWith("antennaInfo [id=11 name=LATE serial=typed]"));
}

void tst_melvoxUiAntennaIdentification::showsWhatTheDialogSentOnceTheReceiverTookIt()
{
    melvoxUiAntennaIdentification_t page(device);
    reportEverything();
    tree(&page)->setCurrentItem(tree(&page)->topLevelItem(1));
    tap(&page, "Configure");
    QWidget* const dialog = page.findChild<melvoxUiAntennaConfigDialog_t*>();
    type(dialog, "serialNumberLineEdit", "new");
    choose(dialog, "useAdjustmentsCombo", "Yes");
    type(dialog, "radiusLineEdit", "00333");
    tap(dialog, "OK");
    QCOMPARE(tree(&page)->topLevelItem(1)->text(2), QString("s2"));
    QCOMPARE(receiver->messages().size(), 2);
    receiver->report("antennaInfo", receiver->messages().at(0).value);
    receiver->report("antennaHeight", receiver->messages().at(1).value);
    QCOMPARE(row(&page, 0),
             melvoxAntennaName(MELVOX_ANTENNA_FIRST) + "|TRM55971.00     NONE|s1|11|" + YesString + "|1234.5|-10");
    QCOMPARE(row(&page, 1),
             melvoxAntennaName(MELVOX_ANTENNA_SECOND) + "|NAX3G+C         NONE|new|255|" + YesString + "|-200|333");
}

void tst_melvoxUiAntennaIdentification::takesItsDialogAlong()
{
    melvoxUiAntennaIdentification_t* const page = new melvoxUiAntennaIdentification_t(device);
    QPointer<QWidget> const dialog(page->findChild<melvoxUiAntennaConfigDialog_t*>());
    QVERIFY(dialog);
    delete page;
    QVERIFY(!dialog);
    reportEverything(); // nobody listens any more
}

QTEST_MAIN(tst_melvoxUiAntennaIdentification)
#include "tst_melvoxUiAntennaIdentification.moc"
