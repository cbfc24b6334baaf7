#ifndef MELVOX_UI_SETTINGS_PROFILES_P_H
#define MELVOX_UI_SETTINGS_PROFILES_P_H

#include "melvox_ui/melvoxUiSettingsProfiles.h"

#include "ui_melvoxUiSettingsProfiles.h"

#include <QTreeWidgetItem>

namespace brel_common_qt_gui
{

class dialogPage_t;

/** A profile that the receiver keeps. */
class MELVOX_UI_HIDDEN melvoxUiSettingsProfiles_t::item_t : public QTreeWidgetItem
{
public:
    explicit item_t(std::string const& name_);

    void updateTstamp(unsigned int tstamp_);
    void setActive(bool active_);

    /** Times sort as times, not as their texts. */
    bool operator<(QTreeWidgetItem const& other) const override;

    std::string name;
    bool active;
    unsigned int tstamp; //!< seconds since 1970-01-01 00:00 UTC
};

struct MELVOX_UI_HIDDEN melvoxUiSettingsProfiles_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);
    ~privateData_t();

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiSettingsProfiles ui;
    melvoxUiProfileDumper_t* dumper; //!< the page's child
    melvoxUiProfileLoader_t* loader; //!< the page's child
    QPushButton* setActiveButton;
    QPushButton* deleteButton;
    dialogPage_t* confirmDeletePage;
};

} // namespace brel_common_qt_gui

#endif
