#include "display/navigation.h"

#include "display/scrollView.h"

#include <QButtonGroup>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

namespace melvox_display
{

namespace
{

subsystem_t const ORDER[] = {subsystem_t::POSITIONING, subsystem_t::CORRECTIONS, subsystem_t::PORTS,
                             subsystem_t::FIRMWARE, subsystem_t::DISPLAY};

} // namespace

navigation_t::navigation_t(pageRegistry_t const& pages, QWidget* parent)
    : QScrollArea(parent), m_group(new QButtonGroup(this))
{
    setObjectName("navigation");
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    QWidget* list = new QWidget(this);
    list->setObjectName("navigationList");
    QVBoxLayout* layout = new QVBoxLayout(list);
    layout->setContentsMargins(0, 4, 0, 8);
    layout->setSpacing(0);
    for (subsystem_t subsystem : ORDER)
    {
        bool first = true;
        for (pageEntry_t const& page : pages)
        {
            if (page.subsystem != subsystem)
                continue;
            if (first)
            {
                QLabel* heading = new QLabel(headingOf(subsystem), list);
                heading->setProperty("heading", true);
                heading->setWordWrap(true);
                layout->addWidget(heading);
                first = false;
            }
            addPage(list, page);
        }
    }
    layout->addStretch(1);
    setWidget(list);
    scrollByFinger(this);
}

void navigation_t::addPage(QWidget* list, pageEntry_t const& page)
{
    QPushButton* button = new QPushButton(list);
    button->setObjectName(QString("nav_%1").arg(page.name));
    button->setText(titleOf(page).replace('&', "&&"));
    button->setProperty("navigation", true);
    button->setCheckable(true);
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::TabFocus);
    m_group->addButton(button);
    m_buttons.insert(page.name, button);
    QString const name = page.name;
    connect(button, &QPushButton::clicked, this,
            [this, name]()
            {
                // Which one is marked is for whoever shows the page to say: it may not come to that.
                setCurrent(m_current);
                emit chosen(name);
            });
    list->layout()->addWidget(button);
}

void navigation_t::setCurrent(QString const& name)
{
    m_current = name;
    if (QPushButton* button = m_buttons.value(name))
    {
        button->setChecked(true);
        ensureWidgetVisible(button, 0, 60);
    }
}

} // namespace melvox_display
