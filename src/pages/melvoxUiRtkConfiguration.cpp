#include "melvoxUiRtkConfiguration_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt_gui/errorText.h"
#include "support/pageSupport.h"
#include "support/qtCompat.h"

#include <QTimer>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

int const USER_ANGLE_LIMIT = 360; // degrees; itself outside
int const USER_ANGLE_WIDTH = 6;   // fills the input mask
int const USER_ANGLE_DECIMALS = 2;

// The alignment is the only group of ten that the page has a place for.
int const ANTENNA_ALIGNMENT = 9;
int const NUM_SET_UI = 10;

} // namespace

melvoxUiRtkConfiguration_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), setUi(NUM_SET_UI)
{
}

melvoxUiRtkConfiguration_t::melvoxUiRtkConfiguration_t(remoteMelvoxDevice_t* device) : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    addPageButtons(m_data->ui.buttonBox, this);
    connectReceiver();
    updateAntennaAlignment();
    QTimer::singleShot(0, this, SLOT(showMbrtkPage()));
}

melvoxUiRtkConfiguration_t::~melvoxUiRtkConfiguration_t()
{
    delete m_data;
}

void melvoxUiRtkConfiguration_t::connectReceiver()
{
    connect(m_data->ui.alignmentCombo, SIGNAL(currentIndexChanged(int)), SLOT(checkAlignment()));
    remoteMelvoxDevice_t* const device = m_data->device;
    connect(device, SIGNAL(antennaAlignmentModeUpdated(brel_common_qt::melvoxAntennaAlignmentMode_t)),
            SLOT(updateAntennaAlignment()));
    connect(device, SIGNAL(antennaAlignmentUserAngleUpdated(endian::f32_t)), SLOT(updateAntennaAlignment()));
}

void melvoxUiRtkConfiguration_t::updateAntennaAlignment()
{
    Ui_melvoxUiRtkConfiguration& ui = m_data->ui;
    bool const valid = m_data->device->antennaAlignmentValid();
    melvoxAntennaAlignmentMode_t const mode = m_data->device->antennaAlignmentMode();
    bool const atAngle = valid && mode == MELVOX_ANT_ALIGN_MODE_USER_SPECIFIED;
    showStatus(ui.alignmentLabel, valid, ui.alignmentCombo->itemText(mode));
    showStatus(ui.userAngleLabel, atAngle, fixed(m_data->device->antennaAlignmentUserAngle(), USER_ANGLE_DECIMALS));
    fillOnce(m_data->setUi, ANTENNA_ALIGNMENT, valid, this, &melvoxUiRtkConfiguration_t::resetAntennaAlignment);
    ui.alignmentCombo->setEnabled(valid);
    // With a valid value the angle follows what is chosen in the combo, not what the receiver has.
    if (!valid)
        ui.userAngleLineEdit->setEnabled(false);
}

void melvoxUiRtkConfiguration_t::resetAntennaAlignment()
{
    if (!m_data->device->antennaAlignmentValid())
        return;
    melvoxAntennaAlignmentMode_t const mode = m_data->device->antennaAlignmentMode();
    bool const atAngle = mode == MELVOX_ANT_ALIGN_MODE_USER_SPECIFIED;
    double const angle = atAngle ? m_data->device->antennaAlignmentUserAngle() : 0;
    setChoice(m_data->ui.alignmentCombo, mode);
    m_data->ui.userAngleLineEdit->setText(zeroPadded(angle, USER_ANGLE_WIDTH, USER_ANGLE_DECIMALS));
}

void melvoxUiRtkConfiguration_t::submitAntennaAlignment(errorText_t& err)
{
    int const mode = m_data->ui.alignmentCombo->currentIndex();
    if (!m_data->ui.alignmentCombo->isEnabled() || mode < 0)
        return;
    float angle = 0;
    bool const atAngle = mode == MELVOX_ANT_ALIGN_MODE_USER_SPECIFIED;
    if (atAngle && !(readNumber(m_data->ui.userAngleLineEdit, angle) && angle < USER_ANGLE_LIMIT))
    {
        err << tr("User angle must be 0 - ") << USER_ANGLE_LIMIT << endl;
        return;
    }
    m_data->device->setAntennaAlignment(melvoxAntennaAlignmentMode_t(mode), angle);
}

void melvoxUiRtkConfiguration_t::checkAlignment()
{
    int const mode = m_data->ui.alignmentCombo->currentIndex();
    m_data->ui.userAngleLineEdit->setEnabled(mode == MELVOX_ANT_ALIGN_MODE_USER_SPECIFIED);
}

void melvoxUiRtkConfiguration_t::showMbrtkPage()
{
    m_data->ui.stackedWidget->setCurrentWidget(m_data->ui.mbrtkPage);
}

void melvoxUiRtkConfiguration_t::submit()
{
    errorText_t err;
    submitAntennaAlignment(err);
    err.report();
}

void melvoxUiRtkConfiguration_t::reset()
{
    resetAntennaAlignment();
}

void melvoxUiRtkConfiguration_t::query()
{
    m_data->device->queryAntennaAlignment();
}

} // namespace brel_common_qt_gui
