#include "melvoxUiOutputMessages_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/textHelpers.h"
#include "qdconfig/config.h"
#include "support/asciiText.h"
#include "support/pageSupport.h"
#include "support/qtCompat.h"
#include "support/treeRows.h"

#include <QPushButton>

#include <cmath>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

enum setUi_t
{
    GGA_MODE,
    TALKER_ID_MODE,
    NUM_SET_UI
};

enum column_t
{
    COLUMN_NAME,
    COLUMN_OUTPUT
};

enum qualityChoice_t
{
    QUALITY_2,
    QUALITY_5
};

int const RATE_DIGITS = 6;

char const* const SHOW_DTM_WARNING_KEY = "show_dtm_warning";
char const* const CUSTOM_INTERVAL =
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiOutputMessages_t", "Custom Interval");

// The receiver calls what it cannot name so.
char const* const NAK_MESSAGE = "??";
char const* const NAK_DISPLAY_NAME = "NAK";

melvoxPort_t const hidePorts[] = {MELVOX_PORT_USB2};

char const* const DEFAULT_MESSAGES[] = {
    "NMEADTM",     "NMEAGBS",     "NMEAGGA",     "NMEAGLL",     "NMEAGNS",     "NMEAGRS", "NMEAGSA",
    "NMEAGST",     "NMEAGSV",     "NMEAHDT",     "NMEARMC",     "NMEAROT",     "NMEAVTG", "NMEAZDA",
    "NMEAPZLQDTM", "NMEAPZLQGGA", "NMEAPZLQGST", "NMEAPZLQMDE", "NMEAPZLQSET", "PVT1B",   "NMEAPTPSRVHD"};

char const* const MULTI_HZ_MESSAGES[] = {"NMEAGGA", "NMEAGSA",     "NMEAGST",     "NMEAHDT", "NMEAVTG",
                                         "NMEAZDA", "NMEAPZLQGGA", "NMEAPZLQGST", "PVT1B"};

// The two halves of one kind of corrections: whoever sets one means both.
char const* const RTCM_1 = "RTCM1";
char const* const RTCM_31 = "RTCM31";
char const* const CUSTOM_INTERVAL_MESSAGES[] = {RTCM_1, RTCM_31};

// Their output follows other settings and can only be turned off.
char const* const UNEDITABLE_MESSAGES[] = {"RTCM3", "RTCM16"};

char const* const DTM_TRIGGER_MESSAGES[] = {"NMEAPZLQGGA", "NMEAGGA", "NMEAGLL", "NMEARMC"};

template <typename entry_t, int size, typename value_t>
bool isAmong(entry_t const (&entries)[size], value_t const& value)
{
    for (entry_t const& entry : entries)
    {
        if (value == entry)
            return true;
    }
    return false;
}

template <int size> QStringList listOf(char const* const (&texts)[size])
{
    QStringList list;
    for (char const* text : texts)
        list << text;
    return list;
}

QString displayName(std::string const& name)
{
    return QString::fromLatin1(name == NAK_MESSAGE ? NAK_DISPLAY_NAME : name.c_str());
}

std::string receiverName(QString const& displayName)
{
    return displayName == NAK_DISPLAY_NAME ? NAK_MESSAGE : asciiText(displayName);
}

QString rateText(double hertz)
{
    return QString::number(hertz, 'g', RATE_DIGITS);
}

QString usageText(bool valid, float percent)
{
    return valid ? QString("%1%").arg(fixed(percent, 2)) : NoDataString;
}

} // namespace

melvoxUiOutputMessages_t::item_t::item_t(std::string const& msgName) : m_msgName(msgName)
{
    setText(COLUMN_NAME, displayName(msgName));
}

std::string const& melvoxUiOutputMessages_t::item_t::msgName() const
{
    return m_msgName;
}

void melvoxUiOutputMessages_t::item_t::clearOutput()
{
    setText(COLUMN_OUTPUT, melvoxUiOutputMessages_t::tr("Disabled"));
}

void melvoxUiOutputMessages_t::item_t::update(melvoxMessageOutput_t const& output)
{
    if (output.method == MELVOX_OUTPUT_METHOD_OFF)
    {
        clearOutput();
        return;
    }
    if (output.method != MELVOX_OUTPUT_METHOD_INTERVAL)
    {
        setText(COLUMN_OUTPUT, UnknownString);
        return;
    }
    QString text = melvoxUiOutputMessages_t::tr("Interval ") + fixed(output.interval, 2);
    // Only rates that are whole numbers are worth showing.
    QString const rate = rateText(float(1.0 / output.interval));
    if (!rate.contains('.'))
        text += QString("(%1)").arg(rate);
    setText(COLUMN_OUTPUT, text);
}

melvoxUiOutputMessages_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_)
    : port(MELVOX_PORT_UNKNOWN), device(device_), dtmWarnDialog(0), dtmWarnPage(0), confirmDisablePage(0),
      confirmDisableAllPage(0), setUi(NUM_SET_UI), disableButton(0), disableAllButton(0)
{
}

melvoxUiOutputMessages_t::privateData_t::~privateData_t()
{
    delete dtmWarnPage;
    delete confirmDisablePage;
    delete confirmDisableAllPage;
}

melvoxUiOutputMessages_t::melvoxUiOutputMessages_t(remoteMelvoxDevice_t* device) : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    createButtons();
    fillPorts();
    createItems();
    createDialogs();
    createModels();
    connectWidgets();
    connectReceiver();

    updateSelectedMessage();
    updateSelectedPort();
    updateOutputMethod();
    updateGgaMode();
    updateTalkerIdMode();
}

melvoxUiOutputMessages_t::~melvoxUiOutputMessages_t()
{
    delete m_data;
}

void melvoxUiOutputMessages_t::createButtons()
{
    QDialogButtonBox* const messages = m_data->ui.messagesButtonBox;
    connectButton(messages, QDialogButtonBox::Apply, this, SLOT(submitMessageSettings()));
    connectButton(messages, QDialogButtonBox::Reset, this, SLOT(resetMessageSettings()));
    addActionButton(messages, tr("Query"), this, SLOT(queryMessageSettings()));
    m_data->disableButton = addActionButton(messages, tr("Disable"), this, SLOT(confirmDisableSelected()));
    m_data->disableAllButton = addActionButton(messages, tr("Disable All"), this, SLOT(confirmDisableAll()));
    addActionButton(messages, tr("General Settings"), this, SLOT(showSettingsPage()));

    QDialogButtonBox* const settings = m_data->ui.settingsButtonBox;
    connectButton(settings, QDialogButtonBox::Apply, this, SLOT(submitGeneralSettings()));
    connectButton(settings, QDialogButtonBox::Reset, this, SLOT(resetGeneralSettings()));
    addActionButton(settings, tr("Query"), this, SLOT(queryGeneralSettings()));
    addActionButton(settings, tr("Messages"), this, SLOT(showMessagesPage()));
}

void melvoxUiOutputMessages_t::fillPorts()
{
    for (int port = MELVOX_PORT_FIRST; port < MELVOX_NUM_PORTS; ++port)
    {
        if (!isAmong(hidePorts, melvoxPort_t(port)))
            m_data->ui.portsCombo->addItem(melvoxPortName(melvoxPort_t(port)));
    }
    // Until the control port is known, no port may be touched.
    m_data->ui.warningLabel->hide();
    m_data->ui.messagesTreeWidget->setEnabled(false);
    m_data->disableButton->setEnabled(false);
    m_data->disableAllButton->setEnabled(false);
}

void melvoxUiOutputMessages_t::createItems()
{
    setResizeMode(m_data->ui.messagesTreeWidget->header(), QHeaderView::Stretch);
    for (char const* name : DEFAULT_MESSAGES)
        addItem(name);
}

void melvoxUiOutputMessages_t::createDialogs()
{
    m_data->dtmWarnDialog = new melvoxUiDtmWarnDialog_t(this);
    connect(m_data->dtmWarnDialog, SIGNAL(finished(int)), SLOT(checkDtmSuppress()));
    m_data->dtmWarnPage = new dialogPage_t(m_data->dtmWarnDialog);

    QMessageBox* const disable = createQuestion(QMessageBox::Question, tr("Confirm Disable MELVOX Output Message"),
                                                tr("Are you sure you want to disable output of this message?"), this);
    connect(disable, SIGNAL(finished(int)), SLOT(confirmDisableResult(int)));
    m_data->confirmDisablePage = new dialogPage_t(disable);

    QMessageBox* const disableAll =
        createQuestion(QMessageBox::Question, tr("Confirm Disable MELVOX Output Messages"),
                       tr("Are you sure you want to disable output of all messages on this port?"), this);
    connect(disableAll, SIGNAL(finished(int)), SLOT(confirmDisableAllResult(int)));
    m_data->confirmDisableAllPage = new dialogPage_t(disableAll);
}

void melvoxUiOutputMessages_t::createModels()
{
    m_data->oneHzModel.setStringList(QStringList() << "1");
    m_data->multiHzModel.setStringList(QStringList() << "1"
                                                     << "5"
                                                     << "10");
    m_data->customIntervalModel.setStringList(QStringList() << tr(CUSTOM_INTERVAL) << "1");
    m_data->multiHzMsgList = listOf(MULTI_HZ_MESSAGES);
    m_data->customIntervalMsgList = listOf(CUSTOM_INTERVAL_MESSAGES);
    m_data->ui.rateCombo->setModel(&m_data->oneHzModel);
}

void melvoxUiOutputMessages_t::connectWidgets()
{
    Ui_melvoxUiOutputMessages& ui = m_data->ui;
    connect(ui.portsCombo, SIGNAL(currentIndexChanged(int)), SLOT(updateSelectedPort()));
    connect(ui.messagesTreeWidget, SIGNAL(itemSelectionChanged()), SLOT(updateSelectedMessage()));
    connect(ui.methodCombo, SIGNAL(currentIndexChanged(int)), SLOT(updateOutputMethod()));
    connect(ui.rateCombo, SIGNAL(currentIndexChanged(int)), SLOT(updateOutputInterval()));
}

void melvoxUiOutputMessages_t::connectReceiver()
{
    remoteMelvoxDevice_t* const device = m_data->device;
    connect(device, SIGNAL(activePortUpdated(brel_common_qt::melvoxPort_t)), SLOT(updateSelectedPort()));
    connect(device, SIGNAL(portTxRxInfoUpdated()), SLOT(updateTxRxInfo()));
    connect(device,
            SIGNAL(outputConfigUpdated(brel_common_qt::melvoxPort_t, std::string const&,
                                       brel_common_qt::melvoxMessageOutput_t const&)),
            SLOT(updateItem(brel_common_qt::melvoxPort_t, std::string const&,
                            brel_common_qt::melvoxMessageOutput_t const&)));
    connect(device, SIGNAL(ggaModeUpdated()), SLOT(updateGgaMode()));
    connect(device, SIGNAL(talkerIdModeUpdated(brel_common_qt::melvoxTalkerIdMode_t)), SLOT(updateTalkerIdMode()));
    connect(device, SIGNAL(outputsCleared()), SLOT(clearAllItems()));
}

void melvoxUiOutputMessages_t::showMessagesPage()
{
    m_data->ui.stackedWidget->setCurrentWidget(m_data->ui.messagesPage);
}

void melvoxUiOutputMessages_t::showSettingsPage()
{
    m_data->ui.stackedWidget->setCurrentWidget(m_data->ui.settingsPage);
}

bool melvoxUiOutputMessages_t::isCustomInterval() const
{
    return m_data->ui.rateCombo->currentText() == tr(CUSTOM_INTERVAL);
}

melvoxUiOutputMessages_t::item_t* melvoxUiOutputMessages_t::addItem(std::string const& name)
{
    item_t* const item = new item_t(name);
    m_data->ui.messagesTreeWidget->addTopLevelItem(item);
    m_data->items[name] = item;
    return item;
}

melvoxUiOutputMessages_t::item_t* melvoxUiOutputMessages_t::findItem(std::string const& name) const
{
    auto const found = m_data->items.find(name);
    return found == m_data->items.end() ? 0 : found->second;
}

melvoxUiOutputMessages_t::item_t* melvoxUiOutputMessages_t::selectedItem() const
{
    return brel_common_qt_gui::selectedItem<item_t>(m_data->ui.messagesTreeWidget);
}

void melvoxUiOutputMessages_t::updateSelectedPort()
{
    if (!m_data->device->activePortValid())
        return;
    m_data->port = melvoxPortFromName(m_data->ui.portsCombo->currentText());
    bool const control = m_data->port == m_data->device->activePort();
    m_data->ui.warningLabel->setVisible(control);
    m_data->ui.messagesTreeWidget->setEnabled(!control);
    m_data->disableButton->setEnabled(!control);
    m_data->disableAllButton->setEnabled(!control);
    m_data->ui.messagesTreeWidget->setCurrentItem(0);

    clearAllItems();
    if (melvoxPortOutputs_t const* outputs = m_data->device->portOutputs(m_data->port))
    {
        for (melvoxPortOutputs_t::value_type const& output : *outputs)
            updateItem(output.first, output.second);
    }
    updateTxRxInfo();
}

void melvoxUiOutputMessages_t::clearAllItems()
{
    QTreeWidget* const tree = m_data->ui.messagesTreeWidget;
    for (int row = 0; row < tree->topLevelItemCount(); ++row)
        static_cast<item_t*>(tree->topLevelItem(row))->clearOutput();
}

void melvoxUiOutputMessages_t::updateItem(melvoxPort_t port, std::string const& name,
                                          melvoxMessageOutput_t const& output)
{
    if (port == m_data->port)
        updateItem(name, output);
}

void melvoxUiOutputMessages_t::updateItem(std::string const& name, melvoxMessageOutput_t const& output)
{
    item_t* item = findItem(name);
    if (!item)
        item = addItem(name);
    item->update(output);
    if (item == selectedItem())
        updateSelectedMessage();
}

void melvoxUiOutputMessages_t::updateSelectedMessage()
{
    Ui_melvoxUiOutputMessages& ui = m_data->ui;
    ui.intervalLineCombo->hide();
    ui.intervalLabel->hide();
    item_t const* const item = selectedItem();
    if (!item)
    {
        ui.messageNameLineEdit->clear();
        ui.messageSettingsGroup->setEnabled(false);
        return;
    }
    std::string const& name = item->msgName();
    melvoxMessageOutput_t const* const output = m_data->device->messageOutput(m_data->port, name);
    ui.messageNameLineEdit->setText(displayName(name));
    setChoice(ui.methodCombo, output ? output->method : MELVOX_OUTPUT_METHOD_OFF);
    // Also when the method was the same before: the rate of another message must not stay.
    updateOutputMethod();
    showRate(name, output);
    ui.messageSettingsGroup->setEnabled(!isAmong(UNEDITABLE_MESSAGES, name));
}

void melvoxUiOutputMessages_t::showRate(std::string const& name, melvoxMessageOutput_t const* output)
{
    Ui_melvoxUiOutputMessages& ui = m_data->ui;
    QString const text = QString::fromLatin1(name.c_str());
    bool const custom = m_data->customIntervalMsgList.contains(text);
    ui.intervalLineCombo->setVisible(custom);
    ui.intervalLabel->setVisible(custom);
    ui.rateCombo->setModel(m_data->multiHzMsgList.contains(text) ? &m_data->multiHzModel
                           : custom                              ? &m_data->customIntervalModel
                                                                 : &m_data->oneHzModel);
    if (output && output->method == MELVOX_OUTPUT_METHOD_INTERVAL)
    {
        int const rate = ui.rateCombo->findText(rateText(1.0 / output->interval));
        int const interval =
            rate < 0 ? ui.intervalLineCombo->findText(QString::number(std::trunc(output->interval), 'f', 0)) : -1;
        ui.rateCombo->setCurrentIndex(rate < 0 ? 0 : rate);
        ui.intervalLineCombo->setCurrentIndex(interval);
    }
    updateOutputInterval();
}

void melvoxUiOutputMessages_t::updateOutputMethod()
{
    m_data->ui.rateCombo->setEnabled(m_data->ui.methodCombo->currentIndex() == MELVOX_OUTPUT_METHOD_INTERVAL);
    m_data->ui.rateCombo->setCurrentIndex(0);
}

void melvoxUiOutputMessages_t::updateOutputInterval()
{
    m_data->ui.intervalLineCombo->setEnabled(isCustomInterval());
}

void melvoxUiOutputMessages_t::resetMessageSettings()
{
    updateSelectedMessage();
}

void melvoxUiOutputMessages_t::submitMessageSettings()
{
    Ui_melvoxUiOutputMessages& ui = m_data->ui;
    int const method = ui.methodCombo->currentIndex();
    if (!ui.messageSettingsGroup->isEnabled() || method < 0)
        return;
    melvoxMessageOutput_t output = {melvoxOutputMethod_t(method), 0.0};
    if (method == MELVOX_OUTPUT_METHOD_INTERVAL)
    {
        output.interval = isCustomInterval() ? ui.intervalLineCombo->currentText().toDouble()
                                             : 1.0 / ui.rateCombo->currentText().toDouble();
    }
    std::string const name = receiverName(ui.messageNameLineEdit->text());
    m_data->device->setOutput(m_data->port, name, output);
    if (name == RTCM_31)
        m_data->device->setOutput(m_data->port, RTCM_1, output);
    else if (name == RTCM_1)
        m_data->device->setOutput(m_data->port, RTCM_31, output);
    // Nothing is known of it until the receiver has answered.
    if (item_t* item = findItem(name))
        item->clearOutput();
    if (m_data->device->showDtmWarning())
        checkDtmWarn(name);
}

void melvoxUiOutputMessages_t::queryMessageSettings()
{
    m_data->device->queryAllOutputs();
}

void melvoxUiOutputMessages_t::checkDtmWarn(std::string const& name)
{
    if (isAmong(DTM_TRIGGER_MESSAGES, name))
        m_data->dtmWarnPage->show();
}

void melvoxUiOutputMessages_t::checkDtmSuppress()
{
    m_data->device->setShowDtmWarning(!m_data->dtmWarnDialog->suppressWarning());
    emit saveUiSettingsNeeded();
}

void melvoxUiOutputMessages_t::confirmDisableSelected()
{
    if (selectedItem())
        m_data->confirmDisablePage->show();
}

void melvoxUiOutputMessages_t::confirmDisableResult(int result)
{
    if (result == QMessageBox::Yes)
        disableSelected();
}

void melvoxUiOutputMessages_t::disableSelected()
{
    item_t* const item = selectedItem();
    if (!item)
        return;
    melvoxMessageOutput_t const off = {MELVOX_OUTPUT_METHOD_OFF, 0.0};
    m_data->device->setOutput(m_data->port, item->msgName(), off);
    item->clearOutput();
    item->setSelected(false);
}

void melvoxUiOutputMessages_t::confirmDisableAll()
{
    m_data->confirmDisableAllPage->show();
}

void melvoxUiOutputMessages_t::confirmDisableAllResult(int result)
{
    if (result == QMessageBox::Yes)
        disableAll();
}

void melvoxUiOutputMessages_t::disableAll()
{
    m_data->device->turnOffAllOutput(m_data->port);
    m_data->device->queryAllOutputs();
}

void melvoxUiOutputMessages_t::updateTxRxInfo()
{
    bool const known = m_data->port < MELVOX_NUM_PORTS;
    m_data->ui.portUsageGroup->setVisible(known);
    if (!known)
        return;
    PortTxRxInfo const* const info = m_data->device->portTxRxInfo(m_data->port);
    m_data->ui.txPercentLabel->setText(usageText(info && info->txValid, info ? info->txUsage : 0));
    m_data->ui.rxPercentLabel->setText(usageText(info && info->rxValid, info ? info->rxUsage : 0));
}

void melvoxUiOutputMessages_t::updateGgaMode()
{
    Ui_melvoxUiOutputMessages& ui = m_data->ui;
    bool const valid = m_data->device->ggaModeValid();
    QString const quality = toString(m_data->device->ggaQuality());
    showStatus(ui.ggaPrecisionLabel, valid, ui.ggaPrecisionCombo->itemText(m_data->device->ggaMode()));
    showStatus(ui.ggaQualityLabel, valid, quality);
    showStatus(ui.scaleCorrectionLabel, valid,
               ui.scaleCorrectionCombo->itemText(m_data->device->ggaCorrectionsScaling()));
    fillOnce(m_data->setUi, GGA_MODE, valid, this, &melvoxUiOutputMessages_t::resetGgaMode);
    ui.ggaPrecisionCombo->setEnabled(valid);
    ui.scaleCorrectionCombo->setEnabled(valid);
    // A receiver that tells no quality has no such setting.
    ui.ggaQualityCombo->setEnabled(valid && !quality.isEmpty());
}

void melvoxUiOutputMessages_t::resetGgaMode()
{
    if (!m_data->device->ggaModeValid())
        return;
    Ui_melvoxUiOutputMessages& ui = m_data->ui;
    setChoice(ui.ggaPrecisionCombo, m_data->device->ggaMode());
    ui.ggaPrecisionCombo->setEnabled(true);
    setChoice(ui.scaleCorrectionCombo, m_data->device->ggaCorrectionsScaling());
    ui.scaleCorrectionCombo->setEnabled(true);
    ggaQuality_t const quality = m_data->device->ggaQuality();
    ui.ggaQualityCombo->setCurrentIndex(quality == GGA_QUALITY_DIFF_SPS ? QUALITY_2
                                        : quality == GGA_QUALITY_RTK    ? QUALITY_5
                                                                        : -1);
}

void melvoxUiOutputMessages_t::submitGgaMode()
{
    Ui_melvoxUiOutputMessages& ui = m_data->ui;
    int const mode = ui.ggaPrecisionCombo->currentIndex();
    if (!ui.ggaPrecisionCombo->isEnabled() || mode < 0)
        return;
    ggaQuality_t quality = GGA_QUALITY_UNKNOWN;
    if (ui.ggaQualityCombo->isEnabled() && ui.ggaQualityCombo->currentIndex() == QUALITY_2)
        quality = GGA_QUALITY_DIFF_SPS;
    else if (ui.ggaQualityCombo->isEnabled() && ui.ggaQualityCombo->currentIndex() == QUALITY_5)
        quality = GGA_QUALITY_RTK;
    int const scaling = qMax(0, ui.scaleCorrectionCombo->currentIndex());
    m_data->device->setGgaMode(melvoxGgaMode_t(mode), quality, melvoxGgaCorrectionsScaling_t(scaling));
}

void melvoxUiOutputMessages_t::updateTalkerIdMode()
{
    QComboBox* const combo = m_data->ui.talkerIdCombo;
    bool const valid = m_data->device->talkerIdModeValid();
    showStatus(m_data->ui.talkerIdLabel, valid, combo->itemText(m_data->device->talkerIdMode()));
    fillOnce(m_data->setUi, TALKER_ID_MODE, valid, this, &melvoxUiOutputMessages_t::resetTalkerIdMode);
    combo->setEnabled(valid);
}

void melvoxUiOutputMessages_t::resetTalkerIdMode()
{
    if (m_data->device->talkerIdModeValid())
        setChoice(m_data->ui.talkerIdCombo, m_data->device->talkerIdMode());
}

void melvoxUiOutputMessages_t::submitTalkerIdMode()
{
    int const index = m_data->ui.talkerIdCombo->currentIndex();
    if (m_data->ui.talkerIdCombo->isEnabled() && index >= 0)
        m_data->device->setTalkerIdMode(melvoxTalkerIdMode_t(index));
}

void melvoxUiOutputMessages_t::submitGeneralSettings()
{
    submitGgaMode();
    submitTalkerIdMode();
}

void melvoxUiOutputMessages_t::resetGeneralSettings()
{
    resetGgaMode();
    resetTalkerIdMode();
}

void melvoxUiOutputMessages_t::queryGeneralSettings()
{
    m_data->device->queryGgaMode();
    m_data->device->queryTalkerIdMode();
}

void melvoxUiOutputMessages_t::saveUiSettings(qdconfig::config_t* cfg, std::string prefix)
{
    cfg->setValue(prefix.append(SHOW_DTM_WARNING_KEY), qdconfig::qdConfigEncode(m_data->device->showDtmWarning()));
}

void melvoxUiOutputMessages_t::loadUiSettings(qdconfig::config_t* cfg, std::string prefix)
{
    std::string text;
    bool show = true;
    if (cfg->getValue(prefix.append(SHOW_DTM_WARNING_KEY), text) && qdconfig::qdConfigDecode(text, show))
        m_data->device->setShowDtmWarning(show);
}

void melvoxUiOutputMessages_t::useDefaultUiSettings()
{
    m_data->device->setShowDtmWarning(true);
}

} // namespace brel_common_qt_gui
