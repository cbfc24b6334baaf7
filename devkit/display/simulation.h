#ifndef MELVOX_DISPLAY_SIMULATION_H
#define MELVOX_DISPLAY_SIMULATION_H

#include "brel_common_qt/kitPort.h"
#include "scenarios/scenarioPlayer.h"

#include <QObject>

#include <memory>
#include <optional>

namespace melvox_display
{

class driveRack_t;
class unit_t;

/** What a scenario, or somebody at the desk, can do to the unit's surroundings: to the receiver when it is the simulated
 *  one of this program, to the link, and to the drives. */
class simulation_t : public QObject, private melvox_scenarios::stage_t
{
    Q_OBJECT

public:
    /** Both must live as long. A speed counts from now on for every scenario, whatever it says itself. */
    simulation_t(unit_t& unit, driveRack_t& drives, std::optional<double> speed = std::nullopt,
                 QObject* parent = nullptr);
    ~simulation_t() override;

    /** False: the receiver is somewhere else, and what is said of it here has no effect. */
    bool hasReceiver() const;

    void start(melvox_scenarios::scenario_t const& scenario);
    /** The one that was started last; without a name: none was. */
    melvox_scenarios::scenario_t const& scenario() const { return m_scenario; }
    int stepsLeft() const;

    unsigned int activePort() const;
    void setActivePort(unsigned int port);
    QString linkKind() const; //!< one of linkKinds()
    void setLinkKind(QString const& kind);
    double speed() const;
    void setSpeed(double speed);
    bool isConnected() const;
    void setConnected(bool connected);

    QList<melvox_link::faultSetting_t> faults() const;
    /** A probability of 0 takes the fault away. */
    void setFault(melvox_link::faultSetting_t const& fault);
    void clearFaults();

    driveRack_t& drives() const { return m_drives; }

signals:
    /** Anything of what can be asked here is another way now. */
    void changed();

private:
    void clear() override;
    melvox_receiver::receiver_t& receiver() override;
    void arrange(melvox_scenarios::moment_t const& moment) override;
    void open() override;
    void arrangeFaults(melvox_scenarios::moment_t const& moment);
    void arrangeDrives(melvox_scenarios::moment_t const& moment);
    void setBaud(unsigned int baud);

    unit_t& m_unit;
    driveRack_t& m_drives;
    std::optional<double> m_speed;
    std::unique_ptr<melvox_scenarios::scenarioPlayer_t> m_player;
    melvox_scenarios::scenario_t m_scenario;
    bool m_opening;   //!< between clear() and open()
    bool m_connected; //!< what open() makes of the link
};

} // namespace melvox_display

#endif
