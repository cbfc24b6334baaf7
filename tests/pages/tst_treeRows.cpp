#include "support/treeRows.h"

#include "support/test.h"

#include <QScrollBar>

#include <vector>

using namespace brel_common_qt_gui;

namespace
{

struct value_t
{
    unsigned int id;
    int number;
};

typedef std::map<unsigned short, value_t> values_t;

int updates = 0;

/** Shows its number times a factor. */
class row_t : public QTreeWidgetItem
{
public:
    row_t(value_t const& value, int factor) { update(value, factor); }

    bool operator<(QTreeWidgetItem const& other) const override
    {
        row_t const& row = static_cast<row_t const&>(other);
        return treeWidget()->sortColumn() == 0 ? m_id < row.m_id : m_number < row.m_number;
    }

    unsigned int id() const { return m_id; }
    bool shows(value_t const& value, int factor) const { return m_number == value.number * factor; }
    void update(value_t const& value, int factor)
    {
        ++updates;
        m_id = value.id;
        m_number = value.number * factor;
        setText(0, QString::number(m_id));
        setText(1, QString::number(m_number));
    }

private:
    unsigned int m_id;
    int m_number;
};

/** Counts as less than its like. */
class reflexiveRow_t : public row_t
{
public:
    reflexiveRow_t(value_t const& value, int factor) : row_t(value, factor) {}

    bool operator<(QTreeWidgetItem const& other) const override { return text(1).toInt() >= other.text(1).toInt(); }
};

values_t values(int count, int first = 1)
{
    values_t map;
    for (int i = 0; i < count; ++i)
    {
        value_t const value = {unsigned(first + i), 10 * (first + i)};
        map[static_cast<unsigned short>(value.id)] = value;
    }
    return map;
}

QString rows(QTreeWidget const& tree)
{
    QStringList texts;
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        texts << tree.topLevelItem(i)->text(0) + ':' + tree.topLevelItem(i)->text(1);
    return texts.join(" ");
}

} // namespace

class tst_treeRows : public melvox_test::test_t
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    QTreeWidget* tree;

    void sync(values_t const& map, int factor = 1) { keepInStep<row_t>(tree, map, factor); }
    void tapHeader(int column);

private slots:
    void appendsNewRowsInIdOrder();
    void changesTheRowsThatShowSomethingElse();
    void passesOnWhatElseARowShows();
    void touchesNoRowThatStaysTheSame();
    void takesAwayTheRowsThatAreGone_data();
    void takesAwayTheRowsThatAreGone();
    void emptiesTheTreeForAnEmptyMap();
    void addsChangesAndTakesAwayAtOnce();
    void keepsUpWithRowsInAnyOrder();
    void neverTakesARowForAnotherWithTheSameLowBits();
    void keepsTheSelectedRowSelected();
    void selectsNoOtherRowWhenTheSelectedOneGoes();
    void tellsThatTheSelectionIsGone();
    void keepsTheScrollPosition();
    void neverEmptiesTheTreeOnTheWay();
    void sortsOnceHoweverManyRowsChange();
    void doesNotSortWhenNothingChanges();
    void leavesEqualRowsWhereTheyStand_data();
    void leavesEqualRowsWhereTheyStand();
    void keepsASortedTreeSorted();
    void keepsTheSelectionWhenRowsMove();
    void leavesAnUnsortedTreeUnsorted();
    void sortsFromTheFirstTapOnAHeader();
    void turnsTheOrderRoundAtTheSecondTap();
    void findsARowById();
};

void tst_treeRows::setUp()
{
    tree = new QTreeWidget;
    tree->setColumnCount(2);
    updates = 0;
}

void tst_treeRows::tearDown()
{
    delete tree;
    tree = 0;
}

void tst_treeRows::tapHeader(int column)
{
    QHeaderView* const header = tree->header();
    QPoint const middle(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                        header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, middle);
}

void tst_treeRows::appendsNewRowsInIdOrder()
{
    sync(values(1, 5));
    sync(values(7, 1));
    QCOMPARE(rows(*tree), QString("5:50 1:10 2:20 3:30 4:40 6:60 7:70"));
}

void tst_treeRows::changesTheRowsThatShowSomethingElse()
{
    values_t map = values(3);
    sync(map);
    map[2].number = 99;
    sync(map);
    QCOMPARE(rows(*tree), QString("1:10 2:99 3:30"));
    QCOMPARE(updates, 4);
}

void tst_treeRows::passesOnWhatElseARowShows()
{
    sync(values(2), 1);
    sync(values(2), 3);
    QCOMPARE(rows(*tree), QString("1:30 2:60"));
}

void tst_treeRows::touchesNoRowThatStaysTheSame()
{
    sync(values(100));
    updates = 0;
    QSignalSpy changed(tree->model(), SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    QSignalSpy laidOut(tree->model(), SIGNAL(layoutChanged()));
    sync(values(100));
    QCOMPARE(updates, 0);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(laidOut.count(), 0);
}

void tst_treeRows::takesAwayTheRowsThatAreGone_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("left");
    QTest::newRow("the first") << 2 << 3 << "2:20 3:30 4:40";
    QTest::newRow("the last") << 1 << 3 << "1:10 2:20 3:30";
    QTest::newRow("both ends") << 2 << 2 << "2:20 3:30";
    QTest::newRow("all but one") << 3 << 1 << "3:30";
}

void tst_treeRows::takesAwayTheRowsThatAreGone()
{
    QFETCH(int, first);
    QFETCH(int, count);
    QFETCH(QString, left);
    sync(values(4));
    sync(values(count, first));
    QCOMPARE(rows(*tree), left);
    QCOMPARE(updates, 4);
}

void tst_treeRows::emptiesTheTreeForAnEmptyMap()
{
    sync(values(3));
    sync(values_t());
    QCOMPARE(tree->topLevelItemCount(), 0);
    sync(values_t());
    QCOMPARE(tree->topLevelItemCount(), 0);
}

void tst_treeRows::addsChangesAndTakesAwayAtOnce()
{
    sync(values(4));
    values_t map = values(4, 3);
    map[4].number = 7;
    sync(map);
    QCOMPARE(rows(*tree), QString("3:30 4:7 5:50 6:60"));
}

void tst_treeRows::keepsUpWithRowsInAnyOrder()
{
    sync(values(6));
    tree->sortItems(0, Qt::DescendingOrder);
    values_t map = values(6, 2);
    map[5].number = 1;
    sync(map);
    QCOMPARE(rows(*tree), QString("6:60 5:1 4:40 3:30 2:20 7:70"));
}

void tst_treeRows::neverTakesARowForAnotherWithTheSameLowBits()
{
    value_t const large = {65536 + 3, 5};
    tree->addTopLevelItem(new row_t(large, 1));
    sync(values(3));
    QCOMPARE(rows(*tree), QString("1:10 2:20 3:30"));
}

void tst_treeRows::keepsTheSelectedRowSelected()
{
    values_t map = values(5);
    sync(map);
    tree->setCurrentItem(tree->topLevelItem(2));
    map.erase(1);
    map.erase(5);
    map[3].number = 1;
    map[9].id = 9;
    sync(map);
    QCOMPARE(tree->selectedItems().size(), 1);
    QCOMPARE(tree->selectedItems().first()->text(0), QString("3"));
    QCOMPARE(tree->currentItem()->text(0), QString("3"));
}

void tst_treeRows::selectsNoOtherRowWhenTheSelectedOneGoes()
{
    values_t map = values(5);
    sync(map);
    tree->setCurrentItem(tree->topLevelItem(2));
    map.erase(3);
    sync(map);
    QVERIFY(tree->selectedItems().isEmpty());
}

void tst_treeRows::tellsThatTheSelectionIsGone()
{
    sync(values(2));
    tree->setCurrentItem(tree->topLevelItem(0));
    QSignalSpy changed(tree, SIGNAL(itemSelectionChanged()));
    sync(values(1, 2));
    QCOMPARE(changed.count(), 1);
}

void tst_treeRows::keepsTheScrollPosition()
{
    tree->resize(200, 120);
    tree->show();
    values_t map = values(100);
    sync(map);
    melvox_test::settle();
    tree->verticalScrollBar()->setValue(40);
    map[45].number = 1;
    map.erase(99);
    map[200].id = 200;
    sync(map);
    melvox_test::settle();
    QCOMPARE(tree->verticalScrollBar()->value(), 40);
}

void tst_treeRows::neverEmptiesTheTreeOnTheWay()
{
    sync(values(5));
    QSignalSpy cleared(tree->model(), SIGNAL(modelReset()));
    std::vector<QTreeWidgetItem*> before;
    for (int i = 0; i < 5; ++i)
        before.push_back(tree->topLevelItem(i));
    sync(values(5), 2);
    for (int i = 0; i < 5; ++i)
        QCOMPARE(tree->topLevelItem(i), before[std::size_t(i)]);
    QCOMPARE(cleared.count(), 0);
}

void tst_treeRows::sortsOnceHoweverManyRowsChange()
{
    sync(values(50));
    tree->setSortingEnabled(true);
    tree->sortItems(1, Qt::AscendingOrder);
    QSignalSpy laidOut(tree->model(), SIGNAL(layoutChanged()));
    values_t map = values(50);
    for (values_t::iterator it = map.begin(); it != map.end(); ++it)
        it->second.number = 1000 - it->second.number;
    sync(map);
    QCOMPARE(laidOut.count(), 1);
    QCOMPARE(tree->topLevelItem(0)->text(0), QString("50"));
}

void tst_treeRows::doesNotSortWhenNothingChanges()
{
    sync(values(50));
    tree->setSortingEnabled(true);
    tree->sortItems(1, Qt::DescendingOrder);
    QSignalSpy laidOut(tree->model(), SIGNAL(layoutChanged()));
    sync(values(50));
    QCOMPARE(laidOut.count(), 0);
}

void tst_treeRows::leavesEqualRowsWhereTheyStand_data()
{
    QTest::addColumn<int>("order");
    QTest::newRow("ascending") << int(Qt::AscendingOrder);
    QTest::newRow("descending") << int(Qt::DescendingOrder);
}

void tst_treeRows::leavesEqualRowsWhereTheyStand()
{
    QFETCH(int, order);
    values_t map = values(30);
    for (values_t::iterator it = map.begin(); it != map.end(); ++it)
        it->second.number = 5;
    map[30].number = 7;
    keepInStep<reflexiveRow_t>(tree, map, 1);
    tree->setSortingEnabled(true);
    tree->sortItems(1, Qt::SortOrder(order));
    QStringList const before = rows(*tree).split(" ").filter(":5");
    QCOMPARE(before.size(), 29);
    int const others[] = {8, 3, 4, 9};
    for (int const other : others)
    {
        map[30].number = other;
        keepInStep<reflexiveRow_t>(tree, map, 1);
        QStringList const after = rows(*tree).split(" ");
        QCOMPARE(after.filter(":5"), before);
        bool const large = other > 5;
        QString const text = QString("30:%1").arg(other);
        QCOMPARE(large == (order == Qt::AscendingOrder) ? after.first() : after.last(), text);
    }
}

void tst_treeRows::keepsASortedTreeSorted()
{
    sync(values(4));
    tree->setSortingEnabled(true);
    tree->sortItems(1, Qt::DescendingOrder);
    QCOMPARE(rows(*tree), QString("4:40 3:30 2:20 1:10"));
    values_t map = values(5);
    map[1].number = 35;
    map.erase(2);
    sync(map);
    QCOMPARE(rows(*tree), QString("5:50 4:40 1:35 3:30"));
    QVERIFY(tree->isSortingEnabled());
    QCOMPARE(tree->sortColumn(), 1);
}

void tst_treeRows::keepsTheSelectionWhenRowsMove()
{
    sync(values(4));
    tree->setSortingEnabled(true);
    tree->sortItems(1, Qt::AscendingOrder);
    tree->setCurrentItem(tree->topLevelItem(0));
    values_t map = values(4);
    map[1].number = 1000;
    sync(map);
    QCOMPARE(rows(*tree), QString("2:20 3:30 4:40 1:1000"));
    QCOMPARE(tree->selectedItems().size(), 1);
    QCOMPARE(tree->selectedItems().first()->text(0), QString("1"));
}

void tst_treeRows::leavesAnUnsortedTreeUnsorted()
{
    sync(values(2, 5));
    sync(values(6, 1));
    QVERIFY(!tree->isSortingEnabled());
    QCOMPARE(rows(*tree), QString("5:50 6:60 1:10 2:20 3:30 4:40"));
}

void tst_treeRows::sortsFromTheFirstTapOnAHeader()
{
    new sortOnTap_t(tree);
    tree->resize(300, 200);
    tree->show();
    sync(values(2, 5));
    sync(values(6, 1));
    QVERIFY(!tree->isSortingEnabled());
    QVERIFY(!tree->header()->isSortIndicatorShown());
    tapHeader(1);
    QVERIFY(tree->isSortingEnabled());
    QVERIFY(tree->header()->isSortIndicatorShown());
    QCOMPARE(rows(*tree), QString("1:10 2:20 3:30 4:40 5:50 6:60"));
}

void tst_treeRows::turnsTheOrderRoundAtTheSecondTap()
{
    new sortOnTap_t(tree);
    tree->resize(300, 200);
    tree->show();
    sync(values(3));
    tapHeader(0);
    QCOMPARE(rows(*tree), QString("1:10 2:20 3:30"));
    tapHeader(0);
    QCOMPARE(rows(*tree), QString("3:30 2:20 1:10"));
    sync(values(4));
    QCOMPARE(rows(*tree), QString("4:40 3:30 2:20 1:10"));
    tapHeader(1);
    QCOMPARE(rows(*tree), QString("1:10 2:20 3:30 4:40"));
}

void tst_treeRows::findsARowById()
{
    sync(values(3, 7));
    QCOMPARE(findRow<row_t>(tree, 8u)->text(0), QString("8"));
    QVERIFY(!findRow<row_t>(tree, 10u));
    QVERIFY(!findRow<row_t>(tree, 65536u + 8));
}

QTEST_MAIN(tst_treeRows)
#include "tst_treeRows.moc"
