#ifndef MELVOX_UI_OUTPUT_MESSAGES_H
#define MELVOX_UI_OUTPUT_MESSAGES_H

#include "melvox_ui/melvoxUiExport.h"

#include "brel_common_qt/melvoxOutput.h"
#include "brel_common_qt/melvoxPort.h"

#include <QWidget>

#include <string>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace qdconfig
{
class config_t;
}

namespace brel_common_qt_gui
{

/** Which messages the receiver puts out on each of its ports and how often, how busy a port is, and what holds for the
 *  output of all ports. Intervals in seconds, rates in hertz. The port through which the display itself talks is shown
 *  but cannot be changed. The receiver must outlive the page.
 *
 *  The host keeps one setting for this page, whether to warn of DTM sentences: it calls loadUiSettings() or
 *  useDefaultUiSettings() once after building the page, and saveUiSettings() whenever saveUiSettingsNeeded() is
 *  emitted. The rest lives as told at melvoxUiSolutionControl_t. */
class MELVOX_UI_EXPORT melvoxUiOutputMessages_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiOutputMessages_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiOutputMessages_t();

public slots:
    /** The keys in the store begin with the prefix. A key that is missing, or is no flag, changes nothing. */
    void saveUiSettings(qdconfig::config_t* cfg, std::string prefix);
    void loadUiSettings(qdconfig::config_t* cfg, std::string prefix);
    void useDefaultUiSettings();

    void showMessagesPage();
    void showSettingsPage();

    void submitMessageSettings();
    void updateOutputInterval();
    void submitGeneralSettings();
    void resetMessageSettings();
    void resetGeneralSettings();
    void queryMessageSettings();
    void queryGeneralSettings();

    void confirmDisableSelected();
    void confirmDisableResult(int result);
    void disableSelected();
    void confirmDisableAll();
    void confirmDisableAllResult(int result);
    void disableAll();

    void updateSelectedPort();
    void updateSelectedMessage();
    void updateOutputMethod();
    /** The operator has closed the DTM warning, in whatever way. */
    void checkDtmSuppress();
    void updateTxRxInfo();
    void clearAllItems();
    void updateItem(brel_common_qt::melvoxPort_t port, std::string const& name,
                    brel_common_qt::melvoxMessageOutput_t const& output);
    /** For the selected port. */
    void updateItem(std::string const& name, brel_common_qt::melvoxMessageOutput_t const& output);

    void updateGgaMode();
    void resetGgaMode();
    void submitGgaMode();
    void updateTalkerIdMode();
    void resetTalkerIdMode();
    void submitTalkerIdMode();

signals:
    void saveUiSettingsNeeded();

private:
    Q_DISABLE_COPY(melvoxUiOutputMessages_t)

    class item_t;
    struct privateData_t;

    void createButtons();
    void fillPorts();
    void createItems();
    void createDialogs();
    void createModels();
    void connectWidgets();
    void connectReceiver();

    bool isCustomInterval() const;
    void checkDtmWarn(std::string const& name);
    item_t* findItem(std::string const& name) const;
    item_t* selectedItem() const;
    item_t* addItem(std::string const& name);
    void showRate(std::string const& name, brel_common_qt::melvoxMessageOutput_t const* output);

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
