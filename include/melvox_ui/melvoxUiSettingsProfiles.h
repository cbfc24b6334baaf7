#ifndef MELVOX_UI_SETTINGS_PROFILES_H
#define MELVOX_UI_SETTINGS_PROFILES_H

#include "brel_common_qt/endianTypes.h"
#include "melvox_ui/melvoxUiExport.h"

#include <QWidget>

#include <string>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

class melvoxUiProfileDumper_t;
class melvoxUiProfileLoader_t;

/** The settings profiles that the receiver keeps: which there are, which one is active; make one active, delete one, save
 *  the settings as a new one. Does not ask the receiver by itself: the host runs query(). What the receiver refuses shows
 *  in what it tells next. The receiver must outlive the page. */
class MELVOX_UI_EXPORT melvoxUiSettingsProfiles_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiSettingsProfiles_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiSettingsProfiles_t();

    /** The page's own; their slots dumpSettings() and loadProfile() are for whatever controls the host has. */
    melvoxUiProfileDumper_t* profileDumper() const;
    melvoxUiProfileLoader_t* profileLoader() const;

public slots:
    void query();

    /** The list follows when the receiver tells the new active profile. */
    void setActive();
    /** Takes the current profile out of the list without waiting for the receiver. */
    void deleteProfile();
    void confirmDeleteProfile();
    void confirmDeleteProfileResult(int result);
    /** Sends the name as it stands, and asks for the list half a second later. */
    void saveNew();
    void checkSelection();
    void updateActiveProfile();
    /** The time in seconds since 1970-01-01 00:00 UTC. */
    void updateProfile(std::string const& name, endian::u32_t timestamp);

private:
    Q_DISABLE_COPY(melvoxUiSettingsProfiles_t)

    class item_t;
    struct privateData_t;

    void createButtons();
    void connectForm();
    void connectReceiver();
    item_t* findItem(std::string const& name) const;
    item_t* currentItem() const;

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
