#include "display/actionPlayer.h"

#include "display/dialogHost.h"
#include "display/displayWindow.h"
#include "display/lineEntry.h"
#include "display/screen.h"
#include "display/widgetPath.h"
#include "link/secrets.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFocusEvent>
#include <QMessageBox>
#include <QStringList>

namespace melvox_display
{

namespace
{

QString namesIn(QWidget* root)
{
    QStringList names;
    for (QWidget* widget : root->findChildren<QWidget*>())
    {
        bool const isOperated = qobject_cast<QAbstractButton*>(widget) || qobject_cast<QLineEdit*>(widget) ||
                                qobject_cast<QComboBox*>(widget) || qobject_cast<QAbstractItemView*>(widget);
        if (isOperated && widget->isVisible())
            names << pathOf(root, widget);
    }
    return names.join(", ");
}

QModelIndex indexAt(QAbstractItemView const* view, QList<int> const& row)
{
    QModelIndex index;
    for (int number : row)
        index = view->model()->index(number, 0, index);
    return index;
}

QMessageBox* openBox(screen_t* screen)
{
    if (QMessageBox* box = qobject_cast<QMessageBox*>(screen->dialogs()->currentCard()))
        return box;
    for (QWidget* widget : QApplication::topLevelWidgets())
    {
        QMessageBox* box = qobject_cast<QMessageBox*>(widget);
        if (box && box->isVisible())
            return box;
    }
    return nullptr;
}

QFileDialog* openFileDialog()
{
    for (QWidget* widget : QApplication::topLevelWidgets())
    {
        QFileDialog* dialog = qobject_cast<QFileDialog*>(widget);
        if (dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

/** The toolkit would ask or complain in a box that stops everything. */
bool canTake(QFileDialog const* dialog, QString const& path, QString& reason)
{
    bool const isToRead = dialog->acceptMode() == QFileDialog::AcceptOpen;
    if (isToRead && !QFileInfo(path).isFile())
        reason = QString("there is no file \"%1\" on this machine").arg(QDir::toNativeSeparators(path));
    else if (!isToRead && (QFileInfo::exists(path) || !QFileInfo(path).dir().exists()))
        reason = QString("the file \"%1\" cannot be made: it is there already, or its folder is not")
                     .arg(QDir::toNativeSeparators(path));
    return reason.isEmpty();
}

} // namespace

actionPlayer_t::actionPlayer_t(displayWindow_t* window) : m_window(window)
{
}

screen_t* actionPlayer_t::screen() const
{
    return m_window->screen();
}

bool actionPlayer_t::perform(action_t const& action, QString& reason)
{
    reason.clear();
    switch (action.kind)
    {
    case action_t::PAGE:
        return showPage(action, reason);
    case action_t::LEAVE:
        leave();
        return true;
    case action_t::ANSWER:
        return answer(action, reason);
    case action_t::BACK:
    case action_t::CLOSE:
        return closeDialog(action, reason);
    case action_t::CHOOSE_FILE:
        return chooseFile(action, reason);
    case action_t::TAP:
    case action_t::TYPE:
    case action_t::CHOOSE:
    case action_t::SELECT:
    case action_t::OPEN:
        break;
    }
    return operate(action, reason);
}

bool actionPlayer_t::showPage(action_t const& action, QString& reason)
{
    if (!screen()->showPage(action.page))
        reason = QString("the page \"%1\" cannot be shown").arg(action.page);
    return reason.isEmpty();
}

bool actionPlayer_t::answer(action_t const& action, QString& reason)
{
    QMessageBox* box = openBox(screen());
    if (!box || box->text() != action.text)
    {
        reason = box ? QString("the message box says \"%1\", not \"%2\"")
                           .arg(box->text().simplified(), action.text.simplified())
                     : QString("there is no message box that says \"%1\"").arg(action.text.simplified());
        return false;
    }
    QStringList names;
    for (QAbstractButton* button : box->buttons())
    {
        names << buttonName(button);
        if (names.last() != action.button)
            continue;
        button->click();
        return true;
    }
    reason = QString("the message box has no button \"%1\", only %2").arg(action.button, names.join(", "));
    return false;
}

bool actionPlayer_t::closeDialog(action_t const& action, QString& reason)
{
    QDialog* dialog = screen()->dialogs()->currentDialog();
    bool const isMeant = dialog && (action.kind == action_t::BACK || dialog->objectName() == action.dialog);
    if (isMeant)
        dialog->reject();
    else
        reason = action.kind == action_t::BACK ? QString("no dialog is shown to go back from")
                                               : QString("the dialog \"%1\" is not shown").arg(action.dialog);
    return isMeant;
}

bool actionPlayer_t::chooseFile(action_t const& action, QString& reason)
{
    QFileDialog* dialog = openFileDialog();
    if (!dialog)
        reason = "no file dialog is open";
    else if (action.text.isEmpty())
        dialog->reject();
    else if (canTake(dialog, action.text, reason))
    {
        // selectFile() leaves a name alone that has the focus.
        if (QLineEdit* name = dialog->findChild<QLineEdit*>("fileNameEdit"))
            name->setText(action.text);
        QMetaObject::invokeMethod(dialog, "accept");
    }
    return reason.isEmpty();
}

QWidget* actionPlayer_t::rootOf(action_t const& action, QString& reason) const
{
    QDialog* dialog = screen()->dialogs()->currentDialog();
    QString const shown = dialog ? dialog->objectName() : QString();
    if (QDialog* card = screen()->dialogs()->currentCard())
    {
        QMessageBox* box = qobject_cast<QMessageBox*>(card);
        reason =
            QString("a message box is in the way: \"%1\"").arg(box ? box->text().simplified() : card->windowTitle());
    }
    else if (screen()->currentPage() != action.page)
        reason = QString("the page \"%1\" is not shown, but \"%2\"").arg(action.page, screen()->currentPage());
    else if (shown != action.dialog)
        reason = action.dialog.isEmpty() ? QString("the dialog \"%1\" is in the way").arg(shown)
                                         : QString("the dialog \"%1\" is not shown").arg(action.dialog);
    if (!reason.isEmpty())
        return nullptr;
    return dialog ? dialog : screen()->page(action.page);
}

QWidget* actionPlayer_t::target(action_t const& action, QString& reason) const
{
    QWidget* root = rootOf(action, reason);
    if (!root)
        return nullptr;
    QString const place = action.dialog.isEmpty() ? "page \"" + action.page : "dialog \"" + action.dialog;
    QWidget* widget = findWidget(root, action.widget);
    if (!widget)
        reason = QString("there is no \"%1\" on the %2\"; there are: %3").arg(action.widget, place, namesIn(root));
    else if (!widget->isVisible())
        reason = QString("\"%1\" on the %2\" is not shown").arg(action.widget, place);
    else if (!widget->isEnabled())
        reason = QString("\"%1\" on the %2\" is disabled").arg(action.widget, place);
    return reason.isEmpty() ? widget : nullptr;
}

bool actionPlayer_t::operate(action_t const& action, QString& reason)
{
    QWidget* widget = target(action, reason);
    if (!widget)
        return false;
    switch (action.kind)
    {
    case action_t::TYPE:
        return type(action, widget, reason);
    case action_t::CHOOSE:
        return choose(action, widget, reason);
    case action_t::SELECT:
    case action_t::OPEN:
        return select(action, widget, reason);
    default:
        return tap(widget, reason);
    }
}

bool actionPlayer_t::tap(QWidget* widget, QString& reason)
{
    if (QAbstractButton* button = qobject_cast<QAbstractButton*>(widget))
        button->click();
    else
        reason = QString("\"%1\" is no button").arg(widget->objectName());
    return reason.isEmpty();
}

bool actionPlayer_t::type(action_t const& action, QWidget* widget, QString& reason)
{
    QPointer<QLineEdit> const edit = qobject_cast<QLineEdit*>(widget);
    if (!edit || edit->isReadOnly())
    {
        reason = QString("\"%1\" cannot be typed into").arg(action.widget);
        return false;
    }
    if (m_edit != edit)
        leave();
    m_edit = edit;
    edit->setFocus(Qt::MouseFocusReason);
    lineEntry_t::replace(edit, action.isSecret ? QString(melvox_link::SECRET_TEXT) : action.text);
    if (edit && !action.isSecret && lineEntry_t::wholeText(edit) != action.text)
        reason =
            QString("\"%1\" took \"%2\", not \"%3\"").arg(action.widget, lineEntry_t::wholeText(edit), action.text);
    return reason.isEmpty();
}

void actionPlayer_t::leave()
{
    QPointer<QLineEdit> const edit = m_edit;
    m_edit.clear();
    if (!edit)
        return;
    bool const hadFocus = edit->hasFocus();
    edit->clearFocus();
    // In a window that is not the active one nothing has the focus, and nothing is told that it is left.
    if (edit && !hadFocus)
    {
        QFocusEvent out(QEvent::FocusOut, Qt::OtherFocusReason);
        QApplication::sendEvent(edit, &out);
    }
}

bool actionPlayer_t::choose(action_t const& action, QWidget* widget, QString& reason)
{
    QComboBox* combo = qobject_cast<QComboBox*>(widget);
    int const index = combo ? combo->findText(action.text) : -1;
    if (index >= 0)
    {
        combo->setCurrentIndex(index);
        emit combo->activated(index);
        return true;
    }
    QStringList items;
    for (int i = 0; combo && i < combo->count(); ++i)
        items << combo->itemText(i);
    reason = QString("\"%1\" has no item \"%2\", only: %3").arg(action.widget, action.text, items.join(", "));
    return false;
}

bool actionPlayer_t::select(action_t const& action, QWidget* widget, QString& reason)
{
    QAbstractItemView* view = qobject_cast<QAbstractItemView*>(widget);
    QModelIndex index = view ? indexAt(view, action.row) : QModelIndex();
    if (view && index.data().toString() != action.text)
    {
        // Rows may have come in another order.
        QModelIndex const first = view->model()->index(0, 0);
        QModelIndexList const found =
            view->model()->match(first, Qt::DisplayRole, action.text, 1, Qt::MatchExactly | Qt::MatchRecursive);
        index = found.value(0);
    }
    if (!index.isValid())
    {
        reason = QString("\"%1\" has no row \"%2\"").arg(action.widget, action.text);
        return false;
    }
    view->scrollTo(index);
    view->setCurrentIndex(index);
    if (action.kind == action_t::OPEN)
        emit view->doubleClicked(index);
    return true;
}

} // namespace melvox_display
