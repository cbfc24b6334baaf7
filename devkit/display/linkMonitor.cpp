#include "display/linkMonitor.h"

#include "display/monitorModel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

namespace melvox_display
{

namespace
{

int const WIDTH = 640;
int const ROW_HEIGHT = 24;

QPushButton* createButton(QString const& name, QString const& text, QWidget* parent)
{
    QPushButton* button = new QPushButton(text, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

} // namespace

linkMonitor_t::linkMonitor_t(monitorModel_t* model, QWidget* parent)
    : QFrame(parent), m_model(model), m_filtered(new QSortFilterProxyModel(this)), m_table(nullptr),
      m_state(new QLabel(this)), m_pause(createButton("monitorPauseButton", tr("Pause"), this)),
      m_message(new QPlainTextEdit(this)), m_atEnd(true)
{
    // First of all: the style sheet is asked as soon as there is a table.
    setObjectName("linkMonitor");
    m_table = createTable();
    QLabel* title = new QLabel(tr("Link monitor"), this);
    title->setObjectName("monitorTitle");
    m_state->setObjectName("monitorStateLabel");
    QPushButton* clear = createButton("monitorClearButton", tr("Clear"), this);
    QLineEdit* filterEdit = new QLineEdit(this);
    filterEdit->setObjectName("monitorFilterEdit");
    filterEdit->setPlaceholderText(tr("Filter, such as a group or a value"));
    filterEdit->setAccessibleName(tr("Filter"));
    filterEdit->setClearButtonEnabled(true);
    m_message->setObjectName("monitorMessageText");
    m_message->setReadOnly(true);
    m_message->setAccessibleName(tr("The selected message"));
    m_message->setPlaceholderText(tr("Select a row to read the whole message."));
    m_message->setFixedHeight(84);
    m_pause->setCheckable(true);

    QHBoxLayout* head = new QHBoxLayout;
    head->addWidget(title);
    head->addWidget(m_state, 1);
    head->addWidget(m_pause);
    head->addWidget(clear);
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 6, 10, 10);
    layout->setSpacing(8);
    layout->addLayout(head);
    layout->addWidget(filterEdit);
    layout->addWidget(m_table, 1);
    layout->addWidget(m_message);

    connect(m_pause, &QPushButton::clicked, this, &linkMonitor_t::togglePause);
    connect(clear, &QPushButton::clicked, m_model, &monitorModel_t::clear);
    connect(filterEdit, &QLineEdit::textChanged, this, &linkMonitor_t::filter);
    connect(m_model, &monitorModel_t::changed, this, &linkMonitor_t::showState);
    connect(m_filtered, &QAbstractItemModel::rowsInserted, this, &linkMonitor_t::keepNewestInSight);
    connect(m_table->verticalScrollBar(), &QScrollBar::actionTriggered, this, &linkMonitor_t::noteScrolling,
            Qt::QueuedConnection);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &linkMonitor_t::showMessage);
    showState();
}

QTableView* linkMonitor_t::createTable()
{
    m_filtered->setSourceModel(m_model);
    m_filtered->setFilterKeyColumn(-1);
    m_filtered->setFilterCaseSensitivity(Qt::CaseInsensitive);
    QTableView* table = new QTableView(this);
    table->setObjectName("monitorTable");
    table->setModel(m_filtered);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
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
    int const widths[] = {104, 92, 72, 156};
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
    m_filtered->setFilterFixedString(text);
    keepNewestInSight();
}

} // namespace melvox_display
