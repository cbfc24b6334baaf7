#include "melvoxUiWiFiPasskeyDialog_p.h"

#include "support/dialogButtons.h"

#include <QPushButton>

namespace brel_common_qt_gui
{

melvoxUiWiFiPasskeyDialog_t::melvoxUiWiFiPasskeyDialog_t(QWidget* parent) : QDialog(parent), m_data(new privateData_t)
{
    m_data->ui.setupUi(this);
    connect(m_data->ui.passkeyEdit, SIGNAL(textChanged(QString const&)), SLOT(checkPasskey()));
    connectDialogButtons(m_data->ui.buttonBox, this, SLOT(accept()));
    checkPasskey();
}

melvoxUiWiFiPasskeyDialog_t::~melvoxUiWiFiPasskeyDialog_t()
{
    delete m_data;
}

QString melvoxUiWiFiPasskeyDialog_t::passkey() const
{
    return m_data->ui.passkeyEdit->text();
}

void melvoxUiWiFiPasskeyDialog_t::clearPasskey()
{
    m_data->ui.passkeyEdit->setText(QString());
}

void melvoxUiWiFiPasskeyDialog_t::checkPasskey()
{
    m_data->ui.buttonBox->button(QDialogButtonBox::Ok)->setEnabled(!passkey().isEmpty());
}

} // namespace brel_common_qt_gui
