#ifndef MELVOX_DISPLAY_SCREEN_H
#define MELVOX_DISPLAY_SCREEN_H

#include "display/pageRegistry.h"

#include <QMap>
#include <QPointer>
#include <QWidget>

class QLabel;
class QPushButton;
class QStackedWidget;

namespace melvox_display
{

class cardLayer_t;
class displayDialogHost_t;
class keypad_t;
class navigation_t;
class statusStrip_t;
class uiSettings_t;

/** What the operator sees: the pages with their menu, dialogs in place of pages, the keypad and the status strip.
 *  It is the host that dialogs are given to while it lives. */
class screen_t : public QWidget
{
    Q_OBJECT

public:
    /** All must live as long. */
    screen_t(pageRegistry_t const& pages, brel_common_qt::remoteMelvoxDevice_t* device, uiSettings_t* settings,
             QWidget* parent = nullptr);
    ~screen_t() override;

    /** Shows this page, made when it is shown for the first time. False when there is no page of this name, or a
     *  dialog does not let itself be closed. */
    bool showPage(QString const& name);
    QString currentPage() const { return m_current; }
    /** Null while it was not shown yet. */
    QWidget* page(QString const& name) const;

    /** True when there is no room for the menu beside the page. */
    bool isNarrow() const;
    bool isMenuOpen() const;

    statusStrip_t* strip() const { return m_strip; }
    keypad_t* keypad() const { return m_keypad; }
    displayDialogHost_t* dialogs() const { return m_dialogs; }
    /** Where the current page or dialog is shown. */
    QWidget* pageArea() const;

public slots:
    void toggleMenu();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private slots:
    void arrange();
    void choose(QString const& name);
    void makeRoomForKeypad();

private:
    QWidget* createTitleBar();
    void createStage();
    QWidget* createPage(pageEntry_t const& entry);
    bool actOn(pageEntry_t const& entry);
    QString title() const;

    pageRegistry_t const& m_pages;
    brel_common_qt::remoteMelvoxDevice_t* m_device;
    uiSettings_t* m_settings;
    QWidget* m_stage;
    QPushButton* m_back;
    QPushButton* m_menu;
    QLabel* m_title;
    navigation_t* m_navigation;
    QStackedWidget* m_area;
    keypad_t* m_keypad;
    statusStrip_t* m_strip;
    cardLayer_t* m_cards;
    displayDialogHost_t* m_dialogs;
    QMap<QString, QPointer<QWidget>> m_created;
    QMap<QString, QWidget*> m_views;
    QString m_current;
    bool m_menuOpen;
};

} // namespace melvox_display

#endif
