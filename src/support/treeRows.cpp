#include "support/treeRows.h"

#include <QItemSelectionModel>

namespace brel_common_qt_gui
{

namespace
{

/** Whether rows count as less than their like. A sort then turns equal rows round. */
bool turnsEqualRowsRound(QTreeWidget const* tree)
{
    QTreeWidgetItem const* const row = tree->topLevelItem(0);
    return row && *row < *row;
}

} // namespace

sortPause_t::sortPause_t(QTreeWidget* tree) : m_tree(tree), m_paused(false)
{
}

sortPause_t::~sortPause_t()
{
    if (!m_paused)
        return;
    m_tree->setSortingEnabled(true);
    // Else equal rows would change places at every refresh; a second turn puts them back.
    if (turnsEqualRowsRound(m_tree))
        m_tree->model()->sort(m_tree->sortColumn(), m_tree->header()->sortIndicatorOrder());
}

void sortPause_t::begin()
{
    if (!m_tree->isSortingEnabled())
        return;
    m_paused = true;
    m_tree->setSortingEnabled(false);
}

sortOnTap_t::sortOnTap_t(QTreeWidget* tree) : QObject(tree), m_tree(tree)
{
    QHeaderView* const header = tree->header();
#if QT_VERSION >= 0x050000
    header->setSectionsClickable(true);
#else
    header->setClickable(true);
#endif
    connect(header, SIGNAL(sectionClicked(int)), SLOT(enable()));
}

void sortOnTap_t::enable()
{
    if (!m_tree->isSortingEnabled())
        m_tree->setSortingEnabled(true);
}

void removeRows(QTreeWidget* tree, QList<int> const& rows)
{
    for (int i = rows.size() - 1; i >= 0; --i)
    {
        QTreeWidgetItem* const row = tree->topLevelItem(rows.at(i));
        // A tree whose current row goes away selects the one beside it, which the operator never chose.
        if (tree->currentItem() == row)
            tree->selectionModel()->setCurrentIndex(QModelIndex(), QItemSelectionModel::NoUpdate);
        row->setSelected(false);
        delete tree->takeTopLevelItem(rows.at(i));
    }
}

} // namespace brel_common_qt_gui
