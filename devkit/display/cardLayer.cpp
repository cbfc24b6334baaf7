#include "display/cardLayer.h"

#include <QApplication>
#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace melvox_display
{

namespace
{

int const MARGIN = 16;

QScrollArea* placeIn(QWidget* frame)
{
    return frame->findChild<QScrollArea*>("cardPlace");
}

void focusFirstButton(QWidget* card)
{
    QList<QPushButton*> const buttons = card->findChildren<QPushButton*>();
    for (QPushButton* button : buttons)
    {
        if (button->isDefault())
            return button->setFocus(Qt::OtherFocusReason);
    }
    if (!buttons.isEmpty())
        buttons.first()->setFocus(Qt::OtherFocusReason);
}

} // namespace

cardLayer_t::cardLayer_t(QWidget* screen) : QWidget(screen), m_screen(screen)
{
    setObjectName("cardLayer");
    setFocusPolicy(Qt::NoFocus);
    m_screen->installEventFilter(this);
    hide();
}

cardLayer_t::~cardLayer_t()
{
    qApp->removeEventFilter(this);
}

QFrame* cardLayer_t::createFrame(QString const& title)
{
    QFrame* frame = new QFrame(this);
    frame->setObjectName("card");
    QVBoxLayout* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(12, 10, 12, 12);
    layout->setSpacing(4);
    QLabel* label = new QLabel(title, frame);
    label->setObjectName("cardTitle");
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setVisible(!title.isEmpty());
    layout->addWidget(label);
    QScrollArea* place = new QScrollArea(frame);
    place->setObjectName("cardPlace");
    place->setFrameShape(QFrame::NoFrame);
    place->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    place->setFocusPolicy(Qt::NoFocus);
    layout->addWidget(place);
    return frame;
}

void cardLayer_t::add(QWidget* card, QString const& title)
{
    if (m_cards.isEmpty())
    {
        m_focusBefore = m_screen->window()->focusWidget();
        qApp->installEventFilter(this);
    }
    card_t const entry = {card, card, createFrame(title)};
    placeIn(entry.frame)->setWidget(card);
    card->installEventFilter(this);
    m_cards << entry;
    setGeometry(m_screen->rect());
    show();
    raise();
    entry.frame->show();
    card->show();
    arrange();
    focusFirstButton(card);
}

void cardLayer_t::remove(QWidget* card)
{
    for (card_t const& entry : m_cards)
    {
        if (entry.identity == card)
            placeIn(entry.frame)->takeWidget();
    }
    card->removeEventFilter(this);
    forget(card);
}

void cardLayer_t::forget(QObject* card)
{
    for (int i = m_cards.size() - 1; i >= 0; --i)
    {
        if (m_cards.at(i).identity != card)
            continue;
        QFrame* frame = m_cards.takeAt(i).frame;
        frame->hide();
        frame->deleteLater();
    }
    arrange();
}

QWidget* cardLayer_t::top() const
{
    return m_cards.isEmpty() ? nullptr : m_cards.last().card;
}

void cardLayer_t::arrange()
{
    if (m_cards.isEmpty())
    {
        qApp->removeEventFilter(this);
        hide();
        if (m_focusBefore && m_focusBefore->isVisible())
            m_focusBefore->setFocus(Qt::OtherFocusReason);
        m_focusBefore.clear();
        return;
    }
    for (card_t const& entry : m_cards)
        arrangeCard(entry, entry.identity == m_cards.last().identity);
}

void cardLayer_t::arrangeCard(card_t const& entry, bool isTop)
{
    QFrame* frame = entry.frame;
    QScrollArea* place = placeIn(frame);
    frame->setVisible(isTop);
    if (!entry.card)
        return;
    QWidget* title = frame->findChild<QLabel*>("cardTitle");
    QSize size = entry.card->size();
    int const titleHeight = title->isHidden() ? 0 : title->heightForWidth(size.width());
    int const available = height() - 2 * MARGIN - titleHeight - 4;
    bool const scrolls = size.height() > available;
    if (scrolls)
        size = QSize(size.width() + place->verticalScrollBar()->sizeHint().width(), available);
    place->setFixedSize(size);
    frame->adjustSize();
    frame->move((width() - frame->width()) / 2, qMax(0, (height() - frame->height()) / 2));
}

bool cardLayer_t::eventFilter(QObject* object, QEvent* event)
{
    if (object == m_screen && event->type() == QEvent::Resize)
    {
        setGeometry(m_screen->rect());
        return false;
    }
    if (event->type() == QEvent::Resize && object == top())
        arrange();
    // What lies behind must not be reached by its shortcuts either.
    if (event->type() == QEvent::Shortcut && object->isWidgetType())
    {
        QWidget* widget = static_cast<QWidget*>(object);
        return m_screen->isAncestorOf(widget) && !isAncestorOf(widget);
    }
    return false;
}

bool cardLayer_t::focusNextPrevChild(bool next)
{
    QWidget* current = m_screen->window()->focusWidget();
    QWidget* card = top();
    if (!current || !card)
        return true;
    for (QWidget* widget = current;;)
    {
        widget = next ? widget->nextInFocusChain() : widget->previousInFocusChain();
        bool const takesFocus = card->isAncestorOf(widget) && widget->isVisible() && widget->isEnabled() &&
                                (widget->focusPolicy() & Qt::TabFocus);
        if (takesFocus)
            widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        if (takesFocus || widget == current)
            return true;
    }
}

void cardLayer_t::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), QColor(0x14, 0x1a, 0x20, 0x99));
}

void cardLayer_t::resizeEvent(QResizeEvent*)
{
    if (!m_cards.isEmpty())
        arrange();
}

void cardLayer_t::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void cardLayer_t::wheelEvent(QWheelEvent* event)
{
    event->accept();
}

} // namespace melvox_display
