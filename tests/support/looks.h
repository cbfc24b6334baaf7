#ifndef MELVOX_TEST_LOOKS_H
#define MELVOX_TEST_LOOKS_H

#include "support/operator.h"

#include <QDialogButtonBox>
#include <QHeaderView>

namespace melvox_test
{

/** The texts of a button box's buttons in the action role, in their order. */
inline QStringList actionTexts(QWidget* root, QString const& boxName)
{
    QDialogButtonBox* const box = find<QDialogButtonBox>(root, boxName);
    QStringList texts;
    for (QAbstractButton* button : box->buttons())
    {
        if (box->buttonRole(button) == QDialogButtonBox::ActionRole)
            texts << button->text();
    }
    return texts;
}

/** Whether a column of a tree on the screen is wide enough for what stands in it. */
inline bool showsColumn(QTreeWidget* tree, int column)
{
    QAbstractItemView const* const view = tree;
    return tree->header()->sectionSize(column) >= view->sizeHintForColumn(column);
}

} // namespace melvox_test

#endif
