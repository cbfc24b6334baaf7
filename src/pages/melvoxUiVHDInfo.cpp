#include "melvoxUiVHDInfo_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/textHelpers.h"
#include "support/pageSupport.h"

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

int const STALE_AFTER = 2500; // milliseconds

} // namespace

melvoxUiVHDInfo_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_) : device(device_)
{
}

melvoxUiVHDInfo_t::melvoxUiVHDInfo_t(remoteMelvoxDevice_t* device) : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    connect(device, SIGNAL(vhdInfoUpdated(double, double, double, double)),
            SLOT(updateVHDInfo(double, double, double, double)));
    m_data->clearTimer.setParent(this);
    m_data->clearTimer.setObjectName("clearTimer");
    m_data->clearTimer.setSingleShot(true);
    connect(&m_data->clearTimer, SIGNAL(timeout()), SLOT(clearVHDInfo()));
    clearVHDInfo();
}

melvoxUiVHDInfo_t::~melvoxUiVHDInfo_t()
{
    delete m_data;
}

void melvoxUiVHDInfo_t::updateVHDInfo(double rawHeading, double attitude, double baseline, double headingRMS)
{
    m_data->ui.correctedHeadingLabel->setText(fixed(rawHeading + attitude, 3));
    m_data->ui.attitudeLabel->setText(fixed(attitude, 3));
    m_data->ui.baselineLabel->setText(fixed(baseline, 3));
    m_data->ui.headingRMSLabel->setText(fixed(headingRMS, 3));
    m_data->ui.rawHeadingLabel->setText(fixed(rawHeading, 2));
    m_data->clearTimer.start(STALE_AFTER);
}

void melvoxUiVHDInfo_t::clearVHDInfo()
{
    m_data->ui.correctedHeadingLabel->setText(NoDataString);
    m_data->ui.attitudeLabel->setText(NoDataString);
    m_data->ui.baselineLabel->setText(NoDataString);
    m_data->ui.headingRMSLabel->setText(NoDataString);
    m_data->ui.rawHeadingLabel->setText(NoDataString);
}

} // namespace brel_common_qt_gui
