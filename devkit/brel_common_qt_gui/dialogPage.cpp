#include "brel_common_qt_gui/dialogPage.h"

#include "brel_common_qt_gui/kitDialog.h"

#include <QDialog>

namespace brel_common_qt_gui
{

namespace
{

dialogHost_t* theHost = nullptr;

} // namespace

dialogHost_t::~dialogHost_t()
{
}

dialogPage_t::dialogPage_t(QDialog* dialog) : m_dialog(dialog)
{
}

dialogPage_t::~dialogPage_t()
{
    delete m_dialog;
}

void dialogPage_t::show()
{
    if (m_dialog)
        melvox_kit::showDialog(m_dialog);
}

void dialogPage_t::setHost(dialogHost_t* host)
{
    theHost = host;
}

dialogHost_t* dialogPage_t::host()
{
    return theHost;
}

} // namespace brel_common_qt_gui
