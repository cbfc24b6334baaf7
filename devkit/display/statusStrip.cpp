#include "display/statusStrip.h"

#include "display/glyphs.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QToolButton>
#include <QVariant>

namespace melvox_display
{

namespace
{

QString textOf(linkState_t state)
{
    switch (state)
    {
    case linkState_t::CONNECTING:
        return statusStrip_t::tr("Connecting");
    case linkState_t::CONNECTED:
        return statusStrip_t::tr("Connected");
    case linkState_t::INTERRUPTED:
        return statusStrip_t::tr("LINK INTERRUPTED");
    case linkState_t::RECONNECTING:
        return statusStrip_t::tr("LINK INTERRUPTED - Reconnecting");
    }
    return QString();
}

bool isBad(linkState_t state)
{
    return state == linkState_t::INTERRUPTED || state == linkState_t::RECONNECTING;
}

} // namespace

statusStrip_t::statusStrip_t(QWidget* parent)
    : QFrame(parent), m_simulated(new QLabel(tr("SIMULATED RECEIVER"), this)), m_state(new QLabel(this)),
      m_description(new QLabel(this)), m_monitor(new QToolButton(this))
{
    setObjectName("statusStrip");
    m_simulated->setObjectName("simulatedLabel");
    m_state->setObjectName("linkStateLabel");
    m_description->setObjectName("linkDescriptionLabel");
    m_description->setTextFormat(Qt::PlainText);
    m_description->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_monitor->setObjectName("monitorButton");
    m_monitor->setText(tr("Monitor"));
    m_monitor->setIcon(glyphIcon(glyph_t::MONITOR));
    m_monitor->setIconSize(QSize(24, 24));
    m_monitor->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_monitor->setToolTip(tr("Link monitor (F12)"));
    m_monitor->setAccessibleName(tr("Link monitor"));
    m_monitor->setCheckable(true);
    m_monitor->setFocusPolicy(Qt::NoFocus);
    connect(m_monitor, &QToolButton::clicked, this, &statusStrip_t::monitorToggled);

    QHBoxLayout* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 0, 0, 0);
    layout->setSpacing(12);
    layout->addWidget(m_simulated, 0, Qt::AlignVCenter);
    layout->addWidget(m_state);
    layout->addWidget(m_description, 1);
    layout->addWidget(m_monitor);
    setSimulated(false);
    setLink(QString(), linkState_t::CONNECTING);
}

void statusStrip_t::setSimulated(bool simulated)
{
    m_simulated->setVisible(simulated);
}

void statusStrip_t::setLink(QString const& description, linkState_t state)
{
    m_state->setText(textOf(state));
    m_description->setText(description);
    setProperty("interrupted", isBad(state));
    for (QWidget* widget : {static_cast<QWidget*>(this), static_cast<QWidget*>(m_state),
                            static_cast<QWidget*>(m_description), static_cast<QWidget*>(m_monitor)})
    {
        style()->unpolish(widget);
        style()->polish(widget);
    }
}

void statusStrip_t::setMonitorShown(bool shown)
{
    m_monitor->setChecked(shown);
}

} // namespace melvox_display
