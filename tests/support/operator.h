#ifndef MELVOX_TEST_OPERATOR_H
#define MELVOX_TEST_OPERATOR_H

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QStringList>
#include <QTreeWidget>
#include <QVariant>

/** An operator's hands and eyes. What cannot be found or touched ends the test with a list of what there is. */
namespace melvox_test
{

QObject* findObject(QObject* root, char const* className, QString const& name);

/** The widget of that object name. */
template <typename widget_t> widget_t* find(QObject* root, QString const& name)
{
    return static_cast<widget_t*>(findObject(root, widget_t::staticMetaObject.className(), name));
}

/** Replaces the text of an enabled line edit, key by key; its input mask and validator have their say. */
void type(QWidget* root, QString const& lineEditName, QString const& keys);

/** Chooses an item of an enabled combo box by its text. */
void choose(QWidget* root, QString const& comboName, QString const& item);

/** Presses an enabled button, named by its text or its object name. */
void tap(QWidget* root, QString const& button);
QAbstractButton* button(QWidget* root, QString const& button);

QString labelText(QWidget* root, QString const& labelName);
QString editText(QWidget* root, QString const& lineEditName);
QString chosen(QWidget* root, QString const& comboName); //!< "" when nothing is
bool isEnabled(QWidget* root, QString const& widgetName);

/** The texts of one row of a tree, or of its header. */
QStringList rowTexts(QTreeWidget* tree, int row);
QStringList headerTexts(QTreeWidget* tree);

/** The message box that is open now, null when there is none. */
QMessageBox* openBox();
/** The text of the message box that is open now, which is then closed; empty when none is open. */
QString reportedErrors();
/** Presses a button of the message box that is open now. */
void answer(QMessageBox::StandardButton button);
/** Closes the message box that is open now by its window, not by a button. */
void closeBox();

/** For values of messages: map("type", 1, "enabled", true). */
QVariantMap map();
template <typename... more_t> QVariantMap map(char const* key, QVariant const& value, more_t const&... more)
{
    QVariantMap result = map(more...);
    result.insert(key, value);
    return result;
}
QVariantList list();
template <typename... more_t> QVariantList list(QVariant const& value, more_t const&... more)
{
    QVariantList result = list(more...);
    result.prepend(value);
    return result;
}

} // namespace melvox_test

#endif
