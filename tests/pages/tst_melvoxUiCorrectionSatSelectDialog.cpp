#include "melvox_ui/melvoxUiCorrectionSatSelectDialog.h"

#include "support/pageTest.h"

#include <QGroupBox>
#include <QHeaderView>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

namespace
{

QVariantMap sat(int id, double longitude, int lookAngle, QString const& nets, QString const& attributes)
{
    return map("id", id, "longitude", longitude, "lookAngle", lookAngle, "net1", nets.contains('1'), "net2",
               nets.contains('2'), "flagU", attributes.contains('U'), "flagA", attributes.contains('A'), "flagC",
               attributes.contains('C'));
}

} // namespace

class tst_melvoxUiCorrectionSatSelectDialog : public melvox_test::pageTest_t
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    melvoxUiCorrectionSatSelectDialog_t* dialog;
    QTreeWidget* tree;

    void reportFour();
    void reportInUse(int id);
    QString column(int column) const;
    void select(QString const& id);
    QString selectedIds() const;
    bool okEnabled() const { return melvox_test::button(dialog, "OK")->isEnabled(); }

private slots:
    void isTitledAfterTheSatellites();
    void captionsAutoSelect();
    void offersNoAndYes();
    void namesItsColumns();
    void fitsItsColumnsToWhatTheyHold();
    void listsWhatTheReceiverAlreadyTold();
    void listsNewSatellitesAsTheyAreTold();
    void writesTheLongitude_data();
    void writesTheLongitude();
    void writesTheLookAngleInThreePlaces_data();
    void writesTheLookAngleInThreePlaces();
    void writesTheNets_data();
    void writesTheNets();
    void writesTheAttributes_data();
    void writesTheAttributes();
    void changesTheRowOfASatelliteThatChanged();
    void changesARowForEachOfItsValues_data();
    void changesARowForEachOfItsValues();
    void neverListsASatelliteTwice();
    void takesAwayASatelliteThatIsNoLongerKnown();
    void takesAwayTheSelectedSatelliteAndItsSelection();
    void keepsTheSelectionWhileTheListChanges();
    void sortsByIdAtFirst();
    void staysSortedWhenSatellitesAreAdded();
    void sortsByEveryColumn_data();
    void sortsByEveryColumn();
    void enablesTheListOnlyWithoutAutoSelect();
    void enablesOkForAutoSelectOrOneSelectedRow();
    void disablesOkAtFirst();
    void takesAutoSelectFromTheReceiver();
    void leavesAutoSelectAloneWhileTheReceiverHasNotToldIt();
    void selectsTheSatelliteInUse();
    void selectsTheSatelliteInUseAlsoWithAutoSelect();
    void selectsNothingWhenTheSatelliteInUseIsNotListed();
    void selectsNothingWhenNoSatelliteIsInUse();
    void sendsTheSelectedSatelliteAndCloses();
    void sendsAutoSelectAndCloses();
    void neitherSendsNorClosesWithoutAChoice();
    void closesWithoutSendingOnCancel();
    void asksForTheSatellites();
};

void tst_melvoxUiCorrectionSatSelectDialog::setUp()
{
    pageTest_t::setUp();
    dialog = new melvoxUiCorrectionSatSelectDialog_t(device, 0);
    tree = find<QTreeWidget>(dialog, "satTree");
}

void tst_melvoxUiCorrectionSatSelectDialog::tearDown()
{
    delete dialog;
    pageTest_t::tearDown();
}

void tst_melvoxUiCorrectionSatSelectDialog::reportFour()
{
    receiver->report("correctionSats", list(sat(30, -97.5, 41, "1", "UA"), sat(7, 25.0, 9, "2", "C"),
                                            sat(112, 143.5, 70, "12", "U"), sat(46, -15.5, 5, "", "AC")));
}

void tst_melvoxUiCorrectionSatSelectDialog::reportInUse(int id)
{
    receiver->report("correctionSatStats", map("inUse", id, "sats", QVariantList()));
}

QString tst_melvoxUiCorrectionSatSelectDialog::column(int column) const
{
    QStringList texts;
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        texts << tree->topLevelItem(i)->text(column);
    return texts.join("|");
}

void tst_melvoxUiCorrectionSatSelectDialog::select(QString const& id)
{
    QList<QTreeWidgetItem*> const found = tree->findItems(id, Qt::MatchExactly, 0);
    QCOMPARE(found.size(), 1);
    tree->setCurrentItem(found.first());
}

QString tst_melvoxUiCorrectionSatSelectDialog::selectedIds() const
{
    QStringList ids;
    for (QTreeWidgetItem const* item : tree->selectedItems())
        ids << item->text(0);
    return ids.join(",");
}

void tst_melvoxUiCorrectionSatSelectDialog::isTitledAfterTheSatellites()
{
    QCOMPARE(dialog->windowTitle(), QString("MELVOX Corrections Satellite"));
    QCOMPARE(find<QGroupBox>(dialog, "satSelectionGroup")->title(), QString("Satellite Selection"));
}

void tst_melvoxUiCorrectionSatSelectDialog::captionsAutoSelect()
{
    QCOMPARE(labelText(dialog, "autoSelectTitleLabel"), QString("Auto-Select:"));
}

void tst_melvoxUiCorrectionSatSelectDialog::offersNoAndYes()
{
    QComboBox const* const combo = find<QComboBox>(dialog, "autoSelectCombo");
    QCOMPARE(combo->count(), 2);
    QCOMPARE(combo->itemText(0), QString("No"));
    QCOMPARE(combo->itemText(1), QString("Yes"));
}

void tst_melvoxUiCorrectionSatSelectDialog::namesItsColumns()
{
    QCOMPARE(melvox_test::headerTexts(tree).join("|"), QString("ID|Longitude|Look Angle|Net|Attributes"));
}

void tst_melvoxUiCorrectionSatSelectDialog::fitsItsColumnsToWhatTheyHold()
{
    dialog->show();
    receiver->report("correctionSats", list(sat(1, 0, 0, "", "")));
    melvox_test::settle();
    int const before = tree->header()->sectionSize(0);
    tree->topLevelItem(0)->setText(0, QString(40, '8'));
    melvox_test::settle();
    QVERIFY(tree->header()->sectionSize(0) > before);
    tree->topLevelItem(0)->setText(0, "1");
    melvox_test::settle();
    QCOMPARE(tree->header()->sectionSize(0), before);
}

void tst_melvoxUiCorrectionSatSelectDialog::listsWhatTheReceiverAlreadyTold()
{
    reportFour();
    melvoxUiCorrectionSatSelectDialog_t late(device, 0);
    QTreeWidget* const lateTree = find<QTreeWidget>(&late, "satTree");
    QCOMPARE(lateTree->topLevelItemCount(), 4);
    QCOMPARE(melvox_test::rowTexts(lateTree, 0).join("|"), QString("7| 25.0E|  9|2|C"));
    QCOMPARE(melvox_test::rowTexts(lateTree, 3).join("|"), QString("112|143.5E| 70|1,2|U"));
}

void tst_melvoxUiCorrectionSatSelectDialog::listsNewSatellitesAsTheyAreTold()
{
    receiver->report("correctionSats", list(sat(30, 1, 1, "", "")));
    QCOMPARE(column(0), QString("30"));
    reportFour();
    QCOMPARE(column(0), QString("7|30|46|112"));
}

void tst_melvoxUiCorrectionSatSelectDialog::writesTheLongitude_data()
{
    QTest::addColumn<double>("degrees");
    QTest::addColumn<QString>("text");
    QTest::newRow("west") << -97.5 << " 97.5W";
    QTest::newRow("east") << 15.0 << " 15.0E";
    QTest::newRow("zero is east") << 0.0 << "  0.0E";
    QTest::newRow("a little west") << -0.1 << "  0.1W";
    QTest::newRow("three digits") << 143.5 << "143.5E";
    QTest::newRow("far west") << -180.0 << "180.0W";
    QTest::newRow("rounded") << 24.96 << " 25.0E";
}

void tst_melvoxUiCorrectionSatSelectDialog::writesTheLongitude()
{
    QFETCH(double, degrees);
    QFETCH(QString, text);
    receiver->report("correctionSats", list(sat(1, degrees, 0, "", "")));
    QCOMPARE(column(1), text);
}

void tst_melvoxUiCorrectionSatSelectDialog::writesTheLookAngleInThreePlaces_data()
{
    QTest::addColumn<int>("degrees");
    QTest::addColumn<QString>("text");
    QTest::newRow("one digit") << 5 << "  5";
    QTest::newRow("two digits") << 41 << " 41";
    QTest::newRow("three digits") << 255 << "255";
}

void tst_melvoxUiCorrectionSatSelectDialog::writesTheLookAngleInThreePlaces()
{
    QFETCH(int, degrees);
    QFETCH(QString, text);
    receiver->report("correctionSats", list(sat(1, 0, degrees, "", "")));
    QCOMPARE(column(2), text);
}

void tst_melvoxUiCorrectionSatSelectDialog::writesTheNets_data()
{
    QTest::addColumn<QString>("nets");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << ""
                          << "";
    QTest::newRow("the first") << "1"
                               << "1";
    QTest::newRow("the second") << "2"
                                << "2";
    QTest::newRow("both") << "12"
                          << "1,2";
}

void tst_melvoxUiCorrectionSatSelectDialog::writesTheNets()
{
    QFETCH(QString, nets);
    QFETCH(QString, text);
    receiver->report("correctionSats", list(sat(1, 0, 0, nets, "")));
    QCOMPARE(column(3), text);
}

void tst_melvoxUiCorrectionSatSelectDialog::writesTheAttributes_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<QString>("text");
    char const* const rows[][2] = {{"", ""},      {"U", "U"},    {"A", "A"},    {"C", "C"},
                                   {"UA", "U,A"}, {"UC", "U,C"}, {"AC", "A,C"}, {"UAC", "U,A,C"}};
    for (char const* const(&row)[2] : rows)
        QTest::newRow(qPrintable(QString("flags ") + row[0])) << QString(row[0]) << QString(row[1]);
}

void tst_melvoxUiCorrectionSatSelectDialog::writesTheAttributes()
{
    QFETCH(QString, attributes);
    QFETCH(QString, text);
    receiver->report("correctionSats", list(sat(1, 0, 0, "", attributes)));
    QCOMPARE(column(4), text);
}

void tst_melvoxUiCorrectionSatSelectDialog::changesTheRowOfASatelliteThatChanged()
{
    receiver->report("correctionSats", list(sat(1, 10, 20, "1", "U"), sat(2, 11, 21, "1", "U")));
    receiver->report("correctionSats", list(sat(1, 10, 20, "1", "U"), sat(2, -12, 22, "2", "A")));
    QCOMPARE(melvox_test::rowTexts(tree, 0).join("|"), QString("1| 10.0E| 20|1|U"));
    QCOMPARE(melvox_test::rowTexts(tree, 1).join("|"), QString("2| 12.0W| 22|2|A"));
    receiver->report("correctionSats", list(sat(1, 10, 20, "12", "U"), sat(2, -12, 22, "2", "AC")));
    QCOMPARE(melvox_test::rowTexts(tree, 0).join("|"), QString("1| 10.0E| 20|1,2|U"));
    QCOMPARE(melvox_test::rowTexts(tree, 1).join("|"), QString("2| 12.0W| 22|2|A,C"));
}

void tst_melvoxUiCorrectionSatSelectDialog::changesARowForEachOfItsValues_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("row");
    QTest::newRow("longitude") << "longitude" << QVariant(-12.0) << "1| 12.0W| 20||";
    QTest::newRow("look angle") << "lookAngle" << QVariant(21) << "1| 10.0E| 21||";
    QTest::newRow("net 1") << "net1" << QVariant(true) << "1| 10.0E| 20|1|";
    QTest::newRow("net 2") << "net2" << QVariant(true) << "1| 10.0E| 20|2|";
    QTest::newRow("flag U") << "flagU" << QVariant(true) << "1| 10.0E| 20||U";
    QTest::newRow("flag A") << "flagA" << QVariant(true) << "1| 10.0E| 20||A";
    QTest::newRow("flag C") << "flagC" << QVariant(true) << "1| 10.0E| 20||C";
}

void tst_melvoxUiCorrectionSatSelectDialog::changesARowForEachOfItsValues()
{
    QFETCH(QString, field);
    QFETCH(QVariant, value);
    QFETCH(QString, row);
    QVariantMap changing = sat(1, 10, 20, "", "");
    receiver->report("correctionSats", list(changing));
    changing[field] = value;
    receiver->report("correctionSats", list(changing));
    QCOMPARE(melvox_test::rowTexts(tree, 0).join("|"), row);
}

void tst_melvoxUiCorrectionSatSelectDialog::neverListsASatelliteTwice()
{
    reportFour();
    reportFour();
    QCOMPARE(column(0), QString("7|30|46|112"));
}

void tst_melvoxUiCorrectionSatSelectDialog::takesAwayASatelliteThatIsNoLongerKnown()
{
    reportFour();
    receiver->report("correctionSats", list(sat(30, 1, 1, "", ""), sat(46, 1, 1, "", "")));
    QCOMPARE(column(0), QString("30|46"));
    receiver->report("correctionSats", QVariantList());
    QCOMPARE(tree->topLevelItemCount(), 0);
}

void tst_melvoxUiCorrectionSatSelectDialog::takesAwayTheSelectedSatelliteAndItsSelection()
{
    reportFour();
    select("30");
    QVERIFY(okEnabled());
    receiver->report("correctionSats", list(sat(7, 1, 1, "", ""), sat(46, 1, 1, "", "")));
    QCOMPARE(column(0), QString("7|46"));
    QCOMPARE(selectedIds(), QString());
    QVERIFY(!okEnabled());
}

void tst_melvoxUiCorrectionSatSelectDialog::keepsTheSelectionWhileTheListChanges()
{
    reportFour();
    select("46");
    receiver->report("correctionSats",
                     list(sat(7, 1, 1, "", ""), sat(46, 2, 2, "1", "C"), sat(45, 3, 3, "", ""), sat(9, 3, 3, "", "")));
    QCOMPARE(selectedIds(), QString("46"));
    QVERIFY(okEnabled());
}

void tst_melvoxUiCorrectionSatSelectDialog::sortsByIdAtFirst()
{
    receiver->report("correctionSats", list(sat(100, 1, 1, "", ""), sat(9, 1, 1, "", ""), sat(11, 1, 1, "", "")));
    QCOMPARE(column(0), QString("9|11|100"));
    QCOMPARE(tree->header()->sortIndicatorSection(), 0);
    QCOMPARE(tree->header()->sortIndicatorOrder(), Qt::AscendingOrder);
}

void tst_melvoxUiCorrectionSatSelectDialog::staysSortedWhenSatellitesAreAdded()
{
    reportFour();
    tree->sortItems(1, Qt::DescendingOrder);
    QCOMPARE(column(0), QString("112|7|46|30"));
    receiver->report("correctionSats", list(sat(30, -97.5, 1, "", ""), sat(50, 20, 1, "", ""), sat(7, 25, 1, "", "")));
    QCOMPARE(column(0), QString("7|50|30"));
}

void tst_melvoxUiCorrectionSatSelectDialog::sortsByEveryColumn_data()
{
    QTest::addColumn<int>("by");
    QTest::addColumn<QString>("ids");
    QTest::newRow("id, as a number") << 0 << "7|30|46|112";
    QTest::newRow("longitude, west first") << 1 << "30|46|7|112";
    QTest::newRow("look angle, as a number") << 2 << "46|7|30|112";
    QTest::newRow("net, none first") << 3 << "46|30|112|7";
    QTest::newRow("attributes, as text") << 4 << "46|7|112|30";
}

void tst_melvoxUiCorrectionSatSelectDialog::sortsByEveryColumn()
{
    QFETCH(int, by);
    QFETCH(QString, ids);
    reportFour();
    tree->sortItems(by, Qt::AscendingOrder);
    QCOMPARE(column(0), ids);
}

void tst_melvoxUiCorrectionSatSelectDialog::enablesTheListOnlyWithoutAutoSelect()
{
    QVERIFY(tree->isEnabled());
    choose(dialog, "autoSelectCombo", "Yes");
    QVERIFY(!tree->isEnabled());
    choose(dialog, "autoSelectCombo", "No");
    QVERIFY(tree->isEnabled());
}

void tst_melvoxUiCorrectionSatSelectDialog::enablesOkForAutoSelectOrOneSelectedRow()
{
    reportFour();
    QVERIFY(!okEnabled());
    choose(dialog, "autoSelectCombo", "Yes");
    QVERIFY(okEnabled());
    choose(dialog, "autoSelectCombo", "No");
    QVERIFY(!okEnabled());
    select("7");
    QVERIFY(okEnabled());
    tree->clearSelection();
    QVERIFY(!okEnabled());
    tree->setSelectionMode(QAbstractItemView::MultiSelection);
    tree->topLevelItem(0)->setSelected(true);
    QVERIFY(okEnabled());
    tree->topLevelItem(1)->setSelected(true);
    QVERIFY(!okEnabled());
}

void tst_melvoxUiCorrectionSatSelectDialog::disablesOkAtFirst()
{
    QVERIFY(!okEnabled());
}

void tst_melvoxUiCorrectionSatSelectDialog::takesAutoSelectFromTheReceiver()
{
    receiver->report("correctionSatSelection", map("auto", true, "id", 0));
    QCOMPARE(chosen(dialog, "autoSelectCombo"), QString("No"));
    dialog->setStateFromDevice();
    QCOMPARE(chosen(dialog, "autoSelectCombo"), QString("Yes"));
    receiver->report("correctionSatSelection", map("auto", false, "id", 7));
    dialog->setAutoSelectFromDevice();
    QCOMPARE(chosen(dialog, "autoSelectCombo"), QString("No"));
}

void tst_melvoxUiCorrectionSatSelectDialog::leavesAutoSelectAloneWhileTheReceiverHasNotToldIt()
{
    choose(dialog, "autoSelectCombo", "Yes");
    dialog->setStateFromDevice();
    QCOMPARE(chosen(dialog, "autoSelectCombo"), QString("Yes"));
}

void tst_melvoxUiCorrectionSatSelectDialog::selectsTheSatelliteInUse()
{
    reportFour();
    reportInUse(46);
    select("7");
    dialog->setStateFromDevice();
    QCOMPARE(selectedIds(), QString("46"));
    QVERIFY(okEnabled());
}

void tst_melvoxUiCorrectionSatSelectDialog::selectsTheSatelliteInUseAlsoWithAutoSelect()
{
    reportFour();
    reportInUse(46);
    receiver->report("correctionSatSelection", map("auto", true, "id", 0));
    dialog->setStateFromDevice();
    QVERIFY(!tree->isEnabled());
    QCOMPARE(selectedIds(), QString("46"));
    choose(dialog, "autoSelectCombo", "No");
    QVERIFY(okEnabled());
}

void tst_melvoxUiCorrectionSatSelectDialog::selectsNothingWhenTheSatelliteInUseIsNotListed()
{
    reportFour();
    reportInUse(47);
    select("7");
    dialog->setStateFromDevice();
    QCOMPARE(selectedIds(), QString());
    QVERIFY(!okEnabled());
}

void tst_melvoxUiCorrectionSatSelectDialog::selectsNothingWhenNoSatelliteIsInUse()
{
    receiver->report("correctionSats", list(sat(0, 0, 0, "", ""), sat(7, 0, 0, "", "")));
    reportInUse(0);
    select("7");
    dialog->setSelectedSatFromDevice();
    QCOMPARE(selectedIds(), QString());
}

void tst_melvoxUiCorrectionSatSelectDialog::sendsTheSelectedSatelliteAndCloses()
{
    reportFour();
    dialog->show();
    select("112");
    tap(dialog, "OK");
    QCOMPARE(receiver->commands(), QStringList("correctionSatSelection auto=false id=112"));
    QVERIFY(!dialog->isVisible());
}

void tst_melvoxUiCorrectionSatSelectDialog::sendsAutoSelectAndCloses()
{
    reportFour();
    dialog->show();
    select("112");
    choose(dialog, "autoSelectCombo", "Yes");
    tap(dialog, "OK");
    QCOMPARE(receiver->commands().size(), 1);
    QVERIFY(receiver->commands().first().startsWith("correctionSatSelection auto=true"));
    QVERIFY(!dialog->isVisible());
}

void tst_melvoxUiCorrectionSatSelectDialog::neitherSendsNorClosesWithoutAChoice()
{
    reportFour();
    dialog->show();
    dialog->submit();
    QVERIFY(receiver->commands().isEmpty());
    QVERIFY(dialog->isVisible());
}

void tst_melvoxUiCorrectionSatSelectDialog::closesWithoutSendingOnCancel()
{
    reportFour();
    dialog->show();
    select("112");
    tap(dialog, "Cancel");
    QVERIFY(receiver->sent().isEmpty());
    QVERIFY(!dialog->isVisible());
}

void tst_melvoxUiCorrectionSatSelectDialog::asksForTheSatellites()
{
    dialog->show();
    tap(dialog, "Query");
    QCOMPARE(receiver->sent().join(";").trimmed(), QString("request correctionSats"));
    QVERIFY(dialog->isVisible());
}

QTEST_MAIN(tst_melvoxUiCorrectionSatSelectDialog)
#include "tst_melvoxUiCorrectionSatSelectDialog.moc"
