#include "display/displayWindow.h"

#include "display/linkMonitor.h"
#include "display/monitorModel.h"
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
int const MONITOR_WIDTH = 640;
QSize const SMALLEST_SCREEN(640, 400);

} // namespace

displayWindow_t::displayWindow_t(pageRegistry_t const& pages, unit_t* unit, uiSettings_t* settings,
                                 QSize const& screenSize)
    : m_pages(pages), m_unit(unit), m_settings(settings), m_screen(new screen_t(pages, unit->device(), settings, this)),
      m_model(new monitorModel_t(MONITOR_ROWS, this)), m_monitor(new linkMonitor_t(m_model, this)), m_beside(false)
{
    setWindowTitle(tr("Melvox Display"));
    setMinimumSize(SMALLEST_SCREEN);
    m_monitor->hide();
    connect(m_unit->tap(), &melvox_link::linkTap_t::passed, m_model, &monitorModel_t::add);
    connect(m_unit, &unit_t::linkStateChanged, this, &displayWindow_t::showLink);
    connect(m_screen->strip(), &statusStrip_t::monitorToggled, this, &displayWindow_t::toggleMonitor);
    QShortcut* shortcut = new QShortcut(QKeySequence(Qt::Key_F12), this);
    connect(shortcut, &QShortcut::activated, this, &displayWindow_t::toggleMonitor);
    resize(screenSize);
    showLink();
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

bool displayWindow_t::isMonitorShown() const
{
    return !m_monitor->isHidden();
}

bool displayWindow_t::fitsBeside() const
{
    return !m_screen->isNarrow() && !(windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen));
}

void displayWindow_t::toggleMonitor()
{
    bool const shown = !isMonitorShown();
    int const change = shown && fitsBeside() ? MONITOR_WIDTH : !shown && m_beside ? -MONITOR_WIDTH : 0;
    m_beside = shown && fitsBeside();
    m_monitor->setVisible(shown);
    m_screen->strip()->setMonitorShown(shown);
    QSize const target(width() + change, height());
    setMinimumWidth(SMALLEST_SCREEN.width() + (m_beside ? MONITOR_WIDTH : 0));
    if (change != 0 && !(windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)))
        resize(target);
    placeMonitor();
}

void displayWindow_t::placeMonitor()
{
    QSize const whole = size();
    int const beside = m_beside ? MONITOR_WIDTH : 0;
    m_screen->setGeometry(0, 0, whole.width() - beside, whole.height());
    // Lying over the screen it leaves the strip free: there is the button that takes it away again.
    int const strip = m_screen->strip()->height();
    if (m_beside)
        m_monitor->setGeometry(whole.width() - beside, 0, beside, whole.height());
    else
        m_monitor->setGeometry(0, 0, whole.width(), whole.height() - strip);
    m_monitor->raise();
}

void displayWindow_t::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    placeMonitor();
}

void displayWindow_t::showLink()
{
    m_screen->strip()->setSimulated(m_unit->isSimulated());
    m_screen->strip()->setLink(m_unit->description(), m_unit->linkState());
}

} // namespace melvox_display
