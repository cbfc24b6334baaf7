#include "melvoxUiCorrectionsReceiver_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/textHelpers.h"
#include "brel_common_qt_gui/dialogPage.h"
#include "brel_common_qt_gui/errorText.h"
#include "melvox_ui/melvoxUiCorrectionSatSelectDialog.h"
#include "support/pageSupport.h"
#include "support/qtCompat.h"
#include "support/treeRows.h"
#include "support/utcText.h"

#include <QStringList>
#include <QTimer>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

unsigned int const MINUTES_PER_HOUR = 60;
unsigned int const SWITCH_HOURS_MAX = 24; // with no minutes

int const SWITCH_TIME_PART_WIDTH = 2;

// What the columns with numbers show.
int const STATS_DECIMALS = 2;

enum setUi_t
{
    SAT_STATS,
    CORRECTION_SELECTION,
    NET_PRIORITY,
    RTG_USE_MODE,
    STARFIRE_ALM_SWITCH_POLICY,
    NUM_SET_UI
};

// By status code.
char const* const STATUS_TEXTS[] = {
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiCorrectionsReceiver_t", "Wait for power"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiCorrectionsReceiver_t", "Processing disabled"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiCorrectionsReceiver_t", "Wait for AGC to settle"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiCorrectionsReceiver_t", "Start of processing"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiCorrectionsReceiver_t", "Signal detection"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiCorrectionsReceiver_t", "Signal detection failed"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiCorrectionsReceiver_t", "Frequency verify"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiCorrectionsReceiver_t", "Signal acquisition"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiCorrectionsReceiver_t", "AFC plus Costas pull-in"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiCorrectionsReceiver_t", "Locked"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiCorrectionsReceiver_t", "VFFT")};
unsigned int const NUM_STATUS_TEXTS = sizeof(STATUS_TEXTS) / sizeof(STATUS_TEXTS[0]);

QString statusText(unsigned int status)
{
    return status < NUM_STATUS_TEXTS ? melvoxUiCorrectionsReceiver_t::tr(STATUS_TEXTS[status]) : NoDataString;
}

/** The width of the longest status text; mostly no satellite has told anything yet when the columns are fitted. */
int statusWidth(QFontMetrics const& metrics)
{
    QString longest;
    for (unsigned int i = 0; i < NUM_STATUS_TEXTS; ++i)
    {
        QString const text = statusText(i);
        if (text.size() > longest.size())
            longest = text;
    }
    return metrics.boundingRect(longest).width();
}

void widen(QHeaderView* header, int column, int width)
{
    header->resizeSection(column, qMax(header->sectionSize(column), width));
}

QString almAutoSwitchTimeString(unsigned int hours, unsigned int minutes)
{
    return QString("%1:%2").arg(zeroPadded(hours, SWITCH_TIME_PART_WIDTH), zeroPadded(minutes, SWITCH_TIME_PART_WIDTH));
}

/** Takes the time of a policy from hours and minutes with a colon between. The first thing that is wrong with them,
 *  else an empty text. */
QString readSwitchTime(QString const& text, melvoxStarfireAlmSwitchPolicy_t& policy)
{
    QStringList const parts = text.split(':');
    if (parts.size() != 2)
        return melvoxUiCorrectionsReceiver_t::tr("Invalid MRV Almanac Auto-switch Time");
    bool good = false;
    policy.hours = parts.at(0).toUInt(&good);
    if (!good)
        return melvoxUiCorrectionsReceiver_t::tr("Invalid MRV Almanac Auto-switch Hours");
    policy.minutes = parts.at(1).toUInt(&good);
    if (!good || policy.minutes >= MINUTES_PER_HOUR)
        return melvoxUiCorrectionsReceiver_t::tr("MRV Almanac Auto-switch Minutes must be 0 - 59");
    if (policy.hours > SWITCH_HOURS_MAX || (policy.hours == SWITCH_HOURS_MAX && policy.minutes > 0))
        return melvoxUiCorrectionsReceiver_t::tr("MRV Almanac Auto-switch Time must be <= 24 hours");
    return QString();
}

} // namespace

melvoxUiCorrectionsReceiver_t::item_t::item_t(melvoxCorrectionSatStats_t const& stat, unsigned int inUse)
{
    update(stat, inUse);
}

melvoxUiCorrectionsReceiver_t::item_t::~item_t()
{
}

bool melvoxUiCorrectionsReceiver_t::item_t::operator<(QTreeWidgetItem const& other) const
{
    item_t const& row = static_cast<item_t const&>(other);
    switch (treeWidget() ? treeWidget()->sortColumn() : COLUMN_ID)
    {
    case COLUMN_ID:
        return m_stat.id < row.m_stat.id;
    case COLUMN_ACTIVE:
        return m_active < row.m_active;
    case COLUMN_SIGNAL_STATUS:
        return m_stat.status < row.m_stat.status;
    case COLUMN_SNR:
        return m_stat.strength < row.m_stat.strength;
    case COLUMN_AGC:
        return m_stat.agcVoltage < row.m_stat.agcVoltage;
    case COLUMN_IDLE:
        return m_stat.idlePercent < row.m_stat.idlePercent;
    case COLUMN_BAD:
        // The column shows 100 minus this, so the order is turned round; equal rows count as less on purpose.
        return m_stat.goodPercent >= row.m_stat.goodPercent;
    case COLUMN_RESYNC:
        return m_stat.resyncCount < row.m_stat.resyncCount;
    default:
        return QTreeWidgetItem::operator<(other);
    }
}

bool melvoxUiCorrectionsReceiver_t::item_t::shows(melvoxCorrectionSatStats_t const& stat, unsigned int inUse) const
{
    return m_active == (stat.id == inUse) && m_stat.id == stat.id && m_stat.beam == stat.beam &&
           m_stat.status == stat.status && m_stat.strength == stat.strength && m_stat.agcVoltage == stat.agcVoltage &&
           m_stat.goodPercent == stat.goodPercent && m_stat.idlePercent == stat.idlePercent &&
           m_stat.resyncCount == stat.resyncCount && m_stat.frequencyOffset == stat.frequencyOffset;
}

void melvoxUiCorrectionsReceiver_t::item_t::update(melvoxCorrectionSatStats_t const& stat, unsigned int inUse)
{
    m_stat = stat;
    m_active = stat.id == inUse;
    setText(COLUMN_ID, QString::number(stat.id));
    setText(COLUMN_ACTIVE, yesNo(m_active));
    setText(COLUMN_SIGNAL_STATUS, statusText(stat.status));
    setText(COLUMN_SNR, fixed(stat.strength, STATS_DECIMALS));
    setText(COLUMN_AGC, fixed(stat.agcVoltage, STATS_DECIMALS));
    setText(COLUMN_IDLE, fixed(stat.idlePercent, STATS_DECIMALS) + '%');
    // The receiver tells of good packets, the table of bad ones.
    setText(COLUMN_BAD, fixed(100 - stat.goodPercent, STATS_DECIMALS) + '%');
    setText(COLUMN_RESYNC, QString::number(stat.resyncCount));
}

melvoxUiCorrectionsReceiver_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), satSelectDialog(nullptr), satSelectDialogPage(nullptr), statsTimer(nullptr), setUi(NUM_SET_UI)
{
}

melvoxUiCorrectionsReceiver_t::melvoxUiCorrectionsReceiver_t(remoteMelvoxDevice_t* device)
    : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    m_data->satSelectDialog = new melvoxUiCorrectionSatSelectDialog_t(device, this);
    m_data->satSelectDialogPage = new dialogPage_t(m_data->satSelectDialog);
    m_data->statsTimer = new QTimer(this);
    new sortOnTap_t(m_data->ui.statusTree);
    connectButtons();
    connectReceiver();
    connect(m_data->statsTimer, SIGNAL(timeout()), SLOT(clearCorrectionSatStats()));

    updateCorrectionSatStats();
    // Before the receiver has told anything, no satellite and none in use is not news but ignorance.
    if (device->correctionSatStats().empty() && device->correctionSatInUse() == 0)
        clearCorrectionSatStats();
    updateCorrectionSatAuto();
    updateCorrectionSelection();
    updateNetPriority();
    updateRtgUseMode();
    updateMrvAlmanacInfo();
    updateStarfireAlmStatus();
    updateStarfireAlmSwitchPolicy();
    checkStarfireAlmSwitchPolicy();
}

melvoxUiCorrectionsReceiver_t::~melvoxUiCorrectionsReceiver_t()
{
    delete m_data->satSelectDialogPage;
    delete m_data;
}

void melvoxUiCorrectionsReceiver_t::connectButtons()
{
    Ui_melvoxUiCorrectionsReceiver& ui = m_data->ui;
    addActionButton(ui.statusButtonBox, tr("Query"), this, SLOT(query()));
    connectButton(ui.buttonBox, QDialogButtonBox::Apply, this, SLOT(submit()));
    connectButton(ui.buttonBox, QDialogButtonBox::Reset, this, SLOT(reset()));
    connect(ui.selectSatButton, SIGNAL(clicked()), SLOT(showSatSelectDialog()));
    connect(ui.useNewMrvAlmButton, SIGNAL(clicked()), m_data->device, SLOT(useNewStarfireAlm()));
    connect(ui.mrvAlmSwitchPolicyCombo, SIGNAL(currentIndexChanged(int)), SLOT(updateStarfireAlmSwitchPolicy()));
}

void melvoxUiCorrectionsReceiver_t::connectReceiver()
{
    remoteMelvoxDevice_t* const device = m_data->device;
    connect(device, SIGNAL(correctionSatStatsUpdated()), SLOT(updateCorrectionSatStats()));
    connect(device, SIGNAL(correctionSatSelected(endian::s32_t)), SLOT(updateCorrectionSatAuto()));
    connect(device, SIGNAL(correctionSatAutoSelected()), SLOT(updateCorrectionSatAuto()));
    connect(device, SIGNAL(correctionSelectionUpdated(brel_common_qt::melvoxCorrectionSelection_t)),
            SLOT(updateCorrectionSelection()));
    connect(device, SIGNAL(netPriorityUpdated(brel_common_qt::melvoxNetPriority_t)), SLOT(updateNetPriority()));
    connect(device, SIGNAL(rtgUseModeUpdated(brel_common_qt::melvoxRtgUseMode_t)), SLOT(updateRtgUseMode()));
    connect(device, SIGNAL(mrvAlmanacInfoUpdated()), SLOT(updateMrvAlmanacInfo()));
    connect(device, SIGNAL(starfireAlmStatusUpdated()), SLOT(updateStarfireAlmStatus()));
    connect(device, SIGNAL(starfireAlmSwitchPolicyUpdated()), SLOT(updateStarfireAlmSwitchPolicy()));
}

void melvoxUiCorrectionsReceiver_t::updateCorrectionSatStats()
{
    melvoxCorrectionSatStatsMap_t const& stats = m_data->device->correctionSatStats();
    unsigned int const inUse = m_data->device->correctionSatInUse();
    keepInStep<item_t>(m_data->ui.statusTree, stats, inUse);
    fitColumnsOnce();
    m_data->ui.currentSatIdLabel->setText(QString::number(inUse));
}

void melvoxUiCorrectionsReceiver_t::fitColumnsOnce()
{
    if (m_data->setUi.testBit(SAT_STATS))
        return;
    QHeaderView* const header = m_data->ui.statusTree->header();
    setResizeMode(header, QHeaderView::ResizeToContents);
    // Left to itself the header would get round to it only after the mode has changed back.
    header->resizeSections(QHeaderView::ResizeToContents);
    m_data->setUi.setBit(SAT_STATS);
    setResizeMode(header, QHeaderView::Interactive);
    QFontMetrics const metrics(m_data->ui.statusTree->font());
    int const margin = metrics.boundingRect("000").width();
    widen(header, item_t::COLUMN_SIGNAL_STATUS, statusWidth(metrics) + margin);
    widen(header, item_t::COLUMN_SNR, metrics.boundingRect(fixed(-100, STATS_DECIMALS)).width() + margin);
}

void melvoxUiCorrectionsReceiver_t::clearCorrectionSatStats()
{
    m_data->ui.currentSatIdLabel->setText(NoDataString);
}

void melvoxUiCorrectionsReceiver_t::updateCorrectionSatAuto()
{
    showStatus(m_data->ui.autoSelectLabel, m_data->device->correctionSatSelectionValid(),
               yesNo(m_data->device->correctionSatSelectionIsAuto()));
}

void melvoxUiCorrectionsReceiver_t::updateCorrectionSelection()
{
    QComboBox* const combo = m_data->ui.correctionSelectionCombo;
    bool const valid = m_data->device->correctionSelectionValid();
    showStatus(m_data->ui.correctionSelectionLabel, valid, combo->itemText(m_data->device->correctionSelection()));
    fillOnce(m_data->setUi, CORRECTION_SELECTION, valid, this,
             &melvoxUiCorrectionsReceiver_t::resetCorrectionSelection);
    combo->setEnabled(valid);
}

void melvoxUiCorrectionsReceiver_t::resetCorrectionSelection()
{
    if (m_data->device->correctionSelectionValid())
        setChoice(m_data->ui.correctionSelectionCombo, m_data->device->correctionSelection());
}

void melvoxUiCorrectionsReceiver_t::submitCorrectionSelection()
{
    int const index = m_data->ui.correctionSelectionCombo->currentIndex();
    if (m_data->ui.correctionSelectionCombo->isEnabled() && index >= 0)
        m_data->device->setCorrectionSelection(melvoxCorrectionSelection_t(index));
}

void melvoxUiCorrectionsReceiver_t::updateNetPriority()
{
    if (m_data->device->netPriorityValid())
        m_data->setUi.setBit(NET_PRIORITY);
}

void melvoxUiCorrectionsReceiver_t::updateRtgUseMode()
{
    if (m_data->device->rtgUseModeValid())
        m_data->setUi.setBit(RTG_USE_MODE);
}

void melvoxUiCorrectionsReceiver_t::updateMrvAlmanacInfo()
{
    showStatus(m_data->ui.mrvAlmUpdatedLabel, m_data->device->mrvAlmanacInfoValid(),
               utcText(m_data->device->mrvAlmanacInfo().updateTime));
}

void melvoxUiCorrectionsReceiver_t::updateStarfireAlmStatus()
{
    bool const valid = m_data->device->starfireAlmStatusValid();
    bool const ready = valid && m_data->device->newStarfireAlmReady();
    showStatus(m_data->ui.mrvAlmAvailableLabel, valid, yesNo(ready));
    m_data->ui.useNewMrvAlmButton->setEnabled(ready);
}

void melvoxUiCorrectionsReceiver_t::showSatSelectDialog()
{
    m_data->satSelectDialog->setStateFromDevice();
    m_data->satSelectDialogPage->show();
}

void melvoxUiCorrectionsReceiver_t::updateStarfireAlmSwitchPolicy()
{
    Ui_melvoxUiCorrectionsReceiver& ui = m_data->ui;
    bool const valid = m_data->device->starfireAlmSwitchPolicyValid();
    melvoxStarfireAlmSwitchPolicy_t const& policy = m_data->device->starfireAlmSwitchPolicy();
    bool const manual = policy.mode == MELVOX_STARFIRE_ALM_SWITCH_MODE_MANUAL;
    showStatus(ui.mrvAlmSwitchPolicyLabel, valid, ui.mrvAlmSwitchPolicyCombo->itemText(policy.mode));
    showStatus(ui.mrvAlmAutoSwitchTimeLabel, valid,
               manual ? almAutoSwitchTimeString(0, 0) : almAutoSwitchTimeString(policy.hours, policy.minutes));
    fillOnce(m_data->setUi, STARFIRE_ALM_SWITCH_POLICY, valid, this,
             &melvoxUiCorrectionsReceiver_t::resetStarfireAlmSwitchPolicy);
    ui.mrvAlmSwitchPolicyCombo->setEnabled(valid);
    checkStarfireAlmSwitchPolicy();
}

void melvoxUiCorrectionsReceiver_t::resetStarfireAlmSwitchPolicy()
{
    if (!m_data->device->starfireAlmSwitchPolicyValid())
        return;
    melvoxStarfireAlmSwitchPolicy_t const policy = m_data->device->starfireAlmSwitchPolicy();
    setChoice(m_data->ui.mrvAlmSwitchPolicyCombo, policy.mode);
    if (policy.mode == MELVOX_STARFIRE_ALM_SWITCH_MODE_AUTO)
        m_data->ui.mrvAlmAutoSwitchTimeLineEdit->setText(almAutoSwitchTimeString(policy.hours, policy.minutes));
}

void melvoxUiCorrectionsReceiver_t::submitStarfireAlmSwitchPolicy(errorText_t& err_)
{
    int const mode = m_data->ui.mrvAlmSwitchPolicyCombo->currentIndex();
    if (!m_data->ui.mrvAlmSwitchPolicyCombo->isEnabled() || mode < 0)
        return;
    melvoxStarfireAlmSwitchPolicy_t policy = {melvoxStarfireAlmSwitchMode_t(mode), 0, 0};
    if (mode == MELVOX_STARFIRE_ALM_SWITCH_MODE_AUTO)
    {
        QString const error = readSwitchTime(m_data->ui.mrvAlmAutoSwitchTimeLineEdit->text(), policy);
        if (!error.isEmpty())
        {
            err_ << error << endl;
            return;
        }
    }
    m_data->device->setStarfireAlmSwitchPolicy(policy);
}

void melvoxUiCorrectionsReceiver_t::checkStarfireAlmSwitchPolicy()
{
    bool const isAuto = m_data->ui.mrvAlmSwitchPolicyCombo->currentIndex() == MELVOX_STARFIRE_ALM_SWITCH_MODE_AUTO;
    m_data->ui.mrvAlmAutoSwitchTimeLineEdit->setEnabled(m_data->device->starfireAlmSwitchPolicyValid() && isAuto);
}

void melvoxUiCorrectionsReceiver_t::submit()
{
    errorText_t err;
    submitCorrectionSelection();
    submitStarfireAlmSwitchPolicy(err);
    err.report();
}

void melvoxUiCorrectionsReceiver_t::reset()
{
    resetCorrectionSelection();
    resetStarfireAlmSwitchPolicy();
}

void melvoxUiCorrectionsReceiver_t::query()
{
    m_data->device->queryCorrectionSelection();
    m_data->device->queryNetPriority();
    m_data->device->queryRtgUseMode();
    m_data->device->queryCorrectionSats();
    m_data->device->queryCorrectionSatSelected();
    m_data->device->queryMrvAlmanacInfo();
    m_data->device->queryStarfireAlmStatus();
    m_data->device->queryStarfireAlmSwitchPolicy();
}

} // namespace brel_common_qt_gui
