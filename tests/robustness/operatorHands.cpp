#include "operatorHands.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QTest>
#include <QTreeWidget>

#include <algorithm>

namespace melvox_robustness
{

namespace
{

int const LONG_TEXT = 500;

QString anyKeys(dice_t& dice)
{
    static QString const texts[] = {QString(),
                                    "0",
                                    "1",
                                    "9",
                                    "12.5",
                                    "60.1",
                                    "-5",
                                    "00000000",
                                    "99999999",
                                    "24:01",
                                    "1e999",
                                    "192.168.0.1",
                                    "300.1.2.3",
                                    "....",
                                    "65536",
                                    " ",
                                    "Base %1 <b>x</b>",
                                    QString::fromUtf8("\xc3\xa9\xe2\x82\xac\xf0\x9f\x98\x80"),
                                    QString(LONG_TEXT, '7')};
    return dice.chance(30) ? QString::number(qlonglong(dice.roll() % 2000)) : dice.oneOf(texts);
}

QString nameOf(QWidget const* widget)
{
    QAbstractButton const* const button = qobject_cast<QAbstractButton const*>(widget);
    QString const name = widget->objectName();
    return button && name.isEmpty() ? '"' + button->text() + '"' : name;
}

QString typeInto(dice_t& dice, QLineEdit* edit)
{
    QString const keys = anyKeys(dice);
    if (dice.chance(5))
    {
        QTest::mouseClick(edit, Qt::LeftButton);
        return "touches " + nameOf(edit);
    }
    // As if pasted: the mask and the validator have their say.
    edit->selectAll();
    edit->insert(keys);
    return "types \"" + keys.left(40) + "\" into " + nameOf(edit);
}

QString chooseIn(dice_t& dice, QComboBox* combo)
{
    int const index = dice.choice(combo->count());
    combo->setCurrentIndex(index);
    return QString("chooses item %1 of %2").arg(index).arg(nameOf(combo));
}

QString selectIn(dice_t& dice, QTreeWidget* tree)
{
    if (dice.chance(20))
    {
        int const column = dice.choice(tree->columnCount());
        if (tree->isSortingEnabled())
            tree->sortByColumn(column, dice.chance(50) ? Qt::AscendingOrder : Qt::DescendingOrder);
        return QString("sorts %1 by column %2").arg(nameOf(tree)).arg(column);
    }
    int const row = dice.choice(tree->topLevelItemCount());
    QTreeWidgetItem* const item = tree->topLevelItem(row);
    if (!item)
        return "finds no row in " + nameOf(tree);
    if (dice.chance(10))
    {
        tree->clearSelection();
        return "selects nothing in " + nameOf(tree);
    }
    tree->setCurrentItem(item);
    item->setSelected(true);
    if (!dice.chance(20))
        return QString("selects row %1 of %2").arg(row).arg(nameOf(tree));
    emit tree->itemDoubleClicked(item, 0);
    return QString("double clicks row %1 of %2").arg(row).arg(nameOf(tree));
}

bool canBeTouched(QWidget const* widget)
{
    if (!widget->isEnabled() || !widget->isVisible())
        return false;
    if (QLineEdit const* edit = qobject_cast<QLineEdit const*>(widget))
        return !edit->isReadOnly();
    return qobject_cast<QAbstractButton const*>(widget) || qobject_cast<QComboBox const*>(widget) ||
           qobject_cast<QTreeWidget const*>(widget);
}

} // namespace

QString touchSomething(dice_t& dice, QWidget* root)
{
    QList<QWidget*> all = root->findChildren<QWidget*>();
    all.erase(std::remove_if(all.begin(), all.end(), [](QWidget const* widget) { return !canBeTouched(widget); }),
              all.end());
    if (all.isEmpty())
        return "finds nothing to touch in " + root->objectName();
    QWidget* const widget = all.at(dice.choice(all.size()));
    if (QLineEdit* edit = qobject_cast<QLineEdit*>(widget))
        return typeInto(dice, edit);
    if (QComboBox* combo = qobject_cast<QComboBox*>(widget))
        return chooseIn(dice, combo);
    if (QTreeWidget* tree = qobject_cast<QTreeWidget*>(widget))
        return selectIn(dice, tree);
    QString const done = "taps " + nameOf(widget);
    static_cast<QAbstractButton*>(widget)->click();
    return done;
}

QString chooseFile(dice_t& dice, QFileDialog* dialog, QString const& path)
{
    // Where it asks back, it runs an event loop of its own.
    bool const asksBack =
        QFileInfo::exists(path) != (dialog->acceptMode() == QFileDialog::AcceptOpen) || !QFileInfo(path).dir().exists();
    if (asksBack || dice.chance(30))
    {
        dialog->reject();
        return "cancels the file dialog";
    }
    QLineEdit* const edit = dialog->findChild<QLineEdit*>("fileNameEdit");
    edit->setText(path);
    QTest::keyClick(edit, Qt::Key_Return);
    return "chooses " + path;
}

} // namespace melvox_robustness
