#ifndef MELVOX_DISPLAY_DISPLAY_WINDOW_H
#define MELVOX_DISPLAY_DISPLAY_WINDOW_H

#include "display/pageRegistry.h"

#include <QWidget>

#include <memory>

namespace melvox_display
{

class linkMonitor_t;
class monitorModel_t;
class screen_t;
class uiSettings_t;
class unit_t;

/** The window on the developer's desk: the unit's screen, and beside it, when asked for, the link monitor. The screen
 *  keeps its size when the monitor opens; where there is no room beside it the monitor lies over it. */
class displayWindow_t : public QWidget
{
    Q_OBJECT

public:
    /** The screen comes up at this size. All must live as long. */
    displayWindow_t(pageRegistry_t const& pages, unit_t* unit, uiSettings_t* settings, QSize const& screenSize);
    ~displayWindow_t() override;

    screen_t* screen() const { return m_screen; }
    pageRegistry_t const& pages() const { return m_pages; }
    linkMonitor_t* monitor() const { return m_monitor; }
    bool isMonitorShown() const;

    /** The page by this name, or else the last one, or else the first. */
    void showFirstPage(QString const& name);

public slots:
    void toggleMonitor();

protected:
    void resizeEvent(QResizeEvent* event) override;

private slots:
    void showLink();

private:
    bool fitsBeside() const;
    void placeMonitor();

    pageRegistry_t const& m_pages;
    unit_t* m_unit;
    uiSettings_t* m_settings;
    screen_t* m_screen;
    monitorModel_t* m_model;
    linkMonitor_t* m_monitor;
    bool m_beside;
};

} // namespace melvox_display

#endif
