#include "melvoxUiAntennaConfigDialog_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt_gui/errorText.h"
#include "support/asciiText.h"
#include "support/dialogButtons.h"
#include "support/pageSupport.h"
#include "support/qtCompat.h"

#include <cmath>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

unsigned int const SETUP_ID_MAX = 255;
int const SETUP_ID_WIDTH = 3;
int const RANGE_MIN = -32768; // of slant range and radius, millimetres
int const RANGE_MAX = 32767;
int const RANGE_WIDTH = 5;

// An antenna without a name; a word that the receiver reads.
char const* const NO_NAME = "NONE";

/** Shows a number of millimetres as its digits and its sign. */
void showRange(double millimetres, QLineEdit* edit, QComboBox* signCombo)
{
    edit->setText(zeroPadded(std::floor(std::fabs(millimetres)), RANGE_WIDTH, 0));
    signCombo->setCurrentIndex(millimetres < 0 ? 1 : 0);
}

/** False, and `millimetres` untouched, when there is no number or it lies outside the limits with its sign. */
bool readRange(QLineEdit const* edit, QComboBox const* signCombo, double& millimetres)
{
    double number = 0;
    if (!readNumber(edit, number))
        return false;
    if (signCombo->currentIndex() > 0)
        number = -number;
    if (!(number >= RANGE_MIN && number <= RANGE_MAX))
        return false;
    millimetres = number;
    return true;
}

} // namespace

melvoxUiAntennaConfigDialog_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), antenna(MELVOX_ANTENNA_FIRST), height(0)
{
}

melvoxUiAntennaConfigDialog_t::melvoxUiAntennaConfigDialog_t(remoteMelvoxDevice_t* device, QWidget* parent)
    : QDialog(parent), m_data(new privateData_t(device))
{
    Ui_melvoxUiAntennaConfigDialog& ui = m_data->ui;
    ui.setupUi(this);
    connectDialogButtons(ui.buttonBox, this, SLOT(submit()));
    connect(ui.useAdjustmentsCombo, SIGNAL(currentIndexChanged(int)), SLOT(checkAdjust()));
    connect(device, SIGNAL(antennaListReset()), SLOT(initAntList()));
    connect(device, SIGNAL(antennaNameAdded(QString const&)), SLOT(addAntName(QString const&)));

    initAntList();
    checkAdjust();
}

melvoxUiAntennaConfigDialog_t::~melvoxUiAntennaConfigDialog_t()
{
    delete m_data;
}

void melvoxUiAntennaConfigDialog_t::setAntenna(melvoxAntenna_t antenna)
{
    m_data->antenna = antenna;
    m_data->ui.antennaLabel->setText(melvoxAntennaName(antenna));
}

void melvoxUiAntennaConfigDialog_t::setInfo(melvoxAntennaInfo_t const& info)
{
    Ui_melvoxUiAntennaConfigDialog& ui = m_data->ui;
    ui.nameCombo->setCurrentIndex(ui.nameCombo->findText(QString::fromStdString(info.name), Qt::MatchFixedString));
    ui.serialNumberLineEdit->setText(QString::fromStdString(info.serial));
    ui.setupIdLineEdit->setText(zeroPadded(info.id, SETUP_ID_WIDTH));
}

void melvoxUiAntennaConfigDialog_t::setHeight(melvoxAntennaHeight_t const& height)
{
    Ui_melvoxUiAntennaConfigDialog& ui = m_data->ui;
    m_data->height = height.height;
    ui.useAdjustmentsCombo->setCurrentIndex(height.useAdjustments ? 1 : 0);
    showRange(height.slantRange, ui.slantRangeLineEdit, ui.slantRangeSignCombo);
    showRange(height.radius, ui.radiusLineEdit, ui.radiusSignCombo);
}

void melvoxUiAntennaConfigDialog_t::submit()
{
    Ui_melvoxUiAntennaConfigDialog& ui = m_data->ui;
    errorText_t err;

    melvoxAntennaInfo_t info = {upperAsciiText(ui.nameCombo->currentText()),
                                ui.serialNumberLineEdit->text().toStdString(), 0};
    if (!readWithin(ui.setupIdLineEdit, 0u, SETUP_ID_MAX, info.id))
        err << tr("Setup ID must be 0 - ") << SETUP_ID_MAX << endl;

    // Also while the adjustments are not in use: they are kept for when they will be.
    melvoxAntennaHeight_t height = {ui.useAdjustmentsCombo->currentIndex() > 0, m_data->height, 0, 0};
    if (!readRange(ui.slantRangeLineEdit, ui.slantRangeSignCombo, height.slantRange))
        err << tr("Slant Range must be ") << RANGE_MIN << " - " << RANGE_MAX << endl;
    if (!readRange(ui.radiusLineEdit, ui.radiusSignCombo, height.radius))
        err << tr("Radius must be ") << RANGE_MIN << " - " << RANGE_MAX << endl;

    if (!err.isEmpty())
    {
        err.report();
        return;
    }

    remoteMelvoxDevice_t* const device = m_data->device;
    if (m_data->antenna == MELVOX_ANTENNA_FIRST)
    {
        device->setAntennaInfo(info, device->antennaInfo(MELVOX_ANTENNA_SECOND));
        device->setAntennaHeight(height, device->antennaHeight(MELVOX_ANTENNA_SECOND));
    }
    else
    {
        device->setAntennaInfo(device->antennaInfo(MELVOX_ANTENNA_FIRST), info);
        device->setAntennaHeight(device->antennaHeight(MELVOX_ANTENNA_FIRST), height);
    }
    accept();
}

void melvoxUiAntennaConfigDialog_t::initAntList()
{
    m_data->ui.nameCombo->clear();
    m_data->ui.nameCombo->addItem(NO_NAME);
    QStringList const names = m_data->device->antennaList();
    for (QString const& name : names)
        addAntName(name);
}

void melvoxUiAntennaConfigDialog_t::addAntName(QString const& name)
{
    m_data->ui.nameCombo->addItem(name);
}

void melvoxUiAntennaConfigDialog_t::checkAdjust()
{
    Ui_melvoxUiAntennaConfigDialog& ui = m_data->ui;
    bool const use = ui.useAdjustmentsCombo->currentIndex() != 0;
    ui.slantRangeSignCombo->setEnabled(use);
    ui.slantRangeLineEdit->setEnabled(use);
    ui.radiusSignCombo->setEnabled(use);
    ui.radiusLineEdit->setEnabled(use);
}

} // namespace brel_common_qt_gui
