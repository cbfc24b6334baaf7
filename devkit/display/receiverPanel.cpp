#include "display/receiverPanel.h"

#include "display/driveRack.h"
#include "display/scrollView.h"
#include "display/simulation.h"
#include "link/groups.h"
#include "scenarios/scenarioReader.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace melvox_display
{

namespace
{

using namespace melvox_scenarios;
using melvox_link::faultSetting_t;

int const WIDTH = 640;
int const LIST_HEIGHT = 180;
double const SPEEDS[] = {0.0, 1.0, 2.0, 5.0, 10.0, 60.0, 600.0, 1000.0};
int const PERCENTS[] = {100, 50, 20, 10, 5, 1};

enum
{
    FAULT_COLUMN_GROUP,
    FAULT_COLUMN_KIND,
    FAULT_COLUMN_DIRECTION,
    FAULT_COLUMN_PROBABILITY
};

QString tr(char const* text)
{
    return receiverPanel_t::tr(text);
}

QPushButton* createButton(QString const& name, QString const& text)
{
    QPushButton* button = new QPushButton(text);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}

QComboBox* createCombo(QString const& name, QString const& accessibleName)
{
    QComboBox* combo = new QComboBox;
    combo->setObjectName(name);
    combo->setAccessibleName(accessibleName);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return combo;
}

QLabel* createNote(QString const& name)
{
    QLabel* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QTreeWidget* createList(QString const& name, QString const& accessibleName, QStringList const& columns)
{
    QTreeWidget* list = new QTreeWidget;
    list->setObjectName(name);
    list->setAccessibleName(accessibleName);
    list->setHeaderLabels(columns);
    list->setRootIsDecorated(false);
    list->setFixedHeight(LIST_HEIGHT);
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return list;
}

void addRow(QGridLayout* grid, int row, QString const& caption, QWidget* field)
{
    QLabel* label = new QLabel(caption);
    label->setBuddy(field);
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
    grid->setColumnStretch(1, 1);
}

QString speedText(double speed)
{
    return speed == 0.0 ? tr("Stopped") : tr("%1 x").arg(speed);
}

QString linkKindText(QString const& kind)
{
    if (kind == "serial")
        return tr("Serial line");
    return kind == "tcp" ? tr("TCP") : tr("Other (USB, UDP)");
}

QString faultText(melvox_link::fault_t fault)
{
    switch (fault)
    {
    case melvox_link::FAULT_DROP:
        return tr("Lost");
    case melvox_link::FAULT_DELAY:
        return tr("Late");
    case melvox_link::FAULT_DUPLICATE:
        return tr("Twice");
    case melvox_link::FAULT_REORDER:
        return tr("Out of order");
    case melvox_link::FAULT_GARBLE:
        return tr("Garbled");
    case melvox_link::NUM_FAULTS:
        break;
    }
    return QString();
}

QString directionText(melvox_link::faultDirection_t direction)
{
    switch (direction)
    {
    case melvox_link::FAULT_TO_RECEIVER:
        return tr("To receiver");
    case melvox_link::FAULT_TO_DISPLAY:
        return tr("To display");
    case melvox_link::FAULT_BOTH_WAYS:
        break;
    }
    return tr("Both ways");
}

QString probabilityText(double probability)
{
    return tr("%1 %").arg(100.0 * probability);
}

QString groupText(QString const& group)
{
    return group.isEmpty() ? tr("Every group") : group;
}

/** Chooses the item of that data, added when there is none. */
void chooseData(QComboBox* combo, QVariant const& data, QString const& text)
{
    QSignalBlocker const quiet(combo);
    int index = combo->findData(data);
    if (index < 0)
    {
        combo->addItem(text, data);
        index = combo->count() - 1;
    }
    combo->setCurrentIndex(index);
}

QString selectedText(QTreeWidget const* list)
{
    QList<QTreeWidgetItem*> const selected = list->selectedItems();
    return selected.isEmpty() ? QString() : selected.first()->text(0);
}

} // namespace

receiverPanel_t::receiverPanel_t(simulation_t* simulation, QWidget* parent)
    : QFrame(parent), m_simulation(simulation), m_elsewhere(createNote("elsewhereLabel")),
      m_scenario(createCombo("scenarioCombo", tr("Scenario"))),
      m_start(createButton("scenarioStartButton", tr("Start"))), m_shows(createNote("scenarioShowsLabel")),
      m_state(createNote("scenarioStateLabel")), m_speed(createCombo("speedCombo", tr("Clock speed"))),
      m_port(createCombo("activePortCombo", tr("Active port"))),
      m_linkKind(createCombo("linkKindCombo", tr("Link kind"))),
      m_connect(createButton("connectButton", tr("Disconnect"))),
      m_faultGroup(createCombo("faultGroupCombo", tr("Group"))),
      m_faultKind(createCombo("faultKindCombo", tr("Fault"))),
      m_faultDirection(createCombo("faultDirectionCombo", tr("Direction"))),
      m_faultProbability(createCombo("faultProbabilityCombo", tr("Probability"))),
      m_faultAdd(createButton("faultAddButton", tr("Set Fault"))),
      m_faultRemove(createButton("faultRemoveButton", tr("Remove"))),
      m_faultClear(createButton("faultClearButton", tr("Clear All"))),
      m_faults(createList("faultList", tr("Faults"), {tr("Group"), tr("Fault"), tr("Direction"), tr("Probability")})),
      m_drives(createList("driveList", tr("USB drives"), {tr("Drive"), tr("State")})),
      m_driveToggle(createButton("driveToggleButton", tr("Pull Out"))),
      m_driveNew(createButton("driveNewButton", tr("Plug In New"))), m_driveNote(createNote("driveNoteLabel"))
{
    setObjectName("receiverPanel");
    QLabel* title = new QLabel(tr("Receiver"));
    title->setObjectName("receiverPanelTitle");
    m_elsewhere->setText(
        tr("The receiver is not in this program: scenario, clock, port and connection are changed where it is, "
           "such as with melvox_receiver --scenario NAME --speed N."));
    m_elsewhere->setVisible(!m_simulation->hasReceiver());

    QWidget* content = new QWidget;
    content->setObjectName("receiverPanelContent");
    QVBoxLayout* boxes = new QVBoxLayout(content);
    for (QWidget* box : {createScenarioBox(), createLinkBox(), createFaultBox(), createDriveBox()})
        boxes->addWidget(box);
    boxes->addStretch(1);
    QScrollArea* view = new QScrollArea;
    view->setObjectName("receiverPanelView");
    view->setWidgetResizable(true);
    view->setFrameShape(QFrame::NoFrame);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setWidget(content);
    scrollByFinger(view);

    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 6, 0, 10);
    layout->setSpacing(8);
    layout->addWidget(title);
    layout->addWidget(m_elsewhere);
    layout->addWidget(view, 1);
    connectWidgets();
}

QWidget* receiverPanel_t::createScenarioBox()
{
    QGroupBox* box = new QGroupBox(tr("Scenario"));
    for (double speed : SPEEDS)
        m_speed->addItem(speedText(speed), speed);
    m_start->setProperty("accent", true);
    m_shows->setMinimumHeight(3 * fontMetrics().lineSpacing());
    m_shows->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    QGridLayout* grid = new QGridLayout(box);
    addRow(grid, 0, tr("Scenario:"), m_scenario);
    // Titles are long.
    grid->addWidget(m_scenario, 0, 1, 1, 2);
    grid->addWidget(m_shows, 1, 0, 1, 3);
    grid->addWidget(m_state, 2, 0, 1, 2);
    grid->addWidget(m_start, 2, 2);
    addRow(grid, 3, tr("Clock speed:"), m_speed);
    box->setEnabled(m_simulation->hasReceiver());
    return box;
}

QWidget* receiverPanel_t::createLinkBox()
{
    QGroupBox* box = new QGroupBox(tr("Link"));
    QStringList const ports = portNames();
    for (int port = 0; port < ports.size(); ++port)
        m_port->addItem(ports.at(port), port);
    for (QString const& kind : linkKinds())
        m_linkKind->addItem(linkKindText(kind), kind);
    QGridLayout* grid = new QGridLayout(box);
    addRow(grid, 0, tr("Active port:"), m_port);
    addRow(grid, 1, tr("Link kind:"), m_linkKind);
    grid->addWidget(m_connect, 0, 2);
    box->setEnabled(m_simulation->hasReceiver());
    return box;
}

QWidget* receiverPanel_t::createFaultBox()
{
    QGroupBox* box = new QGroupBox(tr("Faults of the link"));
    QStringList groups = melvox_link::groupNames();
    groups.sort(Qt::CaseInsensitive);
    groups.prepend(QString());
    for (QString const& group : groups)
        m_faultGroup->addItem(groupText(group), group);
    for (int fault = 0; fault < melvox_link::NUM_FAULTS; ++fault)
        m_faultKind->addItem(faultText(melvox_link::fault_t(fault)), fault);
    for (melvox_link::faultDirection_t direction :
         {melvox_link::FAULT_BOTH_WAYS, melvox_link::FAULT_TO_RECEIVER, melvox_link::FAULT_TO_DISPLAY})
        m_faultDirection->addItem(directionText(direction), int(direction));
    for (int percent : PERCENTS)
        m_faultProbability->addItem(probabilityText(percent / 100.0), percent / 100.0);
    QGridLayout* grid = new QGridLayout(box);
    addRow(grid, 0, tr("Group:"), m_faultGroup);
    addRow(grid, 1, tr("Messages are:"), m_faultKind);
    addRow(grid, 2, tr("Direction:"), m_faultDirection);
    addRow(grid, 3, tr("Probability:"), m_faultProbability);
    grid->addWidget(m_faultAdd, 3, 2);
    grid->addWidget(m_faults, 4, 0, 1, 3);
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_faultRemove);
    buttons->addWidget(m_faultClear);
    grid->addLayout(buttons, 5, 0, 1, 3);
    return box;
}

QWidget* receiverPanel_t::createDriveBox()
{
    QGroupBox* box = new QGroupBox(tr("USB drives"));
    QVBoxLayout* layout = new QVBoxLayout(box);
    layout->addWidget(m_drives);
    layout->addWidget(m_driveNote);
    QHBoxLayout* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(m_driveToggle);
    buttons->addWidget(m_driveNew);
    layout->addLayout(buttons);
    return box;
}

void receiverPanel_t::connectWidgets()
{
    connect(m_scenario, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &receiverPanel_t::showChoice);
    connect(m_start, &QPushButton::clicked, this, &receiverPanel_t::startScenario);
    connect(m_speed, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &receiverPanel_t::takeSpeed);
    connect(m_port, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &receiverPanel_t::takePort);
    connect(m_linkKind, QOverload<int>::of(&QComboBox::currentIndexChanged), this, &receiverPanel_t::takeLinkKind);
    connect(m_connect, &QPushButton::clicked, this, &receiverPanel_t::toggleConnection);
    connect(m_faultAdd, &QPushButton::clicked, this, &receiverPanel_t::addFault);
    connect(m_faultRemove, &QPushButton::clicked, this, &receiverPanel_t::removeFault);
    connect(m_faultClear, &QPushButton::clicked, m_simulation, &simulation_t::clearFaults);
    connect(m_faults, &QTreeWidget::itemSelectionChanged, this, &receiverPanel_t::updateButtons);
    connect(m_driveToggle, &QPushButton::clicked, this, &receiverPanel_t::toggleDrive);
    connect(m_driveNew, &QPushButton::clicked, this, &receiverPanel_t::plugInNewDrive);
    connect(m_drives, &QTreeWidget::itemSelectionChanged, this, &receiverPanel_t::updateButtons);
    connect(m_simulation, &simulation_t::changed, this, &receiverPanel_t::refresh);
}

QSize receiverPanel_t::sizeHint() const
{
    return QSize(WIDTH, QFrame::sizeHint().height());
}

void receiverPanel_t::showEvent(QShowEvent* event)
{
    // Not before: reading them all takes its time.
    if (m_scenario->count() == 0)
        fillScenarios();
    refresh();
    QFrame::showEvent(event);
}

void receiverPanel_t::fillScenarios()
{
    QSignalBlocker const quiet(m_scenario);
    for (QString const& name : scenarioNames())
    {
        scenario_t scenario;
        QString error;
        if (!loadScenario(name, scenario, error))
            continue;
        m_scenario->addItem(scenario.title, name);
        m_scenario->setItemData(m_scenario->count() - 1, scenario.shows, Qt::ToolTipRole);
    }
}

/** One that was started elsewhere may be a file of the user's own. */
void receiverPanel_t::chooseRunning()
{
    scenario_t const& running = m_simulation->scenario();
    if (running.name == m_running)
        return;
    m_running = running.name;
    chooseData(m_scenario, running.name, running.title);
    m_scenario->setItemData(m_scenario->currentIndex(), running.shows, Qt::ToolTipRole);
}

void receiverPanel_t::refresh()
{
    if (isHidden())
        return;
    refreshScenario();
    refreshLink();
    refreshFaults();
    refreshDrives();
    updateButtons();
}

void receiverPanel_t::refreshScenario()
{
    chooseRunning();
    m_shows->setText(m_scenario->currentData(Qt::ToolTipRole).toString());
    scenario_t const& running = m_simulation->scenario();
    int const left = m_simulation->stepsLeft();
    if (!m_refusal.isEmpty())
        m_state->setText(m_refusal);
    else if (running.name.isEmpty())
        m_state->setText(tr("The receiver runs as it was delivered."));
    else if (left > 0)
        m_state->setText(tr("Running: %1. Steps to come: %2.").arg(running.title).arg(left));
    else
        m_state->setText(tr("Running: %1.").arg(running.title));
    chooseData(m_speed, m_simulation->speed(), speedText(m_simulation->speed()));
}

void receiverPanel_t::refreshLink()
{
    chooseData(m_port, int(m_simulation->activePort()), QString());
    chooseData(m_linkKind, m_simulation->linkKind(), QString());
    m_connect->setText(m_simulation->isConnected() ? tr("Disconnect") : tr("Connect"));
}

void receiverPanel_t::refreshFaults()
{
    QList<faultSetting_t> const faults = m_simulation->faults();
    int const selected = m_faults->currentIndex().row();
    m_faults->clear();
    for (faultSetting_t const& fault : faults)
        new QTreeWidgetItem(m_faults, {groupText(fault.group), faultText(fault.fault), directionText(fault.direction),
                                       probabilityText(fault.probability)});
    int const last = int(faults.size()) - 1;
    m_faults->setCurrentItem(m_faults->topLevelItem(selected < 0 ? last : qMin(selected, last)));
}

void receiverPanel_t::refreshDrives()
{
    driveRack_t const& rack = m_simulation->drives();
    QString const selected = selectedText(m_drives);
    m_drives->clear();
    for (QString const& name : rack.pluggedIn())
        new QTreeWidgetItem(m_drives, {name, tr("Plugged in")});
    for (QString const& name : rack.pulledOut())
        new QTreeWidgetItem(m_drives, {name, tr("Pulled out")});
    QList<QTreeWidgetItem*> const again = m_drives->findItems(selected, Qt::MatchExactly);
    m_drives->setCurrentItem(again.isEmpty() ? m_drives->topLevelItem(0) : again.first());
    if (rack.isReal())
        m_driveNote->setText(tr("The drives are those of this machine: plug them in and pull them out by hand."));
    else if (rack.folder().isEmpty())
        m_driveNote->setText(tr("Without --usb files are chosen in a file dialog, until a drive is plugged in here."));
    else if (rack.isTemporary())
        m_driveNote->setText(tr("In %1, which is deleted when the program ends.").arg(rack.folder()));
    else
        m_driveNote->setText(tr("In %1.").arg(rack.folder()));
}

void receiverPanel_t::updateButtons()
{
    m_faultRemove->setEnabled(!m_faults->selectedItems().isEmpty());
    m_faultClear->setEnabled(m_faults->topLevelItemCount() > 0);
    bool const isIn = m_simulation->drives().pluggedIn().contains(selectedText(m_drives));
    bool const isReal = m_simulation->drives().isReal();
    m_driveNew->setEnabled(!isReal);
    m_driveToggle->setEnabled(!isReal && !m_drives->selectedItems().isEmpty());
    m_driveToggle->setText(isIn || !m_driveToggle->isEnabled() ? tr("Pull Out") : tr("Plug In"));
}

void receiverPanel_t::showChoice()
{
    m_refusal.clear();
    refreshScenario();
}

void receiverPanel_t::startScenario()
{
    scenario_t scenario;
    m_refusal.clear();
    // Read anew each time: a file of one's own is written while one tries it.
    if (loadScenario(m_scenario->currentData().toString(), scenario, m_refusal))
        m_simulation->start(scenario);
    else
        refreshScenario();
}

void receiverPanel_t::takeSpeed()
{
    m_simulation->setSpeed(m_speed->currentData().toDouble());
}

void receiverPanel_t::takePort()
{
    unsigned int const port = m_port->currentData().toUInt();
    m_simulation->setActivePort(port);
    m_simulation->setLinkKind(usualLinkKind(port));
}

void receiverPanel_t::takeLinkKind()
{
    m_simulation->setLinkKind(m_linkKind->currentData().toString());
}

void receiverPanel_t::toggleConnection()
{
    m_simulation->setConnected(!m_simulation->isConnected());
}

void receiverPanel_t::addFault()
{
    faultSetting_t fault;
    fault.group = m_faultGroup->currentData().toString();
    fault.fault = melvox_link::fault_t(m_faultKind->currentData().toInt());
    fault.direction = melvox_link::faultDirection_t(m_faultDirection->currentData().toInt());
    fault.probability = m_faultProbability->currentData().toDouble();
    m_simulation->setFault(fault);
}

void receiverPanel_t::removeFault()
{
    faultSetting_t fault = m_simulation->faults().value(m_faults->currentIndex().row());
    fault.probability = 0.0;
    m_simulation->setFault(fault);
}

void receiverPanel_t::toggleDrive()
{
    driveRack_t& rack = m_simulation->drives();
    QString const name = selectedText(m_drives);
    bool const done = rack.pluggedIn().contains(name) ? rack.pullOut(name) : rack.plugIn(name);
    if (!done)
        m_driveNote->setText(tr("%1 cannot be moved in %2.").arg(name, rack.folder()));
}

void receiverPanel_t::plugInNewDrive()
{
    driveRack_t& rack = m_simulation->drives();
    if (!rack.plugIn(rack.newName()))
        m_driveNote->setText(tr("No drive can be made in %1.").arg(rack.folder()));
}

} // namespace melvox_display
