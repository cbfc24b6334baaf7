#include "brel_common_qt_gui/guiSettings.h"
#include "display/uiSettings.h"
#include "qdconfig/config.h"
#include "support/test.h"

#include <QTemporaryDir>
#include <QWidget>

using namespace melvox_display;
using namespace brel_common_qt;
using brel_common_qt_gui::guiSettings_t;

namespace
{

/** As pages do that want something kept. */
class keepingPage_t : public QWidget
{
    Q_OBJECT

public slots:
    void saveUiSettings(qdconfig::config_t* config, std::string prefix) { config->setValue(prefix + "note", note); }

    void loadUiSettings(qdconfig::config_t* config, std::string prefix) { config->getValue(prefix + "note", note); }

signals:
    void saveUiSettingsNeeded();

public:
    std::string note;
};

} // namespace

class tst_uiSettings : public melvox_test::test_t
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;
    QString file() const { return m_folder.filePath("display.conf"); }

protected:
    void setUp() override
    {
        QFile::remove(file());
        guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_METER);
        guiSettings_t::get().setLatLonFormat(LATLON_FORMAT_DEGREE);
    }

private slots:
    void lastPageIsKept()
    {
        uiSettings_t(file()).setLastPage("solutionControl");
        QCOMPARE(uiSettings_t(file()).lastPage(), QString("solutionControl"));
    }

    void choicesOfTheOperatorAreKept()
    {
        {
            uiSettings_t settings(file());
            settings.applyPreferences(options_t());
            guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_US_SURVEY_FOOT);
            guiSettings_t::get().setLatLonFormat(LATLON_FORMAT_DEGMINSEC);
        }
        guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_METER);
        guiSettings_t::get().setLatLonFormat(LATLON_FORMAT_DEGREE);
        uiSettings_t(file()).applyPreferences(options_t());
        QCOMPARE(guiSettings_t::get().distanceUnit(), DISTANCE_UNIT_US_SURVEY_FOOT);
        QCOMPARE(guiSettings_t::get().latLonFormat(), LATLON_FORMAT_DEGMINSEC);
    }

    void optionsHoldForThisRunOnly()
    {
        options_t options;
        options.units = DISTANCE_UNIT_US_SURVEY_FOOT;
        options.format = LATLON_FORMAT_DEGMIN;
        {
            uiSettings_t settings(file());
            settings.applyPreferences(options);
            QCOMPARE(guiSettings_t::get().distanceUnit(), DISTANCE_UNIT_US_SURVEY_FOOT);
            QCOMPARE(guiSettings_t::get().latLonFormat(), LATLON_FORMAT_DEGMIN);
        }
        qdconfig::config_t const config(file().toStdString());
        std::string value;
        QVERIFY(!config.getValue("display/units", value));
        QVERIFY(!config.getValue("display/format", value));
    }

    void storedNonsenseIsPassedOver()
    {
        qdconfig::config_t(file().toStdString()).setValue("display/units", "cubits");
        uiSettings_t settings(file());
        settings.applyPreferences(options_t());
        QCOMPARE(guiSettings_t::get().distanceUnit(), DISTANCE_UNIT_METER);
    }

    void pagesGetWhatTheySaved()
    {
        {
            uiSettings_t settings(file());
            keepingPage_t page;
            settings.attachPage(&page, "outputMessages");
            page.note = "seen";
            emit page.saveUiSettingsNeeded();
        }
        uiSettings_t settings(file());
        keepingPage_t page;
        settings.attachPage(&page, "outputMessages");
        QCOMPARE(page.note, std::string("seen"));
    }

    void pagesAreKeptApart()
    {
        uiSettings_t settings(file());
        keepingPage_t first;
        keepingPage_t second;
        settings.attachPage(&first, "first");
        settings.attachPage(&second, "second");
        first.note = "1";
        second.note = "2";
        emit first.saveUiSettingsNeeded();
        emit second.saveUiSettingsNeeded();
        keepingPage_t again;
        settings.attachPage(&again, "first");
        QCOMPARE(again.note, std::string("1"));
    }

    void otherPagesAreLeftAlone()
    {
        uiSettings_t settings(file());
        QWidget page;
        settings.attachPage(&page, "plain");
    }

    void saysOnceThatNothingIsKept()
    {
        QFile taken(m_folder.filePath("taken"));
        QVERIFY(taken.open(QIODevice::WriteOnly));
        uiSettings_t settings(taken.fileName() + "/display.conf");
        melvox_test::expectWarning("cannot be written");
        settings.setLastPage("first");
        settings.setLastPage("second");
    }
};

QTEST_MAIN(tst_uiSettings)
#include "tst_uiSettings.moc"
