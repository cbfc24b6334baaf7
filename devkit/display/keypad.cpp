#include "display/keypad.h"

#include "display/keyPads.h"
#include "display/lineEntry.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace melvox_display
{

keypad_t::keypad_t(QWidget* screen, QWidget* parent)
    : QFrame(parent), m_screen(screen), m_entry(new lineEntry_t(this)), m_numericPad(nullptr), m_fullPad(nullptr),
      m_pad(nullptr), m_compact(false), m_leaving(false)
{
    setObjectName("keypad");
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 10, 12, 10);
    connect(m_entry, &lineEntry_t::changed, this,
            [this]()
            {
                if (m_pad)
                    m_pad->refresh();
            });
    connect(qApp, &QApplication::focusChanged, this, &keypad_t::followFocus);
    qApp->installEventFilter(this);
    hide();
}

keypad_t::~keypad_t()
{
    m_entry->end();
}

bool keypad_t::isOpen() const
{
    return m_pad != nullptr;
}

QLineEdit* keypad_t::edit() const
{
    return qobject_cast<QLineEdit*>(m_edit.data());
}

void keypad_t::setCompact(bool compact)
{
    m_compact = compact;
    if (m_fullPad)
        m_fullPad->setCompact(compact);
}

// The display starts sooner without the pads' sixty keys.
pad_t* keypad_t::numericPad()
{
    if (!m_numericPad)
    {
        m_numericPad = new numericPad_t(m_entry, this);
        addPad(m_numericPad);
    }
    return m_numericPad;
}

pad_t* keypad_t::fullPad()
{
    if (!m_fullPad)
    {
        m_fullPad = new fullPad_t(m_entry, this);
        m_fullPad->setCompact(m_compact);
        addPad(m_fullPad);
    }
    return m_fullPad;
}

void keypad_t::addPad(pad_t* pad)
{
    layout()->addWidget(pad);
    connect(pad, &pad_t::accepted, this, &keypad_t::accept);
    connect(pad, &pad_t::cancelled, this, &keypad_t::cancel);
}

void keypad_t::open(QLineEdit* edit)
{
    if (m_pad && m_edit == edit)
        return;
    if (m_pad)
        m_pad->hide();
    m_entry->begin(edit);
    m_edit = edit;
    m_leaving = false;
    connect(edit, &QObject::destroyed, this, &keypad_t::forget, Qt::UniqueConnection);
    if (!edit->hasFocus())
        edit->setFocus(Qt::MouseFocusReason);
    bool const numeric = lineEntry_t::isNumeric(edit);
    // A number is mostly entered anew, a name corrected.
    if (numeric)
        edit->selectAll();
    m_pad = numeric ? numericPad() : fullPad();
    m_pad->start(lineEntry_t::promptOf(edit));
    m_pad->show();
    show();
    emit opened(edit);
}

void keypad_t::accept()
{
    QPointer<QWidget> const edit = m_edit;
    finish();
    // Leaving the field is what lets it check and tidy up what was typed.
    if (edit)
        edit->clearFocus();
}

void keypad_t::cancel()
{
    m_entry->restore();
    accept();
}

/** The edit is being destroyed and is no line edit any more. */
void keypad_t::forget()
{
    m_edit.clear();
    finish();
}

void keypad_t::finish()
{
    if (!m_pad)
        return;
    m_pad->stop();
    m_pad->hide();
    m_pad = nullptr;
    m_entry->end();
    if (m_edit)
    {
        disconnect(m_edit, &QObject::destroyed, this, &keypad_t::forget);
        if (edit())
            edit()->deselect();
    }
    m_edit.clear();
    m_leaving = false;
    hide();
    emit closed();
}

bool keypad_t::canBeEdited(QLineEdit* edit) const
{
    return edit->isEnabled() && !edit->isReadOnly() && edit->isVisible() && m_screen->isAncestorOf(edit);
}

bool keypad_t::eventFilter(QObject* object, QEvent* event)
{
    if (m_edit && object == m_edit && filterEdit(event))
        return true;
    if (event->type() == QEvent::MouseButtonRelease && object->isWidgetType())
        filterTap(object, event);
    return QFrame::eventFilter(object, event);
}

/** True for a key that the edit is not to see. */
bool keypad_t::filterEdit(QEvent* event)
{
    switch (event->type())
    {
    case QEvent::Hide:
    case QEvent::EnabledChange:
    case QEvent::ReadOnlyChange:
        if (!edit() || !canBeEdited(edit()))
            finish();
        return false;
    case QEvent::KeyPress:
    {
        int const key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape)
            cancel();
        else if (key == Qt::Key_Return || key == Qt::Key_Enter)
            accept();
        else
            return false;
        return true;
    }
    default:
        return false;
    }
}

void keypad_t::filterTap(QObject* object, QEvent* event)
{
    // The tap that leaves the edit must reach what was tapped before the screen moves.
    if (m_leaving)
        QMetaObject::invokeMethod(
            this, [this]() { followFocus(); }, Qt::QueuedConnection);
    QLineEdit* edit = qobject_cast<QLineEdit*>(object);
    QMouseEvent* release = static_cast<QMouseEvent*>(event);
    // A flick that began on the edit ends with a release somewhere else.
    if (edit && release->button() == Qt::LeftButton && edit->rect().contains(release->pos()) && canBeEdited(edit))
        open(edit);
}

void keypad_t::followFocus()
{
    if (!m_pad || !m_edit || m_edit->hasFocus() || m_edit->window()->focusWidget() == m_edit)
    {
        m_leaving = false;
        return;
    }
    if (QApplication::mouseButtons() != Qt::NoButton)
        m_leaving = true;
    else
        finish();
}

} // namespace melvox_display
