#include "behaviourTest.h"
#include "scenarios/scenarioPlayer.h"

using namespace melvox_scenarios;

namespace
{

/** A receiver with nothing around it that counts. */
class stageRecorder_t : public stage_t
{
public:
    explicit stageRecorder_t(melvox_receiver::receiver_t& receiver) : m_receiver(receiver) {}

    void clear() override { calls << "clear"; }
    melvox_receiver::receiver_t& receiver() override { return m_receiver; }
    void arrange(moment_t const& moment) override { calls << QString("latency %1").arg(moment.latency.value_or(-1)); }
    void open() override { calls << "open"; }

    QStringList calls;

private:
    melvox_receiver::receiver_t& m_receiver;
};

scenario_t threeMoments()
{
    scenario_t scenario;
    scenario.moments = {moment_t(), moment_t(), moment_t()};
    scenario.moments[0].latency = 1;
    scenario.moments[0].speed = 5.0;
    scenario.moments[0].settings = {{"elevationMask", 10.0}};
    scenario.moments[1].at = 2000;
    scenario.moments[1].latency = 2;
    scenario.moments[1].settings = {{"elevationMask", 20.0}};
    scenario.moments[2].at = 5000;
    scenario.moments[2].situations = {{"solution", "none"}};
    scenario.moments[2].speed = 6.0;
    return scenario;
}

} // namespace

class tst_scenarioPlayer : public melvox_test::behaviourTest_t
{
    Q_OBJECT

private slots:
    void theBeginningIsThereAtOnce()
    {
        stageRecorder_t stage(*receiver);
        scenarioPlayer_t player(stage, *clock);
        player.start(threeMoments());
        QCOMPARE(stage.calls, (QStringList{"clear", "latency 1", "open"}));
        QCOMPARE(receiver->setting("elevationMask").toDouble(), 10.0);
        QCOMPARE(clock->speed(), 5.0);
        QCOMPARE(player.stepsLeft(), 2);
    }

    void stepsAreTakenAtTheirTimes()
    {
        stageRecorder_t stage(*receiver);
        scenarioPlayer_t player(stage, *clock);
        clock->advance(700);
        player.start(threeMoments());
        QSignalSpy stepped(&player, &scenarioPlayer_t::stepped);
        clock->advance(1900);
        QCOMPARE(player.stepsLeft(), 2);
        QCOMPARE(receiver->setting("elevationMask").toDouble(), 10.0);
        clock->advance(100);
        QCOMPARE(player.stepsLeft(), 1);
        QCOMPARE(receiver->setting("elevationMask").toDouble(), 20.0);
        clock->advance(10000);
        QCOMPARE(player.stepsLeft(), 0);
        QCOMPARE(clock->speed(), 6.0);
        QCOMPARE(int(stepped.size()), 2);
        QCOMPARE(stage.calls, (QStringList{"clear", "latency 1", "open", "latency 2", "latency -1"}));
    }

    void aGivenSpeedCountsForTheWholeScenario()
    {
        stageRecorder_t stage(*receiver);
        scenarioPlayer_t player(stage, *clock);
        player.start(threeMoments(), 60.0);
        QCOMPARE(clock->speed(), 60.0);
        clock->advance(6000);
        QCOMPARE(clock->speed(), 60.0);
    }

    void aScenarioWithoutASpeedRunsAtTheUsualOne()
    {
        stageRecorder_t stage(*receiver);
        scenarioPlayer_t player(stage, *clock);
        clock->setSpeed(60.0);
        scenario_t plain;
        plain.moments = {moment_t()};
        player.start(plain);
        QCOMPARE(clock->speed(), 1.0);
    }

    void anotherScenarioEndsTheFirst()
    {
        stageRecorder_t stage(*receiver);
        scenarioPlayer_t player(stage, *clock);
        player.start(threeMoments());
        scenario_t other;
        other.moments = {moment_t()};
        player.start(other);
        clock->advance(10000);
        QCOMPARE(receiver->setting("elevationMask").toDouble(), 10.0);
        QCOMPARE(stage.calls, (QStringList{"clear", "latency 1", "open", "clear", "latency -1", "open"}));
    }

    void aScenarioWithoutStepsWakesNobody()
    {
        melvox_receiver::simClock_t running;
        melvox_receiver::receiver_t resting(&running);
        stageRecorder_t stage(resting);
        scenarioPlayer_t player(stage, running);
        scenario_t plain;
        plain.moments = {moment_t()};
        player.start(plain);
        QVERIFY(!running.isTicking());
        player.start(threeMoments());
        QVERIFY(running.isTicking());
    }
};

QTEST_GUILESS_MAIN(tst_scenarioPlayer)
#include "tst_scenarioPlayer.moc"
