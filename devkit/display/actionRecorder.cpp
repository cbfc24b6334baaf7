#include "display/actionRecorder.h"

#include "display/displayWindow.h"
#include "display/keypad.h"
#include "display/lineEntry.h"
#include "display/screen.h"
#include "display/statusStrip.h"
#include "display/widgetPath.h"
#include "link/secrets.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QMouseEvent>

namespace melvox_display
{

namespace
{

QString const MENU_ENTRY = "nav_";

QList<int> rowOf(QModelIndex index)
{
    QList<int> row;
    for (; index.isValid(); index = index.parent())
        row.prepend(index.row());
    return row;
}

bool isSecret(QLineEdit const* edit)
{
    bool found = edit->echoMode() != QLineEdit::Normal;
    for (QWidget const* widget = edit; widget && !widget->isWindow(); widget = widget->parentWidget())
        found = found || melvox_link::isSecretName(widget->objectName());
    return found;
}

bool movesRows(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown ||
           key == Qt::Key_Home || key == Qt::Key_End || key == Qt::Key_Left || key == Qt::Key_Right ||
           key == Qt::Key_Space;
}

} // namespace

actionRecorder_t::actionRecorder_t(QObject* parent) : QObject(parent)
{
    qApp->installEventFilter(this);
}

actionRecorder_t::~actionRecorder_t() = default;

void actionRecorder_t::watch(displayWindow_t* window)
{
    m_window = window;
}

/** The window may get another one. */
screen_t* actionRecorder_t::screen() const
{
    return m_window ? m_window->screen() : nullptr;
}

bool actionRecorder_t::eventFilter(QObject* object, QEvent* event)
{
    if (object->isWidgetType())
        filter(static_cast<QWidget*>(object), event);
    return false;
}

void actionRecorder_t::filter(QWidget* widget, QEvent* event)
{
    switch (event->type())
    {
    case QEvent::Polish:
        attach(widget);
        break;
    case QEvent::MouseButtonPress:
        m_pressed.clear();
        m_touched = widget;
        tellRow(widget, event, action_t::SELECT);
        break;
    case QEvent::MouseButtonDblClick:
        m_pressed.clear();
        m_touched = widget;
        tellRow(widget, event, action_t::OPEN);
        break;
    case QEvent::MouseButtonRelease:
        filterRelease(widget, event);
        break;
    case QEvent::KeyPress:
        m_pressed.clear();
        m_touched.clear();
        filterKey(widget, event);
        break;
    case QEvent::FocusOut:
        tellLeft(widget, event);
        break;
    default:
        break;
    }
}

/** Once for each widget, before it is shown for the first time. */
void actionRecorder_t::attach(QWidget* widget)
{
    if (qobject_cast<QLineEdit*>(widget))
        connect(widget, SIGNAL(textEdited(QString)), SLOT(tellEdited()), Qt::UniqueConnection);
    else if (qobject_cast<QComboBox*>(widget))
        connect(widget, SIGNAL(activated(int)), SLOT(tellChosen(int)), Qt::UniqueConnection);
    else if (qobject_cast<QAbstractButton*>(widget))
    {
        connect(widget, SIGNAL(released()), SLOT(tellReleased()), Qt::UniqueConnection);
        connect(widget, SIGNAL(clicked(bool)), SLOT(tellClicked()), Qt::UniqueConnection);
    }
    else if (qobject_cast<QFileDialog*>(widget))
        connect(widget, SIGNAL(finished(int)), SLOT(tellFile(int)), Qt::UniqueConnection);
}

action_t actionRecorder_t::on(action_t::kind_t kind) const
{
    action_t action;
    action.kind = kind;
    action.page = screen() ? screen()->currentPage() : QString();
    return action;
}

/** False for what is not the operator's: windows beside the screen, the keypad, what is inside of a file dialog. */
bool actionRecorder_t::placed(QWidget* widget, action_t& action) const
{
    QWidget* const page = screen() ? screen()->page(screen()->currentPage()) : nullptr;
    QWidget* root = nullptr;
    bool isOnScreen = false;
    for (QWidget* above = widget; above; above = above->parentWidget())
    {
        if (qobject_cast<keypad_t*>(above) || qobject_cast<statusStrip_t*>(above) || qobject_cast<QFileDialog*>(above))
            return false;
        if (!root && qobject_cast<QDialog*>(above))
        {
            root = above;
            action.dialog = above->objectName();
        }
        if (!root && above == page)
            root = page;
        isOnScreen = isOnScreen || above == screen();
    }
    if (root)
        action.widget = pathOf(root, widget);
    return root && isOnScreen;
}

void actionRecorder_t::filterRelease(QWidget* widget, QEvent* event)
{
    QMouseEvent const* release = static_cast<QMouseEvent*>(event);
    QAbstractButton* button = qobject_cast<QAbstractButton*>(widget);
    if (!button || !button->isDown() || release->button() != Qt::LeftButton || !button->rect().contains(release->pos()))
        return;
    m_pressed = button;
    tellButton(button);
}

/** By the keyboard, or by a program that operates this one. Comes before the click takes effect, unlike the click itself;
 *  but a mouse also releases a button when it is dragged off it. */
void actionRecorder_t::tellReleased()
{
    QAbstractButton* button = static_cast<QAbstractButton*>(sender());
    if (m_pressed == button || m_touched == button)
        return;
    m_pressed = button;
    tellButton(button);
}

void actionRecorder_t::tellClicked()
{
    QAbstractButton* button = static_cast<QAbstractButton*>(sender());
    bool const isTold = m_pressed == button;
    m_pressed.clear();
    m_touched.clear();
    if (!isTold)
        tellButton(button);
}

void actionRecorder_t::tellButton(QAbstractButton* button)
{
    if (!screen() || !screen()->isAncestorOf(button))
        return;
    QString const name = button->objectName();
    action_t action = on(action_t::TAP);
    if (name.startsWith(MENU_ENTRY))
    {
        action.kind = action_t::PAGE;
        action.page = name.mid(MENU_ENTRY.size());
    }
    else if (name == "backButton")
        action.kind = action_t::BACK;
    else if (!placed(button, action))
        return;
    for (QWidget* above = button; above; above = above->parentWidget())
    {
        QMessageBox* box = qobject_cast<QMessageBox*>(above);
        if (!box)
            continue;
        action.kind = action_t::ANSWER;
        action.widget.clear();
        action.text = box->text();
        action.button = buttonName(button);
    }
    emit acted(action);
}

void actionRecorder_t::tellEdited()
{
    QLineEdit* edit = static_cast<QLineEdit*>(sender());
    action_t action = on(action_t::TYPE);
    if (!placed(edit, action))
        return;
    m_typed = edit;
    action.isSecret = isSecret(edit);
    if (!action.isSecret)
        action.text = lineEntry_t::wholeText(edit);
    emit acted(action);
}

void actionRecorder_t::tellLeft(QWidget* widget, QEvent* event)
{
    Qt::FocusReason const reason = static_cast<QFocusEvent*>(event)->reason();
    if (m_typed != widget || reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
        return;
    m_typed.clear();
    action_t action = on(action_t::LEAVE);
    if (placed(widget, action))
        emit acted(action);
}

void actionRecorder_t::tellChosen(int index)
{
    QComboBox* combo = static_cast<QComboBox*>(sender());
    action_t action = on(action_t::CHOOSE);
    if (!placed(combo, action))
        return;
    action.text = combo->itemText(index);
    emit acted(action);
}

void actionRecorder_t::tellRow(QWidget* viewport, QEvent* event, action_t::kind_t kind)
{
    QAbstractItemView* view = qobject_cast<QAbstractItemView*>(viewport->parentWidget());
    action_t action = on(kind);
    if (!view || view->viewport() != viewport || !view->isEnabled() || !placed(view, action))
        return;
    QModelIndex const index = view->indexAt(static_cast<QMouseEvent*>(event)->pos());
    if (!index.isValid())
        return;
    // Two quick taps on different rows choose one after the other.
    if (index.siblingAtColumn(0) != view->currentIndex().siblingAtColumn(0))
        action.kind = action_t::SELECT;
    action.row = rowOf(index);
    action.text = index.siblingAtColumn(0).data().toString();
    emit acted(action);
}

void actionRecorder_t::tellCurrentRow(QAbstractItemView* view)
{
    QModelIndex const index = view->currentIndex();
    action_t action = on(action_t::SELECT);
    if (!index.isValid() || !placed(view, action))
        return;
    action.row = rowOf(index);
    action.text = index.siblingAtColumn(0).data().toString();
    emit acted(action);
}

void actionRecorder_t::filterKey(QWidget* widget, QEvent* event)
{
    int const key = static_cast<QKeyEvent*>(event)->key();
    // A message box presses one of its buttons.
    if (key == Qt::Key_Escape && qobject_cast<QDialog*>(widget) && !qobject_cast<QMessageBox*>(widget))
    {
        action_t action = on(action_t::CLOSE);
        if (placed(widget, action))
        {
            action.widget.clear();
            emit acted(action);
        }
    }
    QPointer<QAbstractItemView> const view = qobject_cast<QAbstractItemView*>(widget);
    if (!view || !movesRows(key))
        return;
    // Which row it is going to be only the view knows.
    QMetaObject::invokeMethod(
        this,
        [this, view]()
        {
            if (view)
                tellCurrentRow(view);
        },
        Qt::QueuedConnection);
}

void actionRecorder_t::tellFile(int result)
{
    QFileDialog* dialog = static_cast<QFileDialog*>(sender());
    if (!screen() || (dialog->parentWidget() && dialog->parentWidget()->window() != screen()->window()))
        return;
    action_t action = on(action_t::CHOOSE_FILE);
    if (result == QDialog::Accepted)
        action.text = dialog->selectedFiles().value(0);
    emit acted(action);
}

} // namespace melvox_display
