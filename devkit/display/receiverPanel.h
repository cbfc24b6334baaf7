#ifndef MELVOX_DISPLAY_RECEIVER_PANEL_H
#define MELVOX_DISPLAY_RECEIVER_PANEL_H

#include <QFrame>

class QComboBox;
class QLabel;
class QPushButton;
class QTreeWidget;

namespace melvox_display
{

class simulation_t;

/** The developer's hands on what is around the unit: the scenario, the clock, the cable and its faults, and the drives.
 *  What is out of reach because the receiver is in another program is disabled and says so. */
class receiverPanel_t : public QFrame
{
    Q_OBJECT

public:
    /** It must live as long. */
    explicit receiverPanel_t(simulation_t* simulation, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;

private slots:
    void refresh();
    void showChoice();
    void startScenario();
    void takeSpeed();
    void takePort();
    void takeLinkKind();
    void toggleConnection();
    void addFault();
    void removeFault();
    void toggleDrive();
    void plugInNewDrive();

private:
    QWidget* createScenarioBox();
    QWidget* createLinkBox();
    QWidget* createFaultBox();
    QWidget* createDriveBox();
    void fillScenarios();
    void chooseRunning();
    void connectWidgets();
    void refreshScenario();
    void refreshLink();
    void refreshFaults();
    void refreshDrives();
    void updateButtons();

    simulation_t* m_simulation;
    QLabel* m_elsewhere;
    QComboBox* m_scenario;
    QPushButton* m_start;
    QLabel* m_shows;
    QLabel* m_state;
    QComboBox* m_speed;
    QComboBox* m_port;
    QComboBox* m_linkKind;
    QPushButton* m_connect;
    QComboBox* m_faultGroup;
    QComboBox* m_faultKind;
    QComboBox* m_faultDirection;
    QComboBox* m_faultProbability;
    QPushButton* m_faultAdd;
    QPushButton* m_faultRemove;
    QPushButton* m_faultClear;
    QTreeWidget* m_faults;
    QTreeWidget* m_drives;
    QPushButton* m_driveToggle;
    QPushButton* m_driveNew;
    QLabel* m_driveNote;
    QString m_running; //!< the name of the scenario that was shown as started last
    QString m_refusal; //!< why the scenario that was asked for last was not started
};

} // namespace melvox_display

#endif
