#include "melvoxUiRestart_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

melvoxUiRestart_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_) : device(device_)
{
}

melvoxUiRestart_t::melvoxUiRestart_t(remoteMelvoxDevice_t* device) : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    connect(m_data->ui.warmRestartButton, SIGNAL(clicked()), device, SLOT(warmRestart()));
    connect(m_data->ui.coldRestartButton, SIGNAL(clicked()), SLOT(coldRestart()));
}

melvoxUiRestart_t::~melvoxUiRestart_t()
{
    delete m_data;
}

void melvoxUiRestart_t::coldRestart()
{
    m_data->device->coldRestart(m_data->ui.useAlmanacCombo->currentIndex() != 0);
}

} // namespace brel_common_qt_gui
