#ifndef MELVOX_UI_TREE_ROWS_H
#define MELVOX_UI_TREE_ROWS_H

#include <QHeaderView>
#include <QList>
#include <QObject>
#include <QSet>
#include <QTreeWidget>

#include <map>

/** Tables that follow the receiver without a flicker. */
namespace brel_common_qt_gui
{

/** Holds back a tree's own sorting while many rows change: a sorted tree would move each row at once, at the price of
 *  looking at all the others. The tree is sorted when this goes away, and not at all if nothing began; equal rows stay
 *  in the order in which they stood. */
class sortPause_t
{
public:
    explicit sortPause_t(QTreeWidget* tree);
    ~sortPause_t();

    /** The first change is about to be made; later calls do nothing. */
    void begin();

private:
    Q_DISABLE_COPY(sortPause_t)

    QTreeWidget* m_tree;
    bool m_paused;
};

/** Turns a tree's sorting on when a header section is tapped for the first time. Until then rows stand in the order in
 *  which they came. Belongs to the tree. */
class sortOnTap_t : public QObject
{
    Q_OBJECT

public:
    explicit sortOnTap_t(QTreeWidget* tree);

private slots:
    void enable();

private:
    QTreeWidget* m_tree;
};

/** Takes these rows away, given in ascending order. No other row becomes selected in the place of one that was. */
void removeRows(QTreeWidget* tree, QList<int> const& rows);

/** The first selected row, null when there is none. Every top-level row must be a row_t. */
template <typename row_t> row_t* selectedItem(QTreeWidget const* tree)
{
    QList<QTreeWidgetItem*> const selected = tree->selectedItems();
    return selected.isEmpty() ? nullptr : static_cast<row_t*>(selected.first());
}

/** The first row of that id, null when there is none. */
template <typename row_t> row_t* findRow(QTreeWidget const* tree, unsigned int id)
{
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
    {
        row_t* const row = static_cast<row_t*>(tree->topLevelItem(i));
        if (row->id() == id)
            return row;
    }
    return nullptr;
}

/** Keeps the top-level rows of a tree in step with values by id: changes those that show something else by now, appends
 *  those that are new, in id order, and takes away those that are gone. Rows that stay the same are not touched, so
 *  selection and scroll position stay. Every top-level row must be a row_t with
 *      row_t(value, more...), unsigned int id() const, bool shows(value, more...) const, void update(value, more...). */
template <typename row_t, typename value_t, typename... more_t>
void keepInStep(QTreeWidget* tree, std::map<unsigned short, value_t> const& values, more_t const&... more)
{
    sortPause_t sorting(tree);
    QSet<unsigned int> known;
    QList<int> gone;
    auto expected = values.begin();
    // In the order of the rows: a view finds a row fast that is near the last one it was asked for.
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
    {
        row_t* const row = static_cast<row_t*>(tree->topLevelItem(i));
        // Rows mostly stand in id order; only others need a search.
        if (expected == values.end() || expected->first != row->id())
            expected = values.find(static_cast<unsigned short>(row->id()));
        if (expected == values.end() || expected->first != row->id())
        {
            gone << i;
            continue;
        }
        known.insert(row->id());
        if (!row->shows(expected->second, more...))
        {
            sorting.begin();
            row->update(expected->second, more...);
        }
        ++expected;
    }

    QList<QTreeWidgetItem*> added;
    for (auto value = values.begin(); value != values.end(); ++value)
    {
        if (!known.contains(value->first))
            added << new row_t(value->second, more...);
    }
    if (!added.isEmpty() || !gone.isEmpty())
        sorting.begin();
    tree->addTopLevelItems(added);
    removeRows(tree, gone);
}

} // namespace brel_common_qt_gui

#endif
