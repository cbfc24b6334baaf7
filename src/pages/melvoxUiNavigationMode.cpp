#include "melvoxUiNavigationMode_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt_gui/errorText.h"
#include "support/pageSupport.h"
#include "support/qtCompat.h"

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

// The automatic mode has the index after the modes that the receiver numbers.
int const AUTO_MODE = MELVOX_NUM_DYN_MODES;

enum setUi_t
{
    MEAS_USE, // each row has a flag of its own
    DYNAMIC_CONFIG,
    NUM_SET_UI
};

} // namespace

melvoxUiNavigationMode_t::measUseUi_t::measUseUi_t(std::string const& measName, QLabel* label, QComboBox* combo)
    : m_measName(&measName), m_label(label), m_combo(combo), setUi(false)
{
}

/** The receiver cannot go without GPS, and decides on BeiDou by itself. */
bool melvoxUiNavigationMode_t::measUseUi_t::isFixed() const
{
    return *m_measName == MELVOX_MEAS_NAME_GPS || *m_measName == MELVOX_MEAS_NAME_BEIDOU;
}

void melvoxUiNavigationMode_t::measUseUi_t::update(remoteMelvoxDevice_t* device)
{
    bool use = false;
    bool const valid = device->getMeasUse(*m_measName, use);
    showStatus(m_label, valid, yesNo(use));
    if (valid && !setUi)
    {
        reset(device);
        setUi = true;
    }
    if (!isFixed())
        m_combo->setEnabled(valid);
}

void melvoxUiNavigationMode_t::measUseUi_t::reset(remoteMelvoxDevice_t* device)
{
    bool use = false;
    if (device->getMeasUse(*m_measName, use))
        m_combo->setCurrentIndex(use ? 1 : 0);
}

meas_t melvoxUiNavigationMode_t::measUseUi_t::submit(remoteMelvoxDevice_t*)
{
    meas_t const chosen = {*m_measName, m_combo->currentIndex() != 0};
    return chosen;
}

melvoxUiNavigationMode_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), setUi(NUM_SET_UI)
{
}

melvoxUiNavigationMode_t::privateData_t::~privateData_t()
{
    qDeleteAll(measUseUi);
}

melvoxUiNavigationMode_t::melvoxUiNavigationMode_t(remoteMelvoxDevice_t* device) : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    createRows();
    addPageButtons(m_data->ui.buttonBox, this);
    connectReceiver();

    updateMeasUse();
    updateDynamicConfig();
}

melvoxUiNavigationMode_t::~melvoxUiNavigationMode_t()
{
    delete m_data;
}

void melvoxUiNavigationMode_t::createRows()
{
    Ui_melvoxUiNavigationMode& ui = m_data->ui;
    m_data->measUseUi << new measUseUi_t(MELVOX_MEAS_NAME_GPS, ui.gpsLabel, ui.gpsCombo)
                      << new measUseUi_t(MELVOX_MEAS_NAME_GLONASS, ui.glonassLabel, ui.glonassCombo)
                      << new measUseUi_t(MELVOX_MEAS_NAME_GALILEO, ui.galileoLabel, ui.galileoCombo)
                      << new measUseUi_t(MELVOX_MEAS_NAME_BEIDOU, ui.beidouLabel, ui.beidouCombo);
    ui.gpsCombo->setEnabled(false);
    ui.beidouCombo->setEnabled(false);
}

void melvoxUiNavigationMode_t::connectReceiver()
{
    connect(m_data->ui.overallModeCombo, SIGNAL(currentIndexChanged(int)), SLOT(checkDynamicMode()));
    remoteMelvoxDevice_t* const device = m_data->device;
    connect(device, SIGNAL(measUseUpdated(measUse_t const&)), SLOT(updateMeasUse()));
    connect(device, SIGNAL(dynamicConfigUpdated(brel_common_qt::melvoxDynamicConfig_t const&)),
            SLOT(updateDynamicConfig()));
}

void melvoxUiNavigationMode_t::updateMeasUse()
{
    for (measUseUi_t* row : m_data->measUseUi)
        row->update(m_data->device);
}

void melvoxUiNavigationMode_t::resetMeasUse()
{
    for (measUseUi_t* row : m_data->measUseUi)
        row->reset(m_data->device);
}

void melvoxUiNavigationMode_t::submitMeasUse()
{
    QList<meas_t> use;
    for (measUseUi_t* row : m_data->measUseUi)
        use << row->submit(m_data->device);
    m_data->device->setMeasUse(use);
}

void melvoxUiNavigationMode_t::updateDynamicConfig()
{
    Ui_melvoxUiNavigationMode& ui = m_data->ui;
    bool const valid = m_data->device->dynamicConfigValid();
    melvoxDynamicConfig_t const& config = m_data->device->dynamicConfig();
    bool const automatic = valid && config.autoMode;
    showStatus(ui.overallModeLabel, valid, ui.overallModeCombo->itemText(automatic ? AUTO_MODE : config.mode));
    showStatus(ui.velocitySmoothingLabel, automatic, yesNo(config.velocitySmoothing));
    fillOnce(m_data->setUi, DYNAMIC_CONFIG, valid, this, &melvoxUiNavigationMode_t::resetDynamicConfig);
    ui.overallModeCombo->setEnabled(valid);
}

void melvoxUiNavigationMode_t::resetDynamicConfig()
{
    if (!m_data->device->dynamicConfigValid())
        return;
    melvoxDynamicConfig_t const& config = m_data->device->dynamicConfig();
    setChoice(m_data->ui.overallModeCombo, config.autoMode ? AUTO_MODE : config.mode);
    if (config.autoMode)
        m_data->ui.velocitySmoothingCombo->setCurrentIndex(config.velocitySmoothing ? 1 : 0);
}

void melvoxUiNavigationMode_t::submitDynamicConfig(errorText_t& err)
{
    int const index = m_data->ui.overallModeCombo->currentIndex();
    if (!m_data->ui.overallModeCombo->isEnabled() || index < 0)
        return;
    melvoxDynamicConfig_t config = {false, MELVOX_DYN_MODE_STATIC, false};
    if (index == AUTO_MODE)
    {
        int const smoothing = m_data->ui.velocitySmoothingCombo->currentIndex();
        if (smoothing < 0)
        {
            err << tr("Velocity smoothing setting must be specified") << endl;
            return;
        }
        config.autoMode = true;
        config.velocitySmoothing = smoothing != 0;
    }
    else
    {
        config.mode = melvoxDynamicMode_t(index);
    }
    m_data->device->setDynamicConfig(config);
}

void melvoxUiNavigationMode_t::checkDynamicMode()
{
    m_data->ui.velocitySmoothingCombo->setEnabled(m_data->ui.overallModeCombo->currentIndex() == AUTO_MODE);
}

void melvoxUiNavigationMode_t::submit()
{
    errorText_t err;
    submitMeasUse();
    submitDynamicConfig(err);
    err.report();
}

void melvoxUiNavigationMode_t::reset()
{
    resetMeasUse();
    resetDynamicConfig();
}

void melvoxUiNavigationMode_t::query()
{
    m_data->device->queryMeasUse();
    m_data->device->queryDynamicConfig();
}

} // namespace brel_common_qt_gui
