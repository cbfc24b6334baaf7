#ifndef MELVOX_UI_OUTPUT_MESSAGES_P_H
#define MELVOX_UI_OUTPUT_MESSAGES_P_H

#include "melvox_ui/melvoxUiOutputMessages.h"

#include "brel_common_qt_gui/dialogPage.h"
#include "melvox_ui/melvoxUiDtmWarnDialog.h"
#include "ui_melvoxUiOutputMessages.h"

#include <QBitArray>
#include <QStringList>
#include <QStringListModel>
#include <QTreeWidgetItem>

#include <unordered_map>

namespace brel_common_qt_gui
{

/** The row of one message. */
class MELVOX_UI_HIDDEN melvoxUiOutputMessages_t::item_t : public QTreeWidgetItem
{
public:
    explicit item_t(std::string const& msgName);

    std::string const& msgName() const;

    void clearOutput();
    void update(brel_common_qt::melvoxMessageOutput_t const& output);

private:
    std::string m_msgName; //!< as the receiver spells it
};

struct MELVOX_UI_HIDDEN melvoxUiOutputMessages_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);
    ~privateData_t();

    brel_common_qt::melvoxPort_t port; //!< the selected one
    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiOutputMessages ui;
    melvoxUiDtmWarnDialog_t* dtmWarnDialog;
    dialogPage_t* dtmWarnPage;           //!< owned
    dialogPage_t* confirmDisablePage;    //!< owned
    dialogPage_t* confirmDisableAllPage; //!< owned
    QBitArray setUi;
    QPushButton* disableButton;
    QPushButton* disableAllButton;
    QStringListModel oneHzModel;
    QStringListModel multiHzModel;
    QStringListModel customIntervalModel;
    QStringList multiHzMsgList;
    QStringList customIntervalMsgList;
    // Rows are looked up for every message that the receiver tells, and are never taken away.
    std::unordered_map<std::string, item_t*> items;
};

} // namespace brel_common_qt_gui

#endif
