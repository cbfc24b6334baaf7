#include "display/statusStrip.h"

#include "display/glyphs.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
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
        return statusStrip_t::tr("RECONNECTING");
    }
    return QString();
}

QToolButton* createTool(QString const& name, QString const& text, QString const& tip, glyph_t glyph, QWidget* parent)
{
    QToolButton* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setText(text);
    button->setIcon(glyphIcon(glyph));
    button->setIconSize(QSize(24, 24));
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setToolTip(tip);
    button->setCheckable(true);
    button->setFocusPolicy(Qt::NoFocus);
    return button;
}

/** Ends in an ellipsis when there is too little room, as beside a long state on a small screen. */
class shortenedLabel_t : public QLabel
{
public:
    using QLabel::QLabel;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        QRect const place = contentsRect();
        style()->drawItemText(&painter, place, int(alignment()), palette(), isEnabled(),
                              fontMetrics().elidedText(text(), Qt::ElideRight, place.width()), foregroundRole());
    }
};

bool isBad(linkState_t state)
{
    return state == linkState_t::INTERRUPTED || state == linkState_t::RECONNECTING;
}

} // namespace

statusStrip_t::statusStrip_t(QWidget* parent)
    : QFrame(parent), m_simulated(new QLabel(tr("SIMULATED RECEIVER"), this)), m_state(new QLabel(this)),
      m_description(new shortenedLabel_t(this)),
      m_panel(createTool("panelButton", tr("Receiver"), tr("Receiver panel (F11)"), glyph_t::PANEL, this)),
      m_monitor(createTool("monitorButton", tr("Monitor"), tr("Link monitor (F12)"), glyph_t::MONITOR, this))
{
    setObjectName("statusStrip");
    m_simulated->setObjectName("simulatedLabel");
    m_state->setObjectName("linkStateLabel");
    m_description->setObjectName("linkDescriptionLabel");
    m_description->setTextFormat(Qt::PlainText);
    m_description->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_monitor->setAccessibleName(tr("Link monitor"));
    m_panel->setAccessibleName(tr("Receiver panel"));
    m_panel->hide();
    connect(m_panel, &QToolButton::clicked, this, &statusStrip_t::panelToggled);
    connect(m_monitor, &QToolButton::clicked, this, &statusStrip_t::monitorToggled);

    QHBoxLayout* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 0, 0, 0);
    layout->setSpacing(12);
    layout->addWidget(m_simulated, 0, Qt::AlignVCenter);
    layout->addWidget(m_state);
    layout->addWidget(m_description, 1);
    QHBoxLayout* tools = new QHBoxLayout;
    tools->setSpacing(0);
    tools->addWidget(m_panel);
    tools->addWidget(m_monitor);
    layout->addLayout(tools);
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
    m_description->setToolTip(description);
    setProperty("interrupted", isBad(state));
    for (QWidget* widget :
         {static_cast<QWidget*>(this), static_cast<QWidget*>(m_state), static_cast<QWidget*>(m_description),
          static_cast<QWidget*>(m_panel), static_cast<QWidget*>(m_monitor)})
    {
        style()->unpolish(widget);
        style()->polish(widget);
    }
}

void statusStrip_t::setMonitorShown(bool shown)
{
    m_monitor->setChecked(shown);
}

void statusStrip_t::setPanelShown(bool shown)
{
    m_panel->setChecked(shown);
}

void statusStrip_t::setPanelOffered(bool offered)
{
    m_panel->setVisible(offered);
}

} // namespace melvox_display
