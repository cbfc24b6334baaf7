#include "display/navigation.h"

#include "display/scrollView.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <QVariant>
#include <algorithm>

namespace melvox_display
{

namespace
{

subsystem_t const ORDER[] = {subsystem_t::POSITIONING, subsystem_t::CORRECTIONS, subsystem_t::PORTS,
                             subsystem_t::FIRMWARE, subsystem_t::DISPLAY};

/** So much is seen above and below the current page. */
int const MARGIN = 60;

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
    QHBoxLayout* layout = new QHBoxLayout(list);
    layout->setContentsMargins(0, 4, 0, 8);
    layout->setSpacing(0);
    for (QVBoxLayout*& column : m_columns)
    {
        column = new QVBoxLayout;
        column->setSpacing(0);
        layout->addLayout(column, 1);
    }
    for (subsystem_t subsystem : ORDER)
    {
        auto const belongs = [subsystem](pageEntry_t const& page) { return page.subsystem == subsystem; };
        int const count = int(std::count_if(pages.begin(), pages.end(), belongs));
        if (count > 0)
            m_sections << section_t{createSection(pages, subsystem), count};
    }
    setWidget(list);
    setColumns(1);
    scrollByFinger(this);
}

QWidget* navigation_t::createSection(pageRegistry_t const& pages, subsystem_t subsystem)
{
    QWidget* section = new QWidget(this);
    QVBoxLayout* layout = new QVBoxLayout(section);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    QLabel* heading = new QLabel(headingOf(subsystem), section);
    heading->setProperty("heading", true);
    heading->setWordWrap(true);
    layout->addWidget(heading);
    for (pageEntry_t const& page : pages)
    {
        if (page.subsystem == subsystem)
            addPage(section, page);
    }
    return section;
}

void navigation_t::setColumns(int count)
{
    int total = 0;
    for (section_t const& section : m_sections)
        total += section.pages;
    for (QVBoxLayout* column : m_columns)
    {
        while (QLayoutItem* item = column->takeAt(0))
            delete item;
    }
    int placed = 0;
    for (section_t const& section : m_sections)
    {
        bool const second = count > 1 && placed > 0 && 2 * placed >= total - section.pages / 2;
        m_columns[second ? 1 : 0]->addWidget(section.widget);
        placed += section.pages;
    }
    for (QVBoxLayout* column : m_columns)
        column->addStretch(1);
    static_cast<QBoxLayout*>(widget()->layout())->setStretch(1, count > 1 ? 1 : 0);
}

void navigation_t::addPage(QWidget* section, pageEntry_t const& page)
{
    QPushButton* button = new QPushButton(section);
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
    section->layout()->addWidget(button);
}

void navigation_t::setCurrent(QString const& name)
{
    m_current = name;
    if (QPushButton* button = m_buttons.value(name))
    {
        button->setChecked(true);
        ensureWidgetVisible(button, 0, MARGIN);
    }
}

void navigation_t::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    if (QPushButton* button = m_buttons.value(m_current))
        ensureWidgetVisible(button, 0, MARGIN);
}

} // namespace melvox_display
