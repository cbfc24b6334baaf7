#include "melvoxUiCustomSatDialog_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "support/dialogButtons.h"
#include "support/pageSupport.h"

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

int const ID_WIDTH = 3;
int const FREQUENCY_WIDTH = 9; // with point and decimals
int const FREQUENCY_DECIMALS = 4;
float const KILOHERTZ_PER_MEGAHERTZ = 1000;

} // namespace

melvoxUiCustomSatDialog_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_) : device(device_)
{
}

melvoxUiCustomSatDialog_t::melvoxUiCustomSatDialog_t(remoteMelvoxDevice_t* device, QWidget* parent)
    : QDialog(parent), m_data(new privateData_t(device))
{
    Ui_melvoxUiCustomSatDialog& ui = m_data->ui;
    ui.setupUi(this);
    enlargeButtons(ui.buttonBox);
    addActionButton(ui.buttonBox, tr("Define Satellite"), this, SLOT(defineCustomSat()));
    addActionButton(ui.buttonBox, tr("Clear Satellite"), this, SLOT(deleteCustomSat()));
    connect(ui.buttonBox, SIGNAL(rejected()), SLOT(reject()));
    connect(device, SIGNAL(userCorrectionSatUpdated()), SLOT(updateCustomSat()));

    updateCustomSat();
}

melvoxUiCustomSatDialog_t::~melvoxUiCustomSatDialog_t()
{
    delete m_data;
}

void melvoxUiCustomSatDialog_t::updateCustomSat()
{
    Ui_melvoxUiCustomSatDialog& ui = m_data->ui;
    remoteMelvoxDevice_t const* const device = m_data->device;
    bool const defined = device->userCorrectionSatValid() && device->userCorrectionSatDefined();
    unsigned int const id = device->userCorrectionSatId();
    double const megahertz = double(device->userCorrectionSatFrequency()) / KILOHERTZ_PER_MEGAHERTZ;
    showStatus(ui.idLabel, defined, QString::number(id));
    showStatus(ui.freqLabel, defined, fixed(megahertz, FREQUENCY_DECIMALS));
    if (!defined)
        return;
    ui.idLineEdit->setText(zeroPadded(id, ID_WIDTH));
    ui.freqLineEdit->setText(zeroPadded(megahertz, FREQUENCY_WIDTH, FREQUENCY_DECIMALS));
}

void melvoxUiCustomSatDialog_t::defineCustomSat()
{
    // Text that is no number counts as 0.
    int const id = m_data->ui.idLineEdit->text().toInt();
    float const megahertz = m_data->ui.freqLineEdit->text().toFloat();
    m_data->device->defineUserCorrectionSat(id, megahertz * KILOHERTZ_PER_MEGAHERTZ);
}

void melvoxUiCustomSatDialog_t::deleteCustomSat()
{
    m_data->device->deleteUserCorrectionSat();
}

} // namespace brel_common_qt_gui
