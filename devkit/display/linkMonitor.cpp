#include "display/linkMonitor.h"

#include "display/monitorModel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace melvox_display
{

namespace
{

int const WIDTH = 640;
int const ROW_HEIGHT = 24;
int const AGING_MS = 500;

QPushButton* createButton(QString const& name, QString const& text, QWidget* parent)
{
    QPushButton* button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

} // namespace

/** Passes what contains a text in any column but the age: that it goes on is no reason to come and go. */
class monitorFilter_t : public QSortFilterProxyModel
{
public:
    using QSortFilterProxyModel::QSortFilterProxyModel;

    void setText(QString const& text)
    {
        m_text = text;
        invalidateFilter();
    }

protected:
    bool filterAcceptsRow(int row, QModelIndex const& parent) const override
    {
        for (int column = 0; column < monitorModel_t::NUM_COLUMNS; ++column)
        {
            if (column != monitorModel_t::COLUMN_AGE &&
                sourceModel()->index(row, column, parent).data().toString().contains(m_text, Qt::CaseInsensitive))
                return true;
        }
        return false;
    }

private:
    QString m_text;
};

linkMonitor_t::linkMonitor_t(monitorModel_t* model, QWidget* parent)
    : QFrame(parent), m_model(model), m_filtered(new monitorFilter_t(this)), m_table(nullptr),
      m_state(new QLabel(this)), m_pause(createButton("monitorPauseButton", tr("Pause"), this)),
      m_copy(createButton("monitorCopyButton", tr("Copy"), this)),
      m_clear(createButton("monitorClearButton", tr("Clear"), this)), m_filter(new QLineEdit(this)),
      m_message(new QPlainTextEdit(this)), m_atEnd(true), m_aging(this)
{
    // First of all: the style sheet is asked as soon as there is a table.
    setObjectName("linkMonitor");
    m_table = createTable();
    QLabel* title = new QLabel(tr("Link monitor"), this);
    title->setObjectName("monitorTitle");
    m_state->setObjectName("monitorStateLabel");
    m_copy->setToolTip(tr("Copies the selected rows, or all when none is selected (Ctrl+C)"));
    m_filter->setObjectName("monitorFilterEdit");
    m_filter->setPlaceholderText(tr("Filter, such as a group or a value"));
    m_filter->setAccessibleName(tr("Filter"));
    m_filter->setClearButtonEnabled(true);
    m_message->setObjectName("monitorMessageText");
    m_message->setReadOnly(true);
    m_message->setAccessibleName(tr("The selected message"));
    m_message->setPlaceholderText(tr("Select a row to read the whole message."));
    m_message->setFixedHeight(84);
    m_pause->setCheckable(true);
    m_aging.setInterval(AGING_MS);

    QHBoxLayout* head = new QHBoxLayout;
    head->addWidget(title);
    head->addWidget(m_state, 1);
    head->addWidget(m_pause);
    head->addWidget(m_copy);
    head->addWidget(m_clear);
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 6, 10, 10);
    layout->setSpacing(8);
    layout->addLayout(head);
    layout->addWidget(m_filter);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_message);
    connectWidgets();
    showState();
}

void linkMonitor_t::connectWidgets()
{
    connect(m_pause, &QPushButton::clicked, this, &linkMonitor_t::togglePause);
    connect(m_copy, &QPushButton::clicked, this, &linkMonitor_t::copy);
    connect(m_clear, &QPushButton::clicked, m_model, &monitorModel_t::clear);
    connect(m_filter, &QLineEdit::textChanged, this, &linkMonitor_t::filter);
    connect(m_model, &monitorModel_t::changed, this, &linkMonitor_t::showState);
    connect(m_filtered, &QAbstractItemModel::rowsInserted, this, &linkMonitor_t::keepNewestInSight);
    connect(m_table->verticalScrollBar(), &QScrollBar::actionTriggered, this, &linkMonitor_t::noteScrolling,
            Qt::QueuedConnection);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &linkMonitor_t::showMessage);
    // What is painted asks for the ages of that moment.
    connect(&m_aging, &QTimer::timeout, m_table->viewport(), QOverload<>::of(&QWidget::update));
    QShortcut* shortcut = new QShortcut(QKeySequence::Copy, m_table);
    shortcut->setContext(Qt::WidgetShortcut);
    connect(shortcut, &QShortcut::activated, this, &linkMonitor_t::copy);
}

QTableView* linkMonitor_t::createTable()
{
    m_filtered->setSourceModel(m_model);
    QTableView* table = new QTableView(this);
    table->setObjectName("monitorTable");
    table->setModel(m_filtered);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setMinimumSectionSize(ROW_HEIGHT);
    table->verticalHeader()->setDefaultSectionSize(ROW_HEIGHT);
    table->horizontalHeader()->setStretchLastSection(true);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    int const widths[] = {92, 76, 84, 62, 140};
    for (int column = 0; column < monitorModel_t::COLUMN_VALUE; ++column)
        table->setColumnWidth(column, widths[column]);
    return table;
}

QSize linkMonitor_t::sizeHint() const
{
    return QSize(WIDTH, QFrame::sizeHint().height());
}

void linkMonitor_t::togglePause()
{
    m_model->setPaused(!m_model->isPaused());
    m_pause->setChecked(m_model->isPaused());
}

void linkMonitor_t::showState()
{
    m_state->setText(m_model->isPaused() ? tr("paused, %1 new").arg(m_model->waiting())
                                         : tr("%1 messages").arg(m_model->rowCount()));
    m_pause->setText(m_model->isPaused() ? tr("Go on") : tr("Pause"));
    m_copy->setEnabled(m_model->rowCount() > 0);
    updateTimer();
}

void linkMonitor_t::showMessage()
{
    m_message->setPlainText(m_model->textOf(m_filtered->mapToSource(m_table->currentIndex())));
}

void linkMonitor_t::noteScrolling()
{
    QScrollBar const* bar = m_table->verticalScrollBar();
    m_atEnd = bar->value() >= bar->maximum() - ROW_HEIGHT;
}

void linkMonitor_t::keepNewestInSight()
{
    // Whoever scrolled up is reading there.
    if (m_atEnd)
        m_table->scrollToBottom();
}

void linkMonitor_t::filter(QString const& text)
{
    m_filtered->setText(text);
    keepNewestInSight();
    updateTimer();
}

void linkMonitor_t::copy()
{
    QModelIndexList rows = m_table->selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    if (rows.isEmpty())
    {
        for (int row = 0; row < m_filtered->rowCount(); ++row)
            rows << m_filtered->index(row, 0);
    }
    QString text;
    for (QModelIndex const& row : rows)
        text += m_model->lineOf(m_filtered->mapToSource(row)) + '\n';
    QGuiApplication::clipboard()->setText(text);
}

void linkMonitor_t::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    updateTimer();
}

void linkMonitor_t::hideEvent(QHideEvent* event)
{
    QFrame::hideEvent(event);
    updateTimer();
}

/** Nobody wakes up for ages that nobody sees, or that stand still. */
void linkMonitor_t::updateTimer()
{
    bool const needed = isVisible() && !m_model->isPaused() && m_filtered->rowCount() > 0;
    if (needed && !m_aging.isActive())
        m_aging.start();
    else if (!needed)
        m_aging.stop();
}

} // namespace melvox_display
