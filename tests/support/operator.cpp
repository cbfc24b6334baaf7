#include "support/operator.h"

#include "support/test.h"

#include <QApplication>
#include <QPushButton>

namespace melvox_test
{

namespace
{

void stop(QString const& reason)
{
    qFatal("%s", qPrintable(reason));
}

QString plainText(QAbstractButton const* button)
{
    return button->text().remove('&');
}

} // namespace

QObject* findObject(QObject* root, char const* className, QString const& name)
{
    QStringList names;
    QList<QObject*> const all = root->findChildren<QObject*>();
    for (int i = 0; i < all.size(); ++i)
    {
        if (!all.at(i)->inherits(className))
            continue;
        if (all.at(i)->objectName() == name)
            return all.at(i);
        if (!all.at(i)->objectName().isEmpty())
            names << all.at(i)->objectName();
    }
    stop(QString("there is no %1 \"%2\"; there are: %3").arg(className, name, names.join(", ")));
    return 0;
}

void type(QWidget* root, QString const& lineEditName, QString const& keys)
{
    QLineEdit* const edit = find<QLineEdit>(root, lineEditName);
    if (!edit->isEnabled() || edit->isReadOnly())
        stop(QString("\"%1\" cannot be edited now").arg(lineEditName));
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_Delete);
    QTest::keyClick(edit, Qt::Key_Home);
    QTest::keyClicks(edit, keys);
}

void choose(QWidget* root, QString const& comboName, QString const& item)
{
    QComboBox* const combo = find<QComboBox>(root, comboName);
    if (!combo->isEnabled())
        stop(QString("\"%1\" cannot be changed now").arg(comboName));
    int const index = combo->findText(item);
    if (index < 0)
    {
        QStringList items;
        for (int i = 0; i < combo->count(); ++i)
            items << combo->itemText(i);
        stop(QString("\"%1\" has no item \"%2\"; it has: %3").arg(comboName, item, items.join(", ")));
    }
    combo->setCurrentIndex(index);
}

QAbstractButton* button(QWidget* root, QString const& name)
{
    QStringList names;
    QList<QAbstractButton*> const all = root->findChildren<QAbstractButton*>();
    for (int i = 0; i < all.size(); ++i)
    {
        if (plainText(all.at(i)) == name || all.at(i)->objectName() == name)
            return all.at(i);
        names << plainText(all.at(i));
    }
    stop(QString("there is no button \"%1\"; there are: %2").arg(name, names.join(", ")));
    return 0;
}

void tap(QWidget* root, QString const& name)
{
    QAbstractButton* const found = button(root, name);
    if (!found->isEnabled())
        stop(QString("the button \"%1\" is disabled").arg(name));
    found->click();
}

QString labelText(QWidget* root, QString const& labelName)
{
    return find<QLabel>(root, labelName)->text();
}

QString editText(QWidget* root, QString const& lineEditName)
{
    return find<QLineEdit>(root, lineEditName)->text();
}

QString chosen(QWidget* root, QString const& comboName)
{
    return find<QComboBox>(root, comboName)->currentText();
}

bool isEnabled(QWidget* root, QString const& widgetName)
{
    return find<QWidget>(root, widgetName)->isEnabled();
}

QStringList rowTexts(QTreeWidget* tree, int row)
{
    QTreeWidgetItem const* const item = tree->topLevelItem(row);
    if (!item)
        stop(QString("the table has no row %1, only %2 rows").arg(row).arg(tree->topLevelItemCount()));
    QStringList texts;
    for (int column = 0; column < tree->columnCount(); ++column)
        texts << item->text(column);
    return texts;
}

QStringList headerTexts(QTreeWidget* tree)
{
    QStringList texts;
    for (int column = 0; column < tree->columnCount(); ++column)
        texts << tree->headerItem()->text(column);
    return texts;
}

QMessageBox* openBox()
{
    // All widgets: a host may show a box within its own window.
    QWidgetList const all = QApplication::allWidgets();
    for (int i = 0; i < all.size(); ++i)
    {
        QMessageBox* const box = qobject_cast<QMessageBox*>(all.at(i));
        if (box && box->isVisible())
            return box;
    }
    return 0;
}

QString reportedErrors()
{
    QMessageBox* const box = openBox();
    if (!box)
        return QString();
    QString const text = box->text();
    closeBox();
    return text;
}

void answer(QMessageBox::StandardButton standardButton)
{
    QMessageBox* const box = openBox();
    if (!box || !box->button(standardButton))
        stop("no message box with that button is open");
    box->button(standardButton)->click();
    settle();
}

void closeBox()
{
    QMessageBox* const box = openBox();
    if (!box)
        stop("no message box is open");
    box->done(0); // what the window's own button does
    settle();
}

QVariantMap map()
{
    return QVariantMap();
}

QVariantList list()
{
    return QVariantList();
}

} // namespace melvox_test
