#include "display/screen.h"

#include "display/cardLayer.h"
#include "display/dialogHost.h"
#include "display/glyphs.h"
#include "display/keypad.h"
#include "display/navigation.h"
#include "display/scrollView.h"
#include "display/statusStrip.h"
#include "display/uiSettings.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QResizeEvent>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace melvox_display
{

namespace
{

int const MENU_WIDTH = 252;
/** Below this width a page needs the whole screen. */
int const WIDE = 960;
/** Below this height the keypad must save rows. */
int const HIGH = 560;

using brel_common_qt_gui::dialogPage_t;

/** Some of what pages show is not kept for those who come later, so a new page asks for it. Later showings must not: a
 *  report may take back what was typed. */
void askForValues(QWidget* page)
{
    if (page->metaObject()->indexOfSlot("query()") >= 0)
        QMetaObject::invokeMethod(page, "query");
}

QPushButton* createBarButton(QString const& name, QString const& text, glyph_t glyph, QWidget* parent)
{
    QPushButton* button = new QPushButton(glyphIcon(glyph), text, parent);
    button->setObjectName(name);
    button->setIconSize(QSize(24, 24));
    button->setAutoDefault(false);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

screen_t::screen_t(pageRegistry_t const& pages, brel_common_qt::remoteMelvoxDevice_t* device, uiSettings_t* settings,
                   QWidget* parent)
    : QWidget(parent), m_pages(pages), m_device(device), m_settings(settings), m_stage(new QWidget(this)),
      m_back(nullptr), m_menu(nullptr), m_title(nullptr), m_navigation(nullptr), m_area(nullptr), m_keypad(nullptr),
      m_strip(new statusStrip_t(this)), m_cards(nullptr), m_dialogs(nullptr), m_menuOpen(false)
{
    setObjectName("screen");
    setAttribute(Qt::WA_StyledBackground);
    createStage();
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_stage, 1);
    layout->addWidget(m_strip);

    m_cards = new cardLayer_t(m_stage);
    m_dialogs = new displayDialogHost_t(m_area, m_cards, this);
    connect(m_dialogs, &displayDialogHost_t::changed, this, &screen_t::arrange);
    connect(m_back, &QPushButton::clicked, m_dialogs, &displayDialogHost_t::back);
    dialogPage_t::setHost(m_dialogs);
    arrange();
}

screen_t::~screen_t()
{
    if (dialogPage_t::host() == m_dialogs)
        dialogPage_t::setHost(nullptr);
    m_dialogs->disconnect(this);
    // Dialogs belong to their pages; they must be back with them before the screen takes its parts down.
    delete m_dialogs;
    for (QPointer<QWidget> const& page : m_created)
        delete page;
}

void screen_t::createStage()
{
    m_stage->setObjectName("stage");
    m_navigation = new navigation_t(m_pages, m_stage);
    m_area = new QStackedWidget(m_stage);
    m_area->setObjectName("pageArea");
    m_keypad = new keypad_t(this, m_stage);
    QHBoxLayout* middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(m_navigation);
    middle->addWidget(m_area, 1);
    QVBoxLayout* layout = new QVBoxLayout(m_stage);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(createTitleBar());
    layout->addLayout(middle, 1);
    layout->addWidget(m_keypad);
    connect(m_navigation, &navigation_t::chosen, this, &screen_t::choose);
    connect(m_keypad, &keypad_t::opened, this, &screen_t::makeRoomForKeypad);
}

QWidget* screen_t::createTitleBar()
{
    QFrame* bar = new QFrame(m_stage);
    bar->setObjectName("titleBar");
    m_back = createBarButton("backButton", tr("Back"), glyph_t::BACK, bar);
    m_menu = createBarButton("menuButton", tr("Menu"), glyph_t::MENU, bar);
    m_menu->setCheckable(true);
    connect(m_menu, &QPushButton::clicked, this, &screen_t::toggleMenu);
    m_title = new QLabel(bar);
    m_title->setObjectName("pageTitle");
    m_title->setTextFormat(Qt::PlainText);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QHBoxLayout* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(12, 0, 12, 0);
    layout->setSpacing(12);
    layout->addWidget(m_back);
    layout->addWidget(m_menu);
    layout->addWidget(m_title, 1);
    return bar;
}

bool screen_t::isNarrow() const
{
    return width() < WIDE;
}

bool screen_t::isMenuOpen() const
{
    return isNarrow() && m_menuOpen;
}

QWidget* screen_t::pageArea() const
{
    return m_area;
}

QWidget* screen_t::page(QString const& name) const
{
    return m_created.value(name);
}

QWidget* screen_t::createPage(pageEntry_t const& entry)
{
    QWidget* page = entry.create(m_device);
    m_created.insert(entry.name, page);
    m_settings->attachPage(page, entry.name);
    if (qobject_cast<QDialog*>(page))
        return page;
    QWidget* view = createScrollView(page, m_area);
    m_views.insert(entry.name, view);
    m_area->addWidget(view);
    askForValues(page);
    return page;
}

bool screen_t::showPage(QString const& name)
{
    pageEntry_t const* entry = findPage(m_pages, name);
    if (!entry)
        return false;
    if (entry->act)
        return actOn(*entry);
    m_dialogs->rejectAll();
    if (m_dialogs->currentDialog())
        return false;
    m_keypad->accept();
    m_menuOpen = false;
    QWidget* widget = page(name) ? page(name) : createPage(*entry);
    if (QDialog* dialog = qobject_cast<QDialog*>(widget))
    {
        m_dialogs->showDialog(dialog);
        return true;
    }
    m_current = name;
    m_settings->setLastPage(name);
    m_navigation->setCurrent(name);
    m_dialogs->setPage(m_views.value(name));
    return true;
}

bool screen_t::actOn(pageEntry_t const& entry)
{
    if (!showPage(entry.on))
        return false;
    entry.act(page(entry.on));
    return true;
}

void screen_t::choose(QString const& name)
{
    showPage(name);
}

void screen_t::toggleMenu()
{
    m_keypad->accept();
    m_menuOpen = !m_menuOpen;
    arrange();
}

QString screen_t::title() const
{
    if (QDialog* dialog = m_dialogs->currentDialog())
        return dialog->windowTitle();
    if (isMenuOpen())
        return tr("Menu");
    pageEntry_t const* entry = findPage(m_pages, m_current);
    return entry ? titleOf(*entry) : QString();
}

void screen_t::arrange()
{
    bool const inDialog = m_dialogs->currentDialog() != nullptr;
    if (inDialog)
        m_menuOpen = false;
    m_back->setVisible(inDialog);
    m_menu->setVisible(isNarrow() && !inDialog);
    m_menu->setChecked(isMenuOpen());
    m_navigation->setVisible(!isNarrow() || isMenuOpen());
    m_area->setVisible(!isMenuOpen());
    m_navigation->setColumns(isNarrow() ? 2 : 1);
    m_navigation->setMinimumWidth(isNarrow() ? 0 : MENU_WIDTH);
    m_navigation->setMaximumWidth(isNarrow() ? QWIDGETSIZE_MAX : MENU_WIDTH);
    m_title->setText(title());
    if (m_dialogs->currentCard())
        m_keypad->accept();
}

void screen_t::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_keypad->setCompact(height() < HIGH);
    arrange();
}

void screen_t::keyPressEvent(QKeyEvent* event)
{
    // Comes here when the operator has touched the screen beside the dialog.
    if (event->key() == Qt::Key_Escape && m_dialogs->currentDialog())
        m_dialogs->back();
    else
        QWidget::keyPressEvent(event);
}

void screen_t::makeRoomForKeypad()
{
    // The page gets its new height first; only then is it known what has to be scrolled.
    layout()->activate();
    m_stage->layout()->activate();
    for (QWidget* widget = m_keypad->edit(); widget; widget = widget->parentWidget())
    {
        QScrollArea* view = qobject_cast<QScrollArea*>(widget);
        if (view && view->widget())
        {
            view->layout();
            view->ensureWidgetVisible(m_keypad->edit(), 0, qMin(40, view->viewport()->height() / 4));
        }
    }
}

} // namespace melvox_display
