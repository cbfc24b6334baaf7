#include "melvoxUiSolutionControl_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt_gui/errorText.h"
#include "support/pageSupport.h"
#include "support/qtCompat.h"

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

double const ELEVATION_MASK_MIN = 4; // degrees
double const ELEVATION_MASK_MAX = 60;
double const PDOP_LIMIT_MIN = 2;
double const PDOP_LIMIT_MAX = 100;

// Widths that fill the input masks.
int const ELEVATION_MASK_WIDTH = 4;
int const PDOP_LIMIT_WIDTH = 5;
int const MAX_AGE_WIDTH = 4;

enum setUi_t
{
    ELEVATION_MASK,
    PDOP_LIMIT,
    GEOIDAL_MODEL,
    NTRIP_PPP_MODE,
    NTRIP_PPP_PROTOCOL,
    NUM_SET_UI
};

} // namespace

melvoxUiSolutionControl_t::corrUi_t::corrUi_t(melvoxCorrectionType_t type, QLabel* enabledLabel,
                                              QComboBox* enabledCombo, QLabel* maxAgeLabel, QLineEdit* maxAgeLineEdit)
    : m_type(type), m_enabledLabel(enabledLabel), m_enabledCombo(enabledCombo), m_setEnabled(false),
      m_maxAgeLabel(maxAgeLabel), m_maxAgeLineEdit(maxAgeLineEdit), m_setMaxAge(false)
{
}

void melvoxUiSolutionControl_t::corrUi_t::updateEnabled(remoteMelvoxDevice_t* device)
{
    bool enabled = false;
    bool const valid = device->getCorrectionEnabled(m_type, enabled);
    showStatus(m_enabledLabel, valid, yesNo(enabled));
    if (valid && !m_setEnabled)
    {
        resetEnabled(device);
        m_setEnabled = true;
    }
    m_enabledCombo->setEnabled(valid);
}

void melvoxUiSolutionControl_t::corrUi_t::resetEnabled(remoteMelvoxDevice_t* device)
{
    bool enabled = false;
    if (device->getCorrectionEnabled(m_type, enabled))
        m_enabledCombo->setCurrentIndex(enabled ? 1 : 0);
}

void melvoxUiSolutionControl_t::corrUi_t::submitEnabled(remoteMelvoxDevice_t* device)
{
    int const index = m_enabledCombo->currentIndex();
    if (m_enabledCombo->isEnabled() && index >= 0)
        device->setCorrectionEnabled(m_type, index != 0);
}

void melvoxUiSolutionControl_t::corrUi_t::updateMaxAge(remoteMelvoxDevice_t* device)
{
    unsigned int seconds = 0;
    bool const valid = device->getCorrectionMaxAge(m_type, seconds);
    showStatus(m_maxAgeLabel, valid, QString::number(seconds));
    if (valid && !m_setMaxAge)
    {
        resetMaxAge(device);
        m_setMaxAge = true;
    }
    m_maxAgeLineEdit->setEnabled(valid);
}

void melvoxUiSolutionControl_t::corrUi_t::resetMaxAge(remoteMelvoxDevice_t* device)
{
    unsigned int seconds = 0;
    if (device->getCorrectionMaxAge(m_type, seconds))
        m_maxAgeLineEdit->setText(zeroPadded(seconds, MAX_AGE_WIDTH));
}

void melvoxUiSolutionControl_t::corrUi_t::submitMaxAge(remoteMelvoxDevice_t* device)
{
    unsigned int seconds = 0;
    // An age left blank is not worth a complaint: it just stays what it was.
    if (m_maxAgeLineEdit->isEnabled() && readNumber(m_maxAgeLineEdit, seconds))
        device->setCorrectionMaxAge(m_type, seconds);
}

melvoxUiSolutionControl_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), setUi(NUM_SET_UI)
{
}

melvoxUiSolutionControl_t::privateData_t::~privateData_t()
{
    qDeleteAll(corrUi);
}

melvoxUiSolutionControl_t::melvoxUiSolutionControl_t(remoteMelvoxDevice_t* device) : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    createRows();
    addPageButtons(m_data->ui.buttonBox, this);
    connectReceiver();

    updateElevationMask();
    updatePdopLimit();
    updateGeoidalModel();
    updateCorrsEnabled();
    updateCorrsMaxAge();
    updateNtripPPPMode();
}

melvoxUiSolutionControl_t::~melvoxUiSolutionControl_t()
{
    delete m_data;
}

void melvoxUiSolutionControl_t::createRows()
{
    Ui_melvoxUiSolutionControl& ui = m_data->ui;
    m_data->corrUi << new corrUi_t(MELVOX_CORR_TYPE_RTCM19, ui.rtcmEnabledLabel, ui.rtcmEnabledCombo, ui.rtcmAgeLabel,
                                   ui.rtcmAgeLineEdit)
                   << new corrUi_t(MELVOX_CORR_TYPE_SBAS, ui.sbasEnabledLabel, ui.sbasEnabledCombo, ui.sbasAgeLabel,
                                   ui.sbasAgeLineEdit)
                   << new corrUi_t(MELVOX_CORR_TYPE_RTG, ui.mrvEnabledLabel, ui.mrvEnabledCombo, ui.mrvAgeLabel,
                                   ui.mrvAgeLineEdit);
    // Receivers come with SBAS on.
    ui.sbasEnabledCombo->setCurrentIndex(1);
}

void melvoxUiSolutionControl_t::connectReceiver()
{
    remoteMelvoxDevice_t* const device = m_data->device;
    connect(device, SIGNAL(elevationMaskUpdated(endian::f64_t)), SLOT(updateElevationMask()));
    connect(device, SIGNAL(pdopLimitUpdated(endian::f64_t)), SLOT(updatePdopLimit()));
    connect(device, SIGNAL(correctionEnabledUpdated(brel_common_qt::melvoxCorrectionType_t, bool)),
            SLOT(updateCorrsEnabled()));
    connect(device, SIGNAL(correctionMaxAgeUpdated(brel_common_qt::melvoxCorrectionType_t, endian::u32_t)),
            SLOT(updateCorrsMaxAge()));
    connect(device, SIGNAL(geoidalModelUpdated(brel_common_qt::melvoxGeoidalModel_t)), SLOT(updateGeoidalModel()));
    connect(device, SIGNAL(ntripPPPModeUpdated(brel_common_qt::melvoxNtripPPP_t)), SLOT(updateNtripPPPMode()));
}

void melvoxUiSolutionControl_t::updateElevationMask()
{
    bool const valid = m_data->device->elevationMaskValid();
    showStatus(m_data->ui.elevationMaskLabel, valid, fixed(m_data->device->elevationMask(), 1));
    fillOnce(m_data->setUi, ELEVATION_MASK, valid, this, &melvoxUiSolutionControl_t::resetElevationMask);
    m_data->ui.elevationMaskLineEdit->setEnabled(valid);
}

void melvoxUiSolutionControl_t::resetElevationMask()
{
    if (m_data->device->elevationMaskValid())
        m_data->ui.elevationMaskLineEdit->setText(zeroPadded(m_data->device->elevationMask(), ELEVATION_MASK_WIDTH, 1));
}

void melvoxUiSolutionControl_t::submitElevationMask(errorText_t& err)
{
    if (!m_data->ui.elevationMaskLineEdit->isEnabled())
        return;
    double value = 0;
    if (readWithin(m_data->ui.elevationMaskLineEdit, ELEVATION_MASK_MIN, ELEVATION_MASK_MAX, value))
        m_data->device->setElevationMask(value);
    else
        err << tr("Elevation mask must be ") << ELEVATION_MASK_MIN << " - " << ELEVATION_MASK_MAX << endl;
}

void melvoxUiSolutionControl_t::updatePdopLimit()
{
    bool const valid = m_data->device->pdopLimitValid();
    showStatus(m_data->ui.pdopLabel, valid, fixed(m_data->device->pdopLimit(), 1));
    fillOnce(m_data->setUi, PDOP_LIMIT, valid, this, &melvoxUiSolutionControl_t::resetPdopLimit);
    m_data->ui.pdopLineEdit->setEnabled(valid);
}

void melvoxUiSolutionControl_t::resetPdopLimit()
{
    if (m_data->device->pdopLimitValid())
        m_data->ui.pdopLineEdit->setText(zeroPadded(m_data->device->pdopLimit(), PDOP_LIMIT_WIDTH, 1));
}

void melvoxUiSolutionControl_t::submitPdopLimit(errorText_t& err)
{
    if (!m_data->ui.pdopLineEdit->isEnabled())
        return;
    double value = 0;
    if (readWithin(m_data->ui.pdopLineEdit, PDOP_LIMIT_MIN, PDOP_LIMIT_MAX, value))
        m_data->device->setPdopLimit(value);
    else
        err << tr("PDOP limit must be ") << PDOP_LIMIT_MIN << " - " << PDOP_LIMIT_MAX << endl;
}

void melvoxUiSolutionControl_t::updateGeoidalModel()
{
    QComboBox* const combo = m_data->ui.geoidalModelCombo;
    bool const valid = m_data->device->geoidalModelValid();
    showStatus(m_data->ui.geoidalModelLabel, valid, combo->itemText(m_data->device->geoidalModel()));
    fillOnce(m_data->setUi, GEOIDAL_MODEL, valid, this, &melvoxUiSolutionControl_t::resetGeoidalModel);
    combo->setEnabled(valid);
}

void melvoxUiSolutionControl_t::resetGeoidalModel()
{
    if (m_data->device->geoidalModelValid())
        setChoice(m_data->ui.geoidalModelCombo, m_data->device->geoidalModel());
}

void melvoxUiSolutionControl_t::submitGeoidalModel()
{
    int const index = m_data->ui.geoidalModelCombo->currentIndex();
    if (m_data->ui.geoidalModelCombo->isEnabled() && index >= 0)
        m_data->device->setGeoidalModel(melvoxGeoidalModel_t(index));
}

void melvoxUiSolutionControl_t::updateCorrsEnabled()
{
    for (corrUi_t* row : m_data->corrUi)
        row->updateEnabled(m_data->device);
}

void melvoxUiSolutionControl_t::resetCorrsEnabled()
{
    for (corrUi_t* row : m_data->corrUi)
        row->resetEnabled(m_data->device);
}

void melvoxUiSolutionControl_t::submitCorrsEnabled()
{
    for (corrUi_t* row : m_data->corrUi)
        row->submitEnabled(m_data->device);
}

void melvoxUiSolutionControl_t::updateCorrsMaxAge()
{
    for (corrUi_t* row : m_data->corrUi)
        row->updateMaxAge(m_data->device);
}

void melvoxUiSolutionControl_t::resetCorrsMaxAge()
{
    for (corrUi_t* row : m_data->corrUi)
        row->resetMaxAge(m_data->device);
}

void melvoxUiSolutionControl_t::submitCorrsMaxAge()
{
    for (corrUi_t* row : m_data->corrUi)
        row->submitMaxAge(m_data->device);
}

void melvoxUiSolutionControl_t::updateNtripPPPMode()
{
    Ui_melvoxUiSolutionControl& ui = m_data->ui;
    bool const valid = m_data->device->ntripPPPModeValid();
    melvoxNtripPPP_t const reported = m_data->device->ntripPPP();
    bool const on = valid && reported.mode != MELVOX_NTRIP_PPP_MODE_OFF;
    showStatus(ui.ntripPPPModeLabel, valid, ui.ntripPPPModeCombo->itemText(reported.mode));
    showStatus(ui.ntripPPPProtocolLabel, on, ui.ntripPPPProtocolCombo->itemText(reported.protocol));
    fillOnce(m_data->setUi, NTRIP_PPP_MODE, valid, this, &melvoxUiSolutionControl_t::resetNtripPPPMode);
    fillOnce(m_data->setUi, NTRIP_PPP_PROTOCOL, valid, this, &melvoxUiSolutionControl_t::resetNtripPPPProtocol);
    // Some receivers never tell this group before it was set once, so it must always be possible to set it.
    ui.ntripPPPModeCombo->setEnabled(true);
    ui.ntripPPPProtocolCombo->setEnabled(true);
}

void melvoxUiSolutionControl_t::resetNtripPPPMode()
{
    if (m_data->device->ntripPPPModeValid())
        setChoice(m_data->ui.ntripPPPModeCombo, m_data->device->ntripPPP().mode);
}

void melvoxUiSolutionControl_t::resetNtripPPPProtocol()
{
    if (m_data->device->ntripPPPModeValid())
        setChoice(m_data->ui.ntripPPPProtocolCombo, m_data->device->ntripPPP().protocol);
}

void melvoxUiSolutionControl_t::submitNtripPPPMode()
{
    int const mode = m_data->ui.ntripPPPModeCombo->currentIndex();
    if (mode < 0)
        return;
    // While off, the protocol means nothing to the receiver.
    int protocol = MELVOX_NTRIP_PPP_MODE_HTTP;
    if (mode != MELVOX_NTRIP_PPP_MODE_OFF)
    {
        protocol = m_data->ui.ntripPPPProtocolCombo->currentIndex();
        if (protocol < 0)
            return;
    }
    melvoxNtripPPP_t const record = {melvoxNtripPPPMode_t(mode), melvoxNtripPPPProtocol_t(protocol)};
    m_data->device->setNtripPPPMode(record);
}

void melvoxUiSolutionControl_t::submit()
{
    errorText_t err;
    submitElevationMask(err);
    submitPdopLimit(err);
    submitGeoidalModel();
    submitCorrsEnabled();
    submitCorrsMaxAge();
    submitNtripPPPMode();
    err.report();
}

void melvoxUiSolutionControl_t::reset()
{
    resetElevationMask();
    resetPdopLimit();
    resetGeoidalModel();
    resetCorrsEnabled();
    resetCorrsMaxAge();
    resetNtripPPPMode();
    resetNtripPPPProtocol();
}

void melvoxUiSolutionControl_t::query()
{
    m_data->device->queryElevationMask();
    m_data->device->queryPdopLimit();
    m_data->device->queryGeoidalModel();
    m_data->device->queryCorrectionsEnabled();
    m_data->device->queryCorrectionsMaxAge();
    m_data->device->queryNtripPPPMode();
}

} // namespace brel_common_qt_gui
