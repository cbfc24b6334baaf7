#include "melvox_ui/melvoxVersionWarnDialog.h"

#include "support/pageSupport.h"
#include "ui_melvoxVersionWarnDialog.h"

#include <QPushButton>
#include <QStringList>

namespace brel_common_qt_gui
{

namespace
{

QString versionText(std::vector<unsigned int> const& version)
{
    QStringList parts;
    for (unsigned int const part : version)
        parts << QString::number(part);
    return parts.join(".");
}

} // namespace

struct MELVOX_UI_HIDDEN melvoxVersionWarnDialog_t::privateData_t
{
    Ui_melvoxVersionWarnDialog ui;
};

melvoxVersionWarnDialog_t::melvoxVersionWarnDialog_t(QWidget* parent) : QDialog(parent), m_data(new privateData_t)
{
    m_data->ui.setupUi(this);
    m_data->ui.buttonBox->button(QDialogButtonBox::Ok)->setMinimumHeight(TOUCH_HEIGHT);
    connect(m_data->ui.buttonBox, SIGNAL(accepted()), SLOT(accept()));
}

melvoxVersionWarnDialog_t::~melvoxVersionWarnDialog_t()
{
    delete m_data;
}

void melvoxVersionWarnDialog_t::setMinimumVersion(std::vector<unsigned int> const& version)
{
    m_data->ui.minVersionLabel->setText(versionText(version));
}

void melvoxVersionWarnDialog_t::setCurrentVersion(std::vector<unsigned int> const& version)
{
    m_data->ui.currentVersionLabel->setText(versionText(version));
}

} // namespace brel_common_qt_gui
