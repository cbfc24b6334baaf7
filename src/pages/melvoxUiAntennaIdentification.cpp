#include "melvoxUiAntennaIdentification_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt_gui/dialogPage.h"
#include "melvox_ui/melvoxUiAntennaConfigDialog.h"
#include "support/asciiText.h"
#include "support/pageSupport.h"
#include "support/qtCompat.h"

#include <QPushButton>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

enum setUi_t
{
    ANT_REMOTE,
    ANT_DUAL_MODE,
    NUM_SET_UI
};

enum column_t
{
    COLUMN_ANTENNA,
    COLUMN_NAME,
    COLUMN_SERIAL,
    COLUMN_ID,
    COLUMN_USE_ADJUSTMENTS,
    COLUMN_SLANT_RANGE,
    COLUMN_RADIUS
};

// Words that the receiver reads. All but the first go out as they stand.
char const* const AUTO_NAME = "AUTO";
char const* const NO_NAME = "NONE";
char const* const DUAL_MODES[] = {"DEFAULT", "SFONLY"};
int const AUTO_INDEX = 0;

/** The item of a word of the receiver, which may be written either way; -1 when there is none. */
int indexOfWord(QComboBox const* combo, std::string const& word)
{
    return combo->findText(QString::fromStdString(word), Qt::MatchFixedString);
}

} // namespace

melvoxUiAntennaIdentification_t::item_t::item_t(melvoxAntenna_t antenna) : m_antenna(antenna), m_info(), m_height()
{
    setText(COLUMN_ANTENNA, melvoxAntennaName(antenna));
}

melvoxUiAntennaIdentification_t::item_t::~item_t()
{
}

void melvoxUiAntennaIdentification_t::item_t::setInfo(melvoxAntennaInfo_t const& info)
{
    m_info = info;
    setText(COLUMN_NAME, QString::fromStdString(info.name));
    setText(COLUMN_SERIAL, QString::fromStdString(info.serial));
    setText(COLUMN_ID, QString::number(info.id));
}

void melvoxUiAntennaIdentification_t::item_t::setHeight(melvoxAntennaHeight_t const& height)
{
    m_height = height;
    setText(COLUMN_USE_ADJUSTMENTS, yesNo(height.useAdjustments));
    setText(COLUMN_SLANT_RANGE, QString::number(height.slantRange));
    setText(COLUMN_RADIUS, QString::number(height.radius));
}

melvoxUiAntennaIdentification_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : device(device_), setUi(NUM_SET_UI), configureButton(nullptr), configDialog(nullptr), configDialogPage(nullptr)
{
}

melvoxUiAntennaIdentification_t::melvoxUiAntennaIdentification_t(remoteMelvoxDevice_t* device)
    : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    setResizeMode(m_data->ui.antennaTree->header(), QHeaderView::ResizeToContents);
    m_data->configDialog = new melvoxUiAntennaConfigDialog_t(device, this);
    m_data->configDialogPage = new dialogPage_t(m_data->configDialog);
    connectPage();
    connectReceiver();

    initAntList();
    initAntDualMode();
    updateInfo();
    updateAdjust();
    updateAntRemote();
    updateAntDualMode();
    checkSelectedAntenna();
}

melvoxUiAntennaIdentification_t::~melvoxUiAntennaIdentification_t()
{
    delete m_data->configDialogPage;
    delete m_data;
}

void melvoxUiAntennaIdentification_t::connectPage()
{
    Ui_melvoxUiAntennaIdentification& ui = m_data->ui;
    addPageButtons(ui.buttonBox, this);
    m_data->configureButton = addActionButton(ui.buttonBox, tr("Configure"), this, SLOT(configureSelectedAntenna()));
    connect(ui.antennaTree, SIGNAL(itemDoubleClicked(QTreeWidgetItem*, int)), SLOT(configureSelectedAntenna()));
    connect(ui.antennaTree, SIGNAL(itemSelectionChanged()), SLOT(checkSelectedAntenna()));
}

void melvoxUiAntennaIdentification_t::connectReceiver()
{
    remoteMelvoxDevice_t* const device = m_data->device;
    connect(device, SIGNAL(antennaInfosUpdated()), SLOT(updateInfo()));
    connect(device, SIGNAL(antennaHeightsUpdated()), SLOT(updateAdjust()));
    connect(device, SIGNAL(antennaRemoteUpdated(brel_common_qt::melvoxAntennaRemote_t const&)),
            SLOT(updateAntRemote()));
    connect(device, SIGNAL(antennaDualModeUpdated(brel_common_qt::melvoxAntennaDualMode_t const&)),
            SLOT(updateAntDualMode()));
    connect(device, SIGNAL(antennaListReset()), SLOT(initAntList()));
    connect(device, SIGNAL(antennaNameAdded(QString const&)), SLOT(addAntName(QString const&)));
}

melvoxUiAntennaIdentification_t::item_t* melvoxUiAntennaIdentification_t::itemForAntenna(melvoxAntenna_t antenna)
{
    QTreeWidget* const tree = m_data->ui.antennaTree;
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
    {
        item_t* const item = static_cast<item_t*>(tree->topLevelItem(i));
        if (item->antenna() == antenna)
            return item;
    }
    item_t* const added = new item_t(antenna);
    tree->addTopLevelItem(added);
    return added;
}

melvoxUiAntennaIdentification_t::item_t* melvoxUiAntennaIdentification_t::selectedAntenna() const
{
    QList<QTreeWidgetItem*> const selected = m_data->ui.antennaTree->selectedItems();
    return selected.isEmpty() ? nullptr : static_cast<item_t*>(selected.first());
}

void melvoxUiAntennaIdentification_t::updateInfo()
{
    if (!m_data->device->antennaInfoValid())
        return;
    for (int i = MELVOX_ANTENNA_FIRST; i < MELVOX_NUM_ANTENNAS; ++i)
        itemForAntenna(melvoxAntenna_t(i))->setInfo(m_data->device->antennaInfo(melvoxAntenna_t(i)));
}

void melvoxUiAntennaIdentification_t::updateAdjust()
{
    if (!m_data->device->antennaHeightValid())
        return;
    for (int i = MELVOX_ANTENNA_FIRST; i < MELVOX_NUM_ANTENNAS; ++i)
        itemForAntenna(melvoxAntenna_t(i))->setHeight(m_data->device->antennaHeight(melvoxAntenna_t(i)));
}

void melvoxUiAntennaIdentification_t::checkSelectedAntenna()
{
    m_data->configureButton->setEnabled(selectedAntenna() != nullptr);
}

void melvoxUiAntennaIdentification_t::configureSelectedAntenna()
{
    item_t const* const item = selectedAntenna();
    if (!item)
        return;
    m_data->configDialog->setAntenna(item->antenna());
    m_data->configDialog->setInfo(item->info());
    m_data->configDialog->setHeight(item->height());
    m_data->configDialogPage->show();
}

void melvoxUiAntennaIdentification_t::initAntList()
{
    m_data->ui.antRemoteNameCombo->clear();
    m_data->ui.antRemoteNameCombo->addItem(AUTO_NAME);
    m_data->ui.antRemoteNameCombo->addItem(NO_NAME);
    QStringList const names = m_data->device->antennaList();
    for (QString const& name : names)
        addAntName(name);
}

void melvoxUiAntennaIdentification_t::addAntName(QString const& name)
{
    m_data->ui.antRemoteNameCombo->addItem(name);
    // It may be the one that the receiver uses, which could not be chosen until now.
    reset();
}

void melvoxUiAntennaIdentification_t::updateAntRemote()
{
    bool const valid = m_data->device->antennaRemoteValid();
    melvoxAntennaRemote_t const& remote = m_data->device->antennaRemote();
    QString const name = QString::fromStdString(remote.name);
    showStatus(m_data->ui.antRemoteNameLabel, valid, remote.automatic ? tr("(Auto) ") + name : name);
    fillOnce(m_data->setUi, ANT_REMOTE, valid, this, &melvoxUiAntennaIdentification_t::resetAntRemote);
}

void melvoxUiAntennaIdentification_t::resetAntRemote()
{
    if (!m_data->device->antennaRemoteValid())
        return;
    QComboBox* const combo = m_data->ui.antRemoteNameCombo;
    melvoxAntennaRemote_t const& remote = m_data->device->antennaRemote();
    combo->setCurrentIndex(remote.automatic ? AUTO_INDEX : indexOfWord(combo, remote.name));
}

void melvoxUiAntennaIdentification_t::submitAntRemote()
{
    QComboBox const* const combo = m_data->ui.antRemoteNameCombo;
    bool const automatic = combo->currentIndex() == AUTO_INDEX;
    melvoxAntennaRemote_t const remote = {automatic, automatic ? std::string() : upperAsciiText(combo->currentText())};
    m_data->device->setAntennaRemote(remote);
}

void melvoxUiAntennaIdentification_t::initAntDualMode()
{
    m_data->ui.antDualModeCombo->clear();
    for (char const* const mode : DUAL_MODES)
        m_data->ui.antDualModeCombo->addItem(mode);
}

void melvoxUiAntennaIdentification_t::updateAntDualMode()
{
    bool const valid = m_data->device->antennaDualModeValid();
    showStatus(m_data->ui.antDualModeLabel, valid, QString::fromStdString(m_data->device->antennaDualMode()));
    fillOnce(m_data->setUi, ANT_DUAL_MODE, valid, this, &melvoxUiAntennaIdentification_t::resetAntDualMode);
}

void melvoxUiAntennaIdentification_t::resetAntDualMode()
{
    QComboBox* const combo = m_data->ui.antDualModeCombo;
    if (m_data->device->antennaDualModeValid())
        combo->setCurrentIndex(indexOfWord(combo, m_data->device->antennaDualMode()));
}

void melvoxUiAntennaIdentification_t::submitAntDualMode()
{
    m_data->device->setAntennaDualMode(upperAsciiText(m_data->ui.antDualModeCombo->currentText()));
}

void melvoxUiAntennaIdentification_t::submit()
{
    submitAntRemote();
    submitAntDualMode();
}

void melvoxUiAntennaIdentification_t::reset()
{
    resetAntRemote();
    resetAntDualMode();
}

void melvoxUiAntennaIdentification_t::query()
{
    m_data->device->queryAntennaInfo();
    m_data->device->queryAntennaHeight();
    m_data->device->queryAntennaRemote();
    m_data->device->queryAntennaDualMode();
}

} // namespace brel_common_qt_gui
