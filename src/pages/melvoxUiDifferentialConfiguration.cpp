#include "melvoxUiDifferentialConfiguration_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/textHelpers.h"
#include "brel_common_qt_gui/dialogPage.h"
#include "brel_common_qt_gui/errorText.h"
#include "brel_common_qt_gui/guiSettings.h"
#include "melvox_ui/melvoxUiBasePositionDialog.h"
#include "support/asciiText.h"
#include "support/degrees.h"
#include "support/pageSupport.h"
#include "support/qtCompat.h"

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

unsigned int const SITE_ID_MIN = 0;    // of a rover
unsigned int const STATION_ID_MIN = 1; // of a base
unsigned int const STATION_ID_MAX = 1023;
int const STATION_ID_WIDTH = 4;
int const HEIGHT_DECIMALS = 2;

enum setUi_t
{
    DIFF_CONFIG,
    RTCM_VERSION,
    BASE_NAME,
    NUM_SET_UI
};

// What the port combo offers, in its order. The second USB port never puts corrections out.
melvoxPort_t const OUTPUT_PORTS[] = {MELVOX_PORT_COM1, MELVOX_PORT_COM2, MELVOX_PORT_COM3, MELVOX_PORT_COM4,
                                     MELVOX_PORT_USB1, MELVOX_PORT_ETH1, MELVOX_PORT_ETH2, MELVOX_PORT_ETH3,
                                     MELVOX_PORT_ETH4, MELVOX_PORT_ETH5, MELVOX_PORT_ETH6, MELVOX_PORT_ETH7,
                                     MELVOX_PORT_ETH8};
int const NUM_OUTPUT_PORTS = sizeof(OUTPUT_PORTS) / sizeof(OUTPUT_PORTS[0]);

int indexOfPort(melvoxPort_t port)
{
    for (int i = 0; i < NUM_OUTPUT_PORTS; ++i)
    {
        if (OUTPUT_PORTS[i] == port)
            return i;
    }
    return -1;
}

} // namespace

melvoxUiDifferentialConfiguration_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), setUi(NUM_SET_UI), basePositionDialog(nullptr), basePositionDialogPage(nullptr)
{
}

melvoxUiDifferentialConfiguration_t::melvoxUiDifferentialConfiguration_t(remoteMelvoxDevice_t* device)
    : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    m_data->basePositionDialog = new melvoxUiBasePositionDialog_t(device, this);
    m_data->basePositionDialogPage = new dialogPage_t(m_data->basePositionDialog);
    connectPage();
    connectReceiver();
    for (melvoxPort_t const port : OUTPUT_PORTS)
        m_data->ui.outputPortCombo->addItem(melvoxPortName(port));

    checkDiffMode();
    updateDiffConfig();
    updateRtcmVersion();
    updateBaseName();
    updateBasePosition();
}

melvoxUiDifferentialConfiguration_t::~melvoxUiDifferentialConfiguration_t()
{
    delete m_data->basePositionDialogPage;
    delete m_data;
}

void melvoxUiDifferentialConfiguration_t::connectPage()
{
    addPageButtons(m_data->ui.buttonBox, this);
    connect(m_data->ui.configureBasePositionButton, SIGNAL(clicked()), SLOT(configureBasePosition()));
    connect(m_data->ui.diffModeCombo, SIGNAL(currentIndexChanged(int)), SLOT(checkDiffMode()));
    connect(&guiSettings_t::get(), SIGNAL(latLonFormatChanged()), SLOT(updateBasePosition()));
    connect(&guiSettings_t::get(), SIGNAL(distanceUnitChanged()), SLOT(updateBasePosition()));
}

void melvoxUiDifferentialConfiguration_t::connectReceiver()
{
    remoteMelvoxDevice_t* const device = m_data->device;
    connect(device, SIGNAL(diffConfigUpdated(brel_common_qt::melvoxDiffConfig_t const&)), SLOT(updateDiffConfig()));
    connect(device, SIGNAL(rtcmVersionUpdated(brel_common_qt::melvoxRtcmVersion_t)), SLOT(updateRtcmVersion()));
    connect(device, SIGNAL(baseNameUpdated(std::string const&)), SLOT(updateBaseName()));
    connect(device, SIGNAL(basePositionUpdated(brel_common_qt::melvoxBasePosition_t const&)),
            SLOT(updateBasePosition()));
}

bool melvoxUiDifferentialConfiguration_t::isBase() const
{
    return melvoxDiffModeIsBase(melvoxDiffMode_t(m_data->ui.diffModeCombo->currentIndex()));
}

void melvoxUiDifferentialConfiguration_t::checkDiffMode()
{
    Ui_melvoxUiDifferentialConfiguration& ui = m_data->ui;
    bool const base = isBase();
    ui.outputPortCombo->setEnabled(base);
    if (base)
    {
        ui.rtcmVersionCombo->setCurrentIndex(MELVOX_RTCM_VERSION_23);
        if (ui.stationIdLineEdit->text().toUInt() < STATION_ID_MIN)
            ui.stationIdLineEdit->setText(zeroPadded(STATION_ID_MIN, STATION_ID_WIDTH));
    }
    ui.rtcmVersionCombo->setEnabled(!base);
    bool const dynamic = melvoxDiffModeIsDynamic(melvoxDiffMode_t(ui.diffModeCombo->currentIndex()));
    if (!dynamic)
        ui.dynamicModeCombo->setCurrentIndex(0);
    ui.dynamicModeCombo->setEnabled(dynamic);
}

void melvoxUiDifferentialConfiguration_t::updateDiffConfig()
{
    Ui_melvoxUiDifferentialConfiguration& ui = m_data->ui;
    bool const valid = m_data->device->diffConfigValid();
    melvoxDiffConfig_t const& config = m_data->device->diffConfig();
    showStatus(ui.diffModeLabel, valid, ui.diffModeCombo->itemText(config.mode));
    showStatus(ui.stationIdLabel, valid, QString::number(config.stationId));
    showStatus(ui.dynamicModeLabel, valid, ui.dynamicModeCombo->itemText(config.dynamic ? 1 : 0));
    showStatus(ui.outputPortLabel, valid && melvoxDiffModeIsBase(config.mode), melvoxPortName(config.port));
    fillOnce(m_data->setUi, DIFF_CONFIG, valid, this, &melvoxUiDifferentialConfiguration_t::resetDiffConfig);
    ui.diffConfigGroup->setEnabled(valid);
}

void melvoxUiDifferentialConfiguration_t::resetDiffConfig()
{
    if (!m_data->device->diffConfigValid())
        return;
    Ui_melvoxUiDifferentialConfiguration& ui = m_data->ui;
    melvoxDiffConfig_t const config = m_data->device->diffConfig();
    // The mode first: it changes the others.
    setChoice(ui.diffModeCombo, config.mode);
    ui.stationIdLineEdit->setText(zeroPadded(config.stationId, STATION_ID_WIDTH));
    ui.dynamicModeCombo->setCurrentIndex(config.dynamic ? 1 : 0);
    if (melvoxDiffModeIsBase(config.mode))
        ui.outputPortCombo->setCurrentIndex(indexOfPort(config.port));
}

bool melvoxUiDifferentialConfiguration_t::checkStationId(melvoxDiffConfig_t const& config, errorText_t& err) const
{
    switch (config.mode)
    {
    case MELVOX_DIFF_MODE_ROVER_RTCM:
        if (config.stationId <= STATION_ID_MAX)
            return true;
        err << tr("RTCM Site ID must be ") << SITE_ID_MIN << " - " << STATION_ID_MAX << endl;
        return false;
    case MELVOX_DIFF_MODE_BASE_RTCM1:
    case MELVOX_DIFF_MODE_BASE_RTCM9:
        if (config.stationId >= STATION_ID_MIN && config.stationId <= STATION_ID_MAX)
            return true;
        err << tr("RTCM Station ID must be ") << STATION_ID_MIN << " - " << STATION_ID_MAX << endl;
        return false;
    default:
        return true;
    }
}

void melvoxUiDifferentialConfiguration_t::submitDiffConfig(errorText_t& err)
{
    Ui_melvoxUiDifferentialConfiguration& ui = m_data->ui;
    if (!ui.diffConfigGroup->isEnabled() || ui.diffModeCombo->currentIndex() < 0)
        return;
    // A rover keeps the receiver's port.
    melvoxDiffConfig_t config = m_data->device->diffConfig();
    config.mode = melvoxDiffMode_t(ui.diffModeCombo->currentIndex());
    config.stationId = ui.stationIdLineEdit->text().toUInt();
    if (!checkStationId(config, err))
        return;
    config.dynamic = ui.dynamicModeCombo->currentIndex() != 0;
    if (melvoxDiffModeIsBase(config.mode))
    {
        int const index = ui.outputPortCombo->currentIndex();
        config.port = OUTPUT_PORTS[index >= 0 && index < NUM_OUTPUT_PORTS ? index : 0];
        config.portSet = true;
        ui.rtcmVersionCombo->setCurrentIndex(MELVOX_RTCM_VERSION_23);
    }
    m_data->device->setDiffConfig(config);
    // The mode decides what the ports put out.
    m_data->device->queryAllOutputs();
}

void melvoxUiDifferentialConfiguration_t::updateRtcmVersion()
{
    QComboBox* const combo = m_data->ui.rtcmVersionCombo;
    bool const valid = m_data->device->rtcmVersionValid();
    showStatus(m_data->ui.rtcmVersionLabel, valid, combo->itemText(m_data->device->rtcmVersion()));
    fillOnce(m_data->setUi, RTCM_VERSION, valid, this, &melvoxUiDifferentialConfiguration_t::resetRtcmVersion);
    combo->setEnabled(valid && !isBase());
}

void melvoxUiDifferentialConfiguration_t::resetRtcmVersion()
{
    if (m_data->device->rtcmVersionValid())
        setChoice(m_data->ui.rtcmVersionCombo, m_data->device->rtcmVersion());
}

void melvoxUiDifferentialConfiguration_t::submitRtcmVersion()
{
    // A base puts out RTCM 2.3, whatever was chosen before; that its combo is disabled does not matter.
    if (!m_data->ui.rtcmVersionCombo->isEnabled() && !isBase())
        return;
    int const index = m_data->ui.rtcmVersionCombo->currentIndex();
    if (index >= 0)
        m_data->device->setRtcmVersion(melvoxRtcmVersion_t(index));
}

void melvoxUiDifferentialConfiguration_t::updateBaseName()
{
    bool const valid = m_data->device->baseNameValid();
    showStatus(m_data->ui.stationNameLabel, valid, QString::fromStdString(m_data->device->baseName()));
    fillOnce(m_data->setUi, BASE_NAME, valid, this, &melvoxUiDifferentialConfiguration_t::resetBaseName);
}

void melvoxUiDifferentialConfiguration_t::resetBaseName()
{
    if (m_data->device->baseNameValid())
        m_data->ui.stationNameLineEdit->setText(QString::fromStdString(m_data->device->baseName()));
}

void melvoxUiDifferentialConfiguration_t::submitBaseName()
{
    m_data->device->setBaseName(asciiText(m_data->ui.stationNameLineEdit->text()));
}

void melvoxUiDifferentialConfiguration_t::updateBasePosition()
{
    if (m_data->device->basePositionValid())
    {
        melvoxBasePosition_t const& position = m_data->device->basePosition();
        updateBasePosition(position.latitude, position.longitude, position.height);
        return;
    }
    m_data->ui.latitudeLabel->setText(NoDataString);
    m_data->ui.longitudeLabel->setText(NoDataString);
    m_data->ui.heightLabel->setText(NoDataString);
}

void melvoxUiDifferentialConfiguration_t::updateBasePosition(double latitude, double longitude, double height)
{
    guiSettings_t const& settings = guiSettings_t::get();
    latLonStringOptions_t const options(settings.latLonFormat());
    m_data->ui.latitudeLabel->setText(latitudeString(degreesFromRadians(latitude), options));
    m_data->ui.longitudeLabel->setText(longitudeString(degreesFromRadians(longitude), options));
    m_data->ui.heightLabel->setText(distanceString(height, settings.distanceUnit(), HEIGHT_DECIMALS));
}

void melvoxUiDifferentialConfiguration_t::configureBasePosition()
{
    m_data->basePositionDialog->reset();
    m_data->basePositionDialogPage->show();
}

void melvoxUiDifferentialConfiguration_t::submit()
{
    errorText_t err;
    submitDiffConfig(err);
    submitRtcmVersion();
    submitBaseName();
    err.report();
    query();
}

void melvoxUiDifferentialConfiguration_t::reset()
{
    resetDiffConfig();
    resetRtcmVersion();
    resetBaseName();
}

void melvoxUiDifferentialConfiguration_t::query()
{
    m_data->device->queryDiffConfig();
    m_data->device->queryRtcmVersion();
    m_data->device->queryBaseName();
    m_data->device->queryBasePosition();
}

} // namespace brel_common_qt_gui
