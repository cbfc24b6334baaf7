#include "display/dialogHost.h"

#include "display/cardLayer.h"
#include "display/scrollView.h"

#include <QDialog>
#include <QEvent>
#include <QLayout>
#include <QMessageBox>

#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>

namespace melvox_display
{

displayDialogHost_t::displayDialogHost_t(QStackedWidget* area, cardLayer_t* cards, QObject* parent)
    : QObject(parent), m_area(area), m_cards(cards)
{
}

displayDialogHost_t::~displayDialogHost_t()
{
    giveAllBack();
}

void displayDialogHost_t::setPage(QWidget* view)
{
    m_page = view;
    arrange();
}

QDialog* displayDialogHost_t::currentDialog() const
{
    for (int i = m_entries.size() - 1; i >= 0; --i)
    {
        if (m_entries.at(i).view)
            return m_entries.at(i).dialog;
    }
    return nullptr;
}

QDialog* displayDialogHost_t::currentCard() const
{
    return qobject_cast<QDialog*>(m_cards->top());
}

int displayDialogHost_t::indexOf(QObject const* dialog) const
{
    for (int i = 0; i < m_entries.size(); ++i)
    {
        if (m_entries.at(i).identity == dialog)
            return i;
    }
    return -1;
}

void displayDialogHost_t::showDialog(QDialog* dialog)
{
    int const known = indexOf(dialog);
    if (known >= 0)
    {
        // Shown again, perhaps out of its own finished(): it stays here and comes to the top.
        m_entries.move(known, m_entries.size() - 1);
        dialog->show();
        arrange();
        return;
    }
    entry_t entry;
    entry.identity = dialog;
    entry.dialog = dialog;
    entry.owner = dialog->parentWidget();
    entry.hadOwner = entry.owner != nullptr;
    entry.flags = dialog->windowFlags();
    entry.wasMoved = dialog->testAttribute(Qt::WA_Moved);
    connect(dialog, SIGNAL(finished(int)), this, SLOT(leave()));
    connect(dialog, SIGNAL(destroyed(QObject*)), this, SLOT(forget(QObject*)));
    connect(dialog, SIGNAL(windowTitleChanged(QString)), this, SIGNAL(changed()));
    if (entry.owner)
        connect(entry.owner, SIGNAL(destroyed(QObject*)), this, SLOT(forgetOwner(QObject*)), Qt::UniqueConnection);
    dialog->installEventFilter(this);
    dialog->hide();
    // Or the dialog moves itself to where a window would be.
    dialog->setAttribute(Qt::WA_Moved);
    if (qobject_cast<QMessageBox*>(dialog))
        showAsCard(entry);
    else
        showAsPage(entry);
    arrange();
}

void displayDialogHost_t::showAsPage(entry_t& entry)
{
    entry.dialog->setParent(m_area, Qt::Widget);
    entry.view = takeView(entry.dialog);
    m_entries << entry;
    entry.dialog->show();
}

void displayDialogHost_t::showAsCard(entry_t& entry)
{
    m_entries << entry;
    entry.dialog->setParent(m_cards, Qt::Widget);
    m_cards->add(entry.dialog, entry.dialog->windowTitle());
}

/** Views are used again: each costs the toolkit a gesture recognizer that it never gives back. */
QWidget* displayDialogHost_t::takeView(QDialog* dialog)
{
    if (m_spareViews.isEmpty())
    {
        QWidget* view = createScrollView(dialog, m_area);
        m_area->addWidget(view);
        return view;
    }
    QScrollArea* view = static_cast<QScrollArea*>(m_spareViews.takeLast());
    view->widget()->layout()->addWidget(dialog);
    leaveOutMissingTitles(dialog);
    view->verticalScrollBar()->setValue(0);
    return view;
}

void displayDialogHost_t::putViewAway(QWidget* view)
{
    m_spareViews << view;
}

/** Back to where it came from, hidden. */
void displayDialogHost_t::give(entry_t const& entry)
{
    QDialog* dialog = entry.dialog;
    if (!dialog)
        return;
    dialog->removeEventFilter(this);
    dialog->disconnect(this);
    if (!entry.view)
        m_cards->remove(dialog);
    // In two steps, or the toolkit makes a window for it at once, which would come along when it is shown here again.
    dialog->setParent(entry.owner, Qt::Widget);
    dialog->setParent(entry.owner, entry.flags);
    dialog->setAttribute(Qt::WA_Moved, entry.wasMoved);
}

void displayDialogHost_t::drop(int index)
{
    entry_t const entry = m_entries.takeAt(index);
    give(entry);
    if (entry.view)
        putViewAway(entry.view);
    else if (!entry.dialog)
        m_cards->forget(entry.identity);
    arrange();
}

void displayDialogHost_t::arrange()
{
    QWidget* top = m_page;
    QWidget* focus = m_page;
    for (entry_t const& entry : m_entries)
    {
        if (!entry.view)
            continue;
        top = entry.view;
        focus = entry.dialog;
    }
    if (top && top != m_area->currentWidget())
    {
        m_area->setCurrentWidget(top);
        // Or the first field there is would have it. A dialog takes keys only when they come to it or to what is in it.
        if (focus)
            focus->setFocus();
    }
    emit changed();
}

void displayDialogHost_t::leave()
{
    int const index = indexOf(sender());
    // Its owner may have shown it again already.
    if (index >= 0 && m_entries.at(index).dialog && m_entries.at(index).dialog->isHidden())
        drop(index);
}

void displayDialogHost_t::forget(QObject* dialog)
{
    int const index = indexOf(dialog);
    if (index < 0)
        return;
    m_entries[index].dialog.clear();
    drop(index);
}

void displayDialogHost_t::forgetOwner(QObject* owner)
{
    // A dialog dies with its parent; here it has another one, which must not keep it alive.
    for (int i = m_entries.size() - 1; i >= 0; --i)
    {
        entry_t& entry = m_entries[i];
        if (!entry.dialog || !entry.hadOwner || (entry.owner && entry.owner != owner))
            continue;
        QPointer<QDialog> const dialog = entry.dialog;
        entry.owner.clear();
        drop(i);
        if (dialog)
            dialog->deleteLater();
    }
}

bool displayDialogHost_t::eventFilter(QObject* object, QEvent* event)
{
    // Hidden by its owner, without a result; known for sure only when the call that hides it is over.
    if (event->type() == QEvent::HideToParent && indexOf(object) >= 0)
    {
        QPointer<QObject> const dialog = object;
        QMetaObject::invokeMethod(
            this,
            [this, dialog]()
            {
                int const index = dialog ? indexOf(dialog) : -1;
                if (index >= 0 && m_entries.at(index).dialog->isHidden())
                    drop(index);
            },
            Qt::QueuedConnection);
    }
    return false;
}

void displayDialogHost_t::back()
{
    if (QDialog* dialog = currentDialog())
        dialog->reject();
}

void displayDialogHost_t::rejectAll()
{
    QDialog* before = nullptr;
    for (QDialog* dialog = currentDialog(); dialog && dialog != before; dialog = currentDialog())
    {
        before = dialog;
        dialog->reject();
    }
}

void displayDialogHost_t::giveAllBack()
{
    while (!m_entries.isEmpty())
    {
        QPointer<QDialog> const dialog = m_entries.last().dialog;
        if (dialog)
            dialog->hide();
        drop(m_entries.size() - 1);
        if (dialog && dialog->testAttribute(Qt::WA_DeleteOnClose))
            dialog->deleteLater();
    }
}

} // namespace melvox_display
