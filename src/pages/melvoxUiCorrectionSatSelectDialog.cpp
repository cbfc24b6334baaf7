#include "melvoxUiCorrectionSatSelectDialog_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "support/dialogButtons.h"
#include "support/pageSupport.h"
#include "support/qtCompat.h"
#include "support/treeRows.h"

#include <QPushButton>
#include <QStringList>

#include <cmath>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

enum column_t
{
    COLUMN_ID,
    COLUMN_LONGITUDE,
    COLUMN_LOOK_ANGLE,
    COLUMN_NET,
    COLUMN_ATTRIBUTES
};

enum autoSelect_t
{
    AUTO_SELECT_NO,
    AUTO_SELECT_YES
};

// Numbers stand below each other.
int const LONGITUDE_WIDTH = 5;
int const LOOK_ANGLE_WIDTH = 3;

QString longitudeText(double degrees)
{
    return QString("%1%2").arg(std::fabs(degrees), LONGITUDE_WIDTH, 'f', 1).arg(degrees < 0 ? 'W' : 'E');
}

QString netText(melvoxCorrectionSat_t const& sat)
{
    QStringList nets;
    if (sat.net1)
        nets << "1";
    if (sat.net2)
        nets << "2";
    return nets.join(",");
}

QString attributesText(melvoxCorrectionSat_t const& sat)
{
    QStringList attributes;
    if (sat.flagU)
        attributes << "U";
    if (sat.flagA)
        attributes << "A";
    if (sat.flagC)
        attributes << "C";
    return attributes.join(",");
}

} // namespace

melvoxUiCorrectionSatSelectDialog_t::satItem_t::satItem_t(melvoxCorrectionSat_t const& sat)
{
    update(sat);
}

melvoxUiCorrectionSatSelectDialog_t::satItem_t::~satItem_t()
{
}

bool melvoxUiCorrectionSatSelectDialog_t::satItem_t::operator<(QTreeWidgetItem const& other) const
{
    satItem_t const& sat = static_cast<satItem_t const&>(other);
    switch (treeWidget() ? treeWidget()->sortColumn() : COLUMN_ID)
    {
    case COLUMN_ID:
        return m_id < sat.m_id;
    case COLUMN_LONGITUDE:
        return m_longitude < sat.m_longitude;
    case COLUMN_LOOK_ANGLE:
        return m_lookAngle < sat.m_lookAngle;
    case COLUMN_NET:
        return m_net < sat.m_net;
    default:
        return QTreeWidgetItem::operator<(other);
    }
}

bool melvoxUiCorrectionSatSelectDialog_t::satItem_t::shows(melvoxCorrectionSat_t const& sat) const
{
    return m_id == sat.id && m_longitude == sat.longitude && m_lookAngle == sat.lookAngle &&
           text(COLUMN_NET) == netText(sat) && text(COLUMN_ATTRIBUTES) == attributesText(sat);
}

void melvoxUiCorrectionSatSelectDialog_t::satItem_t::update(melvoxCorrectionSat_t const& sat)
{
    m_id = sat.id;
    m_longitude = sat.longitude;
    m_lookAngle = sat.lookAngle;
    m_net = sat.net1 ? 1 : sat.net2 ? 2 : 0;
    setText(COLUMN_ID, QString::number(sat.id));
    setText(COLUMN_LONGITUDE, longitudeText(sat.longitude));
    setText(COLUMN_LOOK_ANGLE, QString("%1").arg(int(sat.lookAngle), LOOK_ANGLE_WIDTH));
    setText(COLUMN_NET, netText(sat));
    setText(COLUMN_ATTRIBUTES, attributesText(sat));
}

melvoxUiCorrectionSatSelectDialog_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_) : device(device_)
{
}

melvoxUiCorrectionSatSelectDialog_t::melvoxUiCorrectionSatSelectDialog_t(remoteMelvoxDevice_t* device, QWidget* parent)
    : QDialog(parent), m_data(new privateData_t(device))
{
    Ui_melvoxUiCorrectionSatSelectDialog& ui = m_data->ui;
    ui.setupUi(this);
    enlargeButtons(ui.buttonBox);
    addActionButton(ui.buttonBox, tr("Query"), this, SLOT(query()));
    connect(ui.buttonBox, SIGNAL(accepted()), SLOT(submit()));
    connect(ui.buttonBox, SIGNAL(rejected()), SLOT(close()));
    connect(ui.autoSelectCombo, SIGNAL(currentIndexChanged(int)), SLOT(updateAutoSelect()));
    connect(ui.autoSelectCombo, SIGNAL(currentIndexChanged(int)), SLOT(updateOkButton()));
    connect(ui.satTree, SIGNAL(itemSelectionChanged()), SLOT(updateOkButton()));
    connect(device, SIGNAL(correctionSatsUpdated()), SLOT(updateSatList()));

    updateAutoSelect();
    updateSatList();
    ui.satTree->sortItems(COLUMN_ID, Qt::AscendingOrder);
    setResizeMode(ui.satTree->header(), QHeaderView::ResizeToContents);
    updateOkButton();
}

melvoxUiCorrectionSatSelectDialog_t::~melvoxUiCorrectionSatSelectDialog_t()
{
    delete m_data;
}

void melvoxUiCorrectionSatSelectDialog_t::query()
{
    m_data->device->queryCorrectionSats();
}

void melvoxUiCorrectionSatSelectDialog_t::submit()
{
    if (m_data->ui.autoSelectCombo->currentIndex() < AUTO_SELECT_YES)
    {
        QList<QTreeWidgetItem*> const selected = m_data->ui.satTree->selectedItems();
        if (selected.isEmpty())
            return;
        m_data->device->selectCorrectionSat(static_cast<satItem_t*>(selected.first())->id());
    }
    else
    {
        m_data->device->autoSelectCorrectionSat();
    }
    accept();
}

void melvoxUiCorrectionSatSelectDialog_t::updateSatList()
{
    keepInStep<satItem_t>(m_data->ui.satTree, m_data->device->correctionSats());
}

melvoxUiCorrectionSatSelectDialog_t::satItem_t*
melvoxUiCorrectionSatSelectDialog_t::findItemBySatId(unsigned int id) const
{
    return findRow<satItem_t>(m_data->ui.satTree, id);
}

void melvoxUiCorrectionSatSelectDialog_t::setStateFromDevice()
{
    setAutoSelectFromDevice();
    setSelectedSatFromDevice();
}

void melvoxUiCorrectionSatSelectDialog_t::setAutoSelectFromDevice()
{
    if (m_data->device->correctionSatSelectionValid())
        m_data->ui.autoSelectCombo->setCurrentIndex(m_data->device->correctionSatSelectionIsAuto() ? AUTO_SELECT_YES
                                                                                                   : AUTO_SELECT_NO);
}

void melvoxUiCorrectionSatSelectDialog_t::setSelectedSatFromDevice()
{
    m_data->ui.satTree->clearSelection();
    if (!m_data->device->correctionSatInUseValid())
        return;
    if (satItem_t* const item = findItemBySatId(m_data->device->correctionSatInUse()))
        m_data->ui.satTree->setCurrentItem(item);
}

void melvoxUiCorrectionSatSelectDialog_t::updateAutoSelect()
{
    m_data->ui.satTree->setEnabled(m_data->ui.autoSelectCombo->currentIndex() < AUTO_SELECT_YES);
}

void melvoxUiCorrectionSatSelectDialog_t::updateOkButton()
{
    bool const isAuto = m_data->ui.autoSelectCombo->currentIndex() == AUTO_SELECT_YES;
    bool const oneSelected = m_data->ui.satTree->selectedItems().size() == 1;
    m_data->ui.buttonBox->button(QDialogButtonBox::Ok)->setEnabled(isAuto || oneSelected);
}

} // namespace brel_common_qt_gui
