#include "display/displayWindow.h"

#include "display/linkMonitor.h"
#include "display/monitorModel.h"
#include "display/receiverPanel.h"
#include "display/screen.h"
#include "display/statusStrip.h"
#include "display/uiSettings.h"
#include "display/unit.h"
#include "link/linkTap.h"

#include <QShortcut>

namespace melvox_display
{

namespace
{

int const MONITOR_ROWS = 5000;
int const SIDE_WIDTH = 640;
QSize const SMALLEST_SCREEN(640, 400);

} // namespace

displayWindow_t::displayWindow_t(pageRegistry_t const& pages, unit_t* unit, uiSettings_t* settings,
                                 QSize const& screenSize, simulation_t* simulation)
    : m_pages(pages), m_unit(unit), m_settings(settings), m_screen(nullptr), m_simulation(simulation),
      m_model(new monitorModel_t(MONITOR_ROWS, this)), m_monitor(nullptr), m_panel(nullptr), m_side(nullptr),
      m_beside(false)
{
    setWindowTitle(tr("Melvox Display"));
    setMinimumSize(SMALLEST_SCREEN);
    createScreen();
    connect(m_unit->tap(), &melvox_link::linkTap_t::passed, m_model, &monitorModel_t::add);
    connect(m_unit, &unit_t::linkStateChanged, this, &displayWindow_t::showLink);
    connect(m_unit, &unit_t::deviceAboutToGo, this, &displayWindow_t::dropScreen);
    connect(m_unit, &unit_t::deviceReplaced, this, &displayWindow_t::renewScreen);
    addShortcut(Qt::Key_F11, &displayWindow_t::togglePanel);
    addShortcut(Qt::Key_F12, &displayWindow_t::toggleMonitor);
    resize(screenSize);
}

void displayWindow_t::addShortcut(Qt::Key key, void (displayWindow_t::*act)())
{
    QShortcut* shortcut = new QShortcut(QKeySequence(key), this);
    connect(shortcut, &QShortcut::activated, this, act);
}

void displayWindow_t::createScreen()
{
    m_screen = new screen_t(m_pages, m_unit->device(), m_settings, this);
    m_screen->strip()->setPanelOffered(m_simulation != nullptr);
    connect(m_screen->strip(), &statusStrip_t::monitorToggled, this, &displayWindow_t::toggleMonitor);
    connect(m_screen->strip(), &statusStrip_t::panelToggled, this, &displayWindow_t::togglePanel);
    showLink();
}

/** The pages stand on the proxy. */
void displayWindow_t::dropScreen()
{
    m_lastPage = m_screen->currentPage();
    delete m_screen;
    m_screen = nullptr;
}

void displayWindow_t::renewScreen()
{
    createScreen();
    m_screen->strip()->setMonitorShown(isMonitorShown());
    m_screen->strip()->setPanelShown(isPanelShown());
    m_screen->show();
    place();
    showFirstPage(m_lastPage);
}

displayWindow_t::~displayWindow_t()
{
    // Pages stand on the unit, the monitor on its model: the screen goes while all is still there.
    delete m_screen;
}

void displayWindow_t::showFirstPage(QString const& name)
{
    QString const first = m_pages.empty() ? QString() : m_pages.front().name;
    // Something must lie below a dialog.
    if (!m_screen->showPage(m_settings->lastPage()) || m_screen->currentPage().isEmpty())
        m_screen->showPage(first);
    if (!name.isEmpty())
        m_screen->showPage(name);
}

linkMonitor_t* displayWindow_t::monitor()
{
    if (!m_monitor)
    {
        m_monitor = new linkMonitor_t(m_model, this);
        m_monitor->hide();
    }
    return m_monitor;
}

receiverPanel_t* displayWindow_t::panel()
{
    if (!m_panel && m_simulation)
    {
        m_panel = new receiverPanel_t(m_simulation, this);
        m_panel->hide();
    }
    return m_panel;
}

bool displayWindow_t::isMonitorShown() const
{
    return m_monitor && !m_monitor->isHidden();
}

bool displayWindow_t::fitsBeside() const
{
    return !m_screen->isNarrow() && !(windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen));
}

bool displayWindow_t::isPanelShown() const
{
    return m_panel && !m_panel->isHidden();
}

void displayWindow_t::toggleMonitor()
{
    showSide(isMonitorShown() ? nullptr : monitor());
}

void displayWindow_t::togglePanel()
{
    if (m_simulation)
        showSide(isPanelShown() ? nullptr : panel());
}

void displayWindow_t::showSide(QWidget* side)
{
    bool const wasBeside = m_beside;
    m_side = side;
    m_beside = side && fitsBeside();
    int const change = (int(m_beside) - int(wasBeside)) * SIDE_WIDTH;
    if (m_monitor)
        m_monitor->setVisible(side == m_monitor);
    if (m_panel)
        m_panel->setVisible(side == m_panel);
    m_screen->strip()->setMonitorShown(isMonitorShown());
    m_screen->strip()->setPanelShown(isPanelShown());
    QSize const target(width() + change, height());
    setMinimumWidth(SMALLEST_SCREEN.width() + (m_beside ? SIDE_WIDTH : 0));
    if (change != 0 && !(windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)))
        resize(target);
    place();
}

void displayWindow_t::place()
{
    QSize const whole = size();
    int const beside = m_beside ? SIDE_WIDTH : 0;
    m_screen->setGeometry(0, 0, whole.width() - beside, whole.height());
    if (!m_side)
        return;
    // Lying over the screen it leaves the strip free: there is the button that takes it away again.
    int const strip = m_screen->strip()->height();
    if (m_beside)
        m_side->setGeometry(whole.width() - beside, 0, beside, whole.height());
    else
        m_side->setGeometry(0, 0, whole.width(), whole.height() - strip);
    m_side->raise();
}

void displayWindow_t::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    place();
}

void displayWindow_t::showLink()
{
    m_screen->strip()->setSimulated(m_unit->isSimulated());
    m_screen->strip()->setLink(m_unit->description(), m_unit->linkState());
}

} // namespace melvox_display
