#ifndef MELVOX_TEST_SCENARIO_RUN_H
#define MELVOX_TEST_SCENARIO_RUN_H

#include "display/displayWindow.h"
#include "display/driveRack.h"
#include "display/simulation.h"
#include "display/uiSettings.h"
#include "display/unit.h"
#include "link/linkTap.h"
#include "link/localLink.h"
#include "receiver/receiver.h"
#include "scenarios/scenarioReader.h"
#include "support/folder.h"
#include "support/test.h"

namespace melvox_test
{

/** A whole display unit in one of the kit's scenarios, whose time the test turns:
 *  scenarioRun_t run("lost-correction-satellite"); run.advance(60); */
class scenarioRun_t
{
public:
    explicit scenarioRun_t(QString const& name, QString const& page = "solutionControl")
        : drives(QString()), unit(melvox_display::connection_t(), melvox_receiver::simClock_t::MANUAL),
          simulation(unit, drives), settings(folder.path("display.conf"))
    {
        melvox_scenarios::scenario_t scenario;
        QString error;
        if (!melvox_scenarios::loadScenario(name, scenario, error))
            qFatal("%s", qPrintable(error));
        listening = QObject::connect(unit.tap(), &melvox_link::linkTap_t::passed,
                                     [this](melvox_link::message_t const& message, bool fromDisplay)
                                     {
                                         if (!fromDisplay)
                                             messages << message;
                                     });
        simulation.start(scenario);
        // Unless the scenario is about it.
        if (unit.localLink()->latency() == melvox_display::unit_t::USUAL_LATENCY)
            unit.localLink()->setLatency(0);
        window.reset(new melvox_display::displayWindow_t(melvox_display::allPages(), &unit, &settings, QSize(1024, 600),
                                                         &simulation));
        window->showFirstPage(page);
        window->show();
        unit.start();
    }
    ~scenarioRun_t() { QObject::disconnect(listening); }

    /** Turns the receiver's time, and delivers what came of it. */
    void advance(double seconds)
    {
        unit.receiver()->clock().advance(qint64(seconds * 1000.0));
        settle();
    }

    /** All that the receiver has told of a group. */
    QVariantList all(QString const& group) const
    {
        QVariantList values;
        for (melvox_link::message_t const& message : messages)
        {
            if (message.group == group)
                values << message.value;
        }
        return values;
    }
    /** What it told last; invalid: nothing yet. */
    QVariant told(QString const& group) const { return all(group).isEmpty() ? QVariant() : all(group).last(); }
    QVariant told(QString const& group, QString const& field) const { return told(group).toMap().value(field); }

    /** Once the receiver has told of it. */
    bool tells(QString const& group)
    {
        return waitFor([&]() { return !all(group).isEmpty(); });
    }

    folder_t folder;
    melvox_display::driveRack_t drives;
    melvox_display::unit_t unit;
    melvox_display::simulation_t simulation;
    melvox_display::uiSettings_t settings;
    QScopedPointer<melvox_display::displayWindow_t> window;
    QList<melvox_link::message_t> messages;
    QMetaObject::Connection listening;
};

} // namespace melvox_test

#endif
