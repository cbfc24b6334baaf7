#include "melvoxUiPpsConfiguration_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt_gui/errorText.h"
#include "support/pageSupport.h"
#include "support/qtCompat.h"

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

unsigned int const WIDTH_MAX = 1600000; // nanoseconds
unsigned int const INTERVAL_MIN = 1;    // milliseconds
unsigned int const INTERVAL_MAX = 32768;
unsigned int const SIGNAL_DELAY_MAX = 32768; // milliseconds
unsigned int const CHIP_DELAY_MAX = 999999;  // nanoseconds

// Widths that fill the input masks.
int const WIDTH_DIGITS = 7;
int const INTERVAL_DIGITS = 5;
int const SIGNAL_DELAY_DIGITS = 5;
int const CHIP_DELAY_DIGITS = 6;

} // namespace

melvoxUiPpsConfiguration_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_) : device(device_), setUi(false)
{
}

melvoxUiPpsConfiguration_t::melvoxUiPpsConfiguration_t(remoteMelvoxDevice_t* device) : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    addPageButtons(m_data->ui.buttonBox, this);
    connect(device, SIGNAL(ppsConfigUpdated(brel_common_qt::melvoxPpsConfig_t const&)), SLOT(updatePps()));
    updatePps();
}

melvoxUiPpsConfiguration_t::~melvoxUiPpsConfiguration_t()
{
    delete m_data;
}

void melvoxUiPpsConfiguration_t::updatePps()
{
    Ui_melvoxUiPpsConfiguration& ui = m_data->ui;
    bool const valid = m_data->device->ppsConfigValid();
    melvoxPpsConfig_t const& pps = m_data->device->ppsConfig();
    showStatus(ui.polarityLabel, valid, ui.polarityCombo->itemText(pps.polarity));
    showStatus(ui.widthLabel, valid, QString::number(pps.width));
    showStatus(ui.intervalLabel, valid, QString::number(pps.interval));
    showStatus(ui.signalDelayLabel, valid, QString::number(pps.signalDelay));
    showStatus(ui.chipDelayLabel, valid, QString::number(pps.chipDelay));
    if (valid && !m_data->setUi)
    {
        resetPps();
        m_data->setUi = true;
    }
    ui.ppsGroup->setEnabled(valid);
    // Only the polarity is for operators; the receiver's own details are carried along unseen.
    ui.groupBox->setEnabled(false);
    ui.groupBox->hide();
}

void melvoxUiPpsConfiguration_t::resetPps()
{
    if (!m_data->device->ppsConfigValid())
        return;
    melvoxPpsConfig_t const& pps = m_data->device->ppsConfig();
    setChoice(m_data->ui.polarityCombo, pps.polarity);
    m_data->ui.widthLineEdit->setText(zeroPadded(pps.width, WIDTH_DIGITS));
    m_data->ui.intervalLineEdit->setText(zeroPadded(pps.interval, INTERVAL_DIGITS));
    m_data->ui.signalDelayLineEdit->setText(zeroPadded(pps.signalDelay, SIGNAL_DELAY_DIGITS));
    m_data->ui.chipDelayLineEdit->setText(zeroPadded(pps.chipDelay, CHIP_DELAY_DIGITS));
}

void melvoxUiPpsConfiguration_t::submitPps(errorText_t& err)
{
    Ui_melvoxUiPpsConfiguration& ui = m_data->ui;
    int const polarity = ui.polarityCombo->currentIndex();
    if (!ui.ppsGroup->isEnabled() || polarity < 0)
        return;
    melvoxPpsConfig_t pps = {};
    pps.polarity = polarity != 0;
    bool const widthGood = readWithin(ui.widthLineEdit, 0u, WIDTH_MAX, pps.width);
    bool const intervalGood = readWithin(ui.intervalLineEdit, INTERVAL_MIN, INTERVAL_MAX, pps.interval);
    bool const signalDelayGood = readWithin(ui.signalDelayLineEdit, 0u, SIGNAL_DELAY_MAX, pps.signalDelay);
    bool const chipDelayGood = readWithin(ui.chipDelayLineEdit, 0u, CHIP_DELAY_MAX, pps.chipDelay);
    if (!widthGood)
        err << tr("Pulse width must be 0 - ") << WIDTH_MAX << endl;
    if (!intervalGood)
        err << tr("Interval must be ") << INTERVAL_MIN << " - " << INTERVAL_MAX << endl;
    if (!signalDelayGood)
        err << tr("Signal delay must be 0 - ") << SIGNAL_DELAY_MAX << endl;
    if (!chipDelayGood)
        err << tr("Chip delay must be 0 - ") << CHIP_DELAY_MAX << endl;
    if (widthGood && intervalGood && signalDelayGood && chipDelayGood)
        m_data->device->setPpsConfig(pps);
}

void melvoxUiPpsConfiguration_t::submit()
{
    errorText_t err;
    submitPps(err);
    err.report();
}

void melvoxUiPpsConfiguration_t::reset()
{
    resetPps();
}

void melvoxUiPpsConfiguration_t::query()
{
    m_data->device->queryPpsConfig();
}

} // namespace brel_common_qt_gui
