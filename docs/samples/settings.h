#ifndef SAMPLES_SETTINGS_H
#define SAMPLES_SETTINGS_H

#include "brel_common_qt_gui/guiSettings.h"
#include "melvox_ui/melvoxUiOutputMessages.h"
#include "qdconfig/config.h"

#include <QObject>

// begin settings
/** Keeps what the operator prefers, and what the output messages page wants kept. */
class settings_t : public QObject
{
    Q_OBJECT

public:
    explicit settings_t(std::string const& path) : m_store(path), m_page(0)
    {
        brel_common_qt_gui::guiSettings_t& gui = brel_common_qt_gui::guiSettings_t::get();
        std::string unit;
        if (m_store.getValue("host/unit", unit) && unit == "ft")
            gui.setDistanceUnit(brel_common_qt::DISTANCE_UNIT_US_SURVEY_FOOT);
        connect(&gui, SIGNAL(distanceUnitChanged()), this, SLOT(saveUnit()));
    }

    /** Once, right after the page was made. The page must live as long. */
    void attach(brel_common_qt_gui::melvoxUiOutputMessages_t* page)
    {
        m_page = page;
        m_page->loadUiSettings(&m_store, "pages/outputMessages/");
        connect(m_page, SIGNAL(saveUiSettingsNeeded()), this, SLOT(savePage()));
    }

private slots:
    void saveUnit()
    {
        bool const feet =
            brel_common_qt_gui::guiSettings_t::get().distanceUnit() == brel_common_qt::DISTANCE_UNIT_US_SURVEY_FOOT;
        m_store.setValue("host/unit", feet ? "ft" : "m");
    }

    void savePage() { m_page->saveUiSettings(&m_store, "pages/outputMessages/"); }

private:
    qdconfig::config_t m_store;
    brel_common_qt_gui::melvoxUiOutputMessages_t* m_page;
};
// end

#endif
