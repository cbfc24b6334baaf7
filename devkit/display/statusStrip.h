#ifndef MELVOX_DISPLAY_STATUS_STRIP_H
#define MELVOX_DISPLAY_STATUS_STRIP_H

#include <QFrame>
#include <QString>

class QLabel;
class QToolButton;

namespace melvox_display
{

enum class linkState_t
{
    CONNECTING, //!< was never open
    CONNECTED,
    INTERRUPTED, //!< was open and is not
    RECONNECTING //!< was open, is not, and somebody is trying
};

/** The line at the foot of the screen that is always there: whether what one sees is real, and how the link is. */
class statusStrip_t : public QFrame
{
    Q_OBJECT

public:
    explicit statusStrip_t(QWidget* parent = nullptr);

    void setSimulated(bool simulated);
    /** `description`: what a person would call the other side. */
    void setLink(QString const& description, melvox_display::linkState_t state);
    void setMonitorShown(bool shown);
    void setPanelShown(bool shown);
    /** Whether there is a receiver panel at all; at first there is none. */
    void setPanelOffered(bool offered);

signals:
    /** The operator wants the link monitor shown or hidden. */
    void monitorToggled();
    /** Likewise the receiver panel. */
    void panelToggled();

private:
    QLabel* m_simulated;
    QLabel* m_state;
    QLabel* m_description;
    QToolButton* m_panel;
    QToolButton* m_monitor;
};

} // namespace melvox_display

#endif
