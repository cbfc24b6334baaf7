#ifndef MELVOX_DISPLAY_DISPLAY_WINDOW_H
#define MELVOX_DISPLAY_DISPLAY_WINDOW_H

#include "display/pageRegistry.h"

#include <QWidget>

#include <memory>

namespace melvox_display
{

class linkMonitor_t;
class monitorModel_t;
class receiverPanel_t;
class screen_t;
class simulation_t;
class uiSettings_t;
class unit_t;

/** The window on the developer's desk: the unit's screen, and beside it, when asked for, the link monitor or the receiver
 *  panel. The screen keeps its size when one of them opens; where there is no room beside it they lie over it. */
class displayWindow_t : public QWidget
{
    Q_OBJECT

public:
    /** The screen comes up at this size. All must live as long. Without a simulation there is no receiver panel. */
    displayWindow_t(pageRegistry_t const& pages, unit_t* unit, uiSettings_t* settings, QSize const& screenSize,
                    simulation_t* simulation = nullptr);
    ~displayWindow_t() override;

    /** Another one once the unit has another proxy. */
    screen_t* screen() const { return m_screen; }
    pageRegistry_t const& pages() const { return m_pages; }
    /** Made when it is asked for: who only shows the unit does without. */
    linkMonitor_t* monitor();
    bool isMonitorShown() const;
    /** Likewise; null without a simulation. */
    receiverPanel_t* panel();
    bool isPanelShown() const;

    /** The page by this name, or else the last one, or else the first. */
    void showFirstPage(QString const& name);

public slots:
    void toggleMonitor();
    void togglePanel();

protected:
    void resizeEvent(QResizeEvent* event) override;

private slots:
    void showLink();
    void dropScreen();
    void renewScreen();

private:
    void createScreen();
    void addShortcut(Qt::Key key, void (displayWindow_t::*act)());
    bool fitsBeside() const;
    void showSide(QWidget* side);
    void place();

    pageRegistry_t const& m_pages;
    unit_t* m_unit;
    uiSettings_t* m_settings;
    screen_t* m_screen;
    simulation_t* m_simulation;
    monitorModel_t* m_model;
    linkMonitor_t* m_monitor;
    receiverPanel_t* m_panel;
    QWidget* m_side; //!< what is shown beside the screen or over it; null: nothing
    bool m_beside;
    QString m_lastPage;
};

} // namespace melvox_display

#endif
