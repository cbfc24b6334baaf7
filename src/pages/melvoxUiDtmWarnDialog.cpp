#include "melvoxUiDtmWarnDialog_p.h"

#include "support/dialogButtons.h"

namespace brel_common_qt_gui
{

melvoxUiDtmWarnDialog_t::melvoxUiDtmWarnDialog_t(QWidget* parent) : QDialog(parent), m_data(new privateData_t)
{
    m_data->ui.setupUi(this);
    connectDialogButtons(m_data->ui.buttonBox, this, SLOT(accept()));
}

melvoxUiDtmWarnDialog_t::~melvoxUiDtmWarnDialog_t()
{
    delete m_data;
}

bool melvoxUiDtmWarnDialog_t::suppressWarning() const
{
    return m_data->ui.suppressWarningCheckBox->isChecked();
}

} // namespace brel_common_qt_gui
