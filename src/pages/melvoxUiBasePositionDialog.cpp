#include "melvoxUiBasePositionDialog_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt_gui/guiSettings.h"
#include "support/degrees.h"
#include "support/dialogButtons.h"
#include "support/pageSupport.h"

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

melvoxUiBasePositionDialog_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_) : device(device_)
{
}

melvoxUiBasePositionDialog_t::melvoxUiBasePositionDialog_t(remoteMelvoxDevice_t* device, QWidget* parent)
    : QDialog(parent), m_data(new privateData_t(device))
{
    Ui_melvoxUiBasePositionDialog& ui = m_data->ui;
    ui.setupUi(this);
    ui.latitudeEdit->setKeypadPrompt(tr("Base Station Latitude"));
    ui.longitudeEdit->setKeypadPrompt(tr("Base Station Longitude"));
    ui.heightEdit->setKeypadPrompt(tr("Base Station Height"));
    enlargeButtons(ui.buttonBox);
    connectButton(ui.buttonBox, QDialogButtonBox::Apply, this, SLOT(submit()));
    connectButton(ui.buttonBox, QDialogButtonBox::Reset, this, SLOT(reset()));
    connect(ui.buttonBox, SIGNAL(rejected()), SLOT(reject()));

    reset();
}

melvoxUiBasePositionDialog_t::~melvoxUiBasePositionDialog_t()
{
    delete m_data;
}

void melvoxUiBasePositionDialog_t::reset()
{
    // The edits do not take what is no position. What the operator typed must not stay in its place.
    melvoxBasePosition_t const nowhere = {0, 0, 0};
    showPosition(nowhere);
    if (m_data->device->basePositionValid())
        showPosition(m_data->device->basePosition());
}

void melvoxUiBasePositionDialog_t::showPosition(melvoxBasePosition_t const& position)
{
    m_data->ui.latitudeEdit->setLatitude(degreesFromRadians(position.latitude));
    m_data->ui.longitudeEdit->setLongitude(degreesFromRadians(position.longitude));
    m_data->ui.heightEdit->setDistance(position.height, guiSettings_t::get().distanceUnit());
}

void melvoxUiBasePositionDialog_t::submit()
{
    melvoxBasePosition_t const position = {m_data->ui.latitudeEdit->radians(), m_data->ui.longitudeEdit->radians(),
                                           m_data->ui.heightEdit->meters()};
    m_data->device->setBasePosition(position);
    accept();
}

} // namespace brel_common_qt_gui
