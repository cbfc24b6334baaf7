#include "brel_common_qt/kitPort.h"
#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt_gui/dialogPage.h"
#include "brel_common_qt_gui/guiSettings.h"
#include "display/dialogHost.h"
#include "display/displayStyle.h"
#include "display/keypad.h"
#include "display/screen.h"
#include "display/statusStrip.h"
#include "display/uiSettings.h"
#include "link/scriptedLink.h"
#include "support/test.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QVBoxLayout>

using namespace melvox_display;
using brel_common_qt::remoteMelvoxDevice_t;
using brel_common_qt_gui::dialogPage_t;

namespace
{

int made = 0;
int asked = 0;

class shortPage_t : public QLabel
{
    Q_OBJECT

public:
    shortPage_t() : QLabel("short") {}

public slots:
    void query() { ++asked; }
};

/** Stands for a page that is higher than the screen; the last edit is at its foot. */
QWidget* createLongPage(remoteMelvoxDevice_t*)
{
    ++made;
    QWidget* page = new QWidget;
    QVBoxLayout* layout = new QVBoxLayout(page);
    for (int i = 0; i < 20; ++i)
    {
        QLineEdit* edit = new QLineEdit(QString::number(i));
        edit->setObjectName(QString("edit%1").arg(i));
        edit->setProperty("keypadType", "numeric");
        layout->addWidget(edit);
    }
    return page;
}

QWidget* createShortPage(remoteMelvoxDevice_t*)
{
    ++made;
    return new shortPage_t;
}

QWidget* createMenuDialog(remoteMelvoxDevice_t*)
{
    ++made;
    QDialog* dialog = new QDialog;
    dialog->setWindowTitle("Restart Receiver");
    return dialog;
}

pageRegistry_t const PAGES = {
    {"long", "Long Page", subsystem_t::POSITIONING, createLongPage},
    {"short", "Short & Sweet", subsystem_t::PORTS, createShortPage},
    {"restart", "Restart", subsystem_t::PORTS, createMenuDialog},
};

struct fixture_t
{
    explicit fixture_t(QSize const& size = QSize(1024, 600))
        : device(melvox_kit::createPort(&link, melvox_kit::LINK_OTHER)), settings(folder.filePath("display.conf")),
          screen(PAGES, &device, &settings)
    {
        made = 0;
        asked = 0;
        screen.resize(size);
        screen.show();
        screen.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&screen));
    }

    QString title() { return screen.findChild<QLabel*>("pageTitle")->text(); }
    QPushButton* button(QString const& name) { return screen.findChild<QPushButton*>(name); }
    void tap(QString const& name)
    {
        QVERIFY(button(name)->isVisible());
        QTest::mouseClick(button(name), Qt::LeftButton);
    }
    QRect onScreen(QWidget* widget) { return QRect(widget->mapTo(&screen, QPoint(0, 0)), widget->size()); }

    QTemporaryDir folder;
    melvox_link::scriptedLink_t link;
    remoteMelvoxDevice_t device;
    uiSettings_t settings;
    screen_t screen;
};

} // namespace

class tst_screen : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void initTestCase() { applyDisplayStyle(*qApp); }

    void aPageAsksTheReceiverWhenItIsMadeAndNotWhenItIsShownAgain()
    {
        fixture_t f;
        f.screen.showPage("short");
        QCOMPARE(asked, 1);
        f.screen.showPage("long");
        f.screen.showPage("short");
        QCOMPARE(asked, 1);
    }

    void everyRegisteredPageCanBeMade()
    {
        melvox_link::scriptedLink_t link;
        remoteMelvoxDevice_t device(melvox_kit::createPort(&link, melvox_kit::LINK_OTHER));
        QSet<QString> names;
        for (pageEntry_t const& entry : allPages())
        {
            QVERIFY2(QRegularExpression("^[a-z][A-Za-z0-9]*$").match(entry.name).hasMatch(), entry.name);
            QVERIFY2(!names.contains(entry.name), entry.name);
            names << entry.name;
            QVERIFY(!titleOf(entry).isEmpty());
            if (entry.act)
            {
                QVERIFY2(findPage(allPages(), entry.on), entry.name);
                continue;
            }
            std::unique_ptr<QWidget> page(entry.create(&device));
            QVERIFY(page);
            QVERIFY(!page->windowTitle().isEmpty());
        }
        QVERIFY(names.contains("solutionControl"));
    }

    void pagesAreFoundByName()
    {
        QCOMPARE(findPage(PAGES, "short"), &PAGES[1]);
        QVERIFY(!findPage(PAGES, "Short"));
        QCOMPARE(pageNames(PAGES), QStringList({"long", "short", "restart"}));
    }

    void pageIsMadeWhenItIsFirstShownAndKept()
    {
        fixture_t f;
        QCOMPARE(made, 0);
        QVERIFY(f.screen.showPage("short"));
        QCOMPARE(made, 1);
        QWidget* page = f.screen.page("short");
        QVERIFY(page->isVisible());
        QVERIFY(f.screen.showPage("long"));
        QVERIFY(!page->isVisible());
        QVERIFY(f.screen.showPage("short"));
        QCOMPARE(made, 2);
        QCOMPARE(f.screen.page("short"), page);
        QVERIFY(page->isVisible());
    }

    void unknownPageIsRefused()
    {
        fixture_t f;
        QVERIFY(f.screen.showPage("short"));
        QVERIFY(!f.screen.showPage("none"));
        QCOMPARE(f.screen.currentPage(), QString("short"));
    }

    void pageTitleStandsOnTop()
    {
        fixture_t f;
        f.screen.showPage("short");
        QCOMPARE(f.title(), QString("Short & Sweet"));
    }

    void wideScreenHasTheMenuBesideThePage()
    {
        fixture_t f;
        f.screen.showPage("short");
        QVERIFY(!f.button("menuButton")->isVisible());
        f.tap("nav_long");
        QCOMPARE(f.screen.currentPage(), QString("long"));
        QVERIFY(f.button("nav_long")->isChecked());
        QVERIFY(!f.button("nav_short")->isChecked());
    }

    void menuHasHeadingsOfSubsystemsWithPagesOnly()
    {
        fixture_t f;
        QStringList headings;
        for (QLabel* label : f.screen.findChildren<QLabel*>())
        {
            if (label->property("heading").toBool())
                headings << label->text();
        }
        QCOMPARE(headings, QStringList({"Positioning and Status", "Ports, Output and Network"}));
    }

    void narrowScreenHasTheMenuBehindAButton()
    {
        fixture_t f(QSize(800, 480));
        f.screen.showPage("short");
        QVERIFY(!f.button("nav_long")->isVisible());
        QVERIFY(f.screen.page("short")->parentWidget()->width() >= 780);
        f.tap("menuButton");
        QCOMPARE(f.title(), QString("Menu"));
        QVERIFY(!f.screen.page("short")->isVisible());
        f.tap("nav_long");
        QCOMPARE(f.title(), QString("Long Page"));
        QVERIFY(!f.button("nav_long")->isVisible());
        f.tap("menuButton");
        f.tap("menuButton");
        QVERIFY(f.screen.page("long")->isVisible());
    }

    void narrowMenuStandsInTwoColumns()
    {
        fixture_t f(QSize(800, 480));
        f.screen.showPage("short");
        f.tap("menuButton");
        QVERIFY(melvox_test::waitFor([&]() { return f.onScreen(f.button("nav_short")).left() == 400; }));
        QVERIFY(f.onScreen(f.button("nav_long")).right() < 400);
        f.screen.resize(1024, 600);
        QVERIFY(melvox_test::waitFor([&]() { return f.onScreen(f.button("nav_short")).left() == 0; }));
        QCOMPARE(f.onScreen(f.button("nav_long")).left(), 0);
    }

    void menuFollowsTheWidth()
    {
        fixture_t f(QSize(800, 480));
        f.screen.showPage("short");
        f.tap("menuButton");
        f.screen.resize(1024, 600);
        QVERIFY(melvox_test::waitFor([&]() { return f.button("nav_long")->isVisible(); }));
        QVERIFY(f.screen.page("short")->isVisible());
        f.screen.showPage("long");
        f.screen.resize(800, 480);
        QVERIFY(melvox_test::waitFor([&]() { return !f.button("nav_long")->isVisible(); }));
    }

    void longPageScrollsUpAndDownOnly()
    {
        fixture_t f(QSize(800, 480));
        f.screen.showPage("long");
        QScrollArea* view = f.screen.pageArea()->findChild<QScrollArea*>("pageView");
        QVERIFY(view->verticalScrollBar()->maximum() > 0);
        QCOMPARE(view->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(view->widget()->width(), view->viewport()->width());
    }

    void fingerScrollsThePage()
    {
        fixture_t f(QSize(800, 480));
        f.screen.showPage("long");
        QScrollArea* view = f.screen.pageArea()->findChild<QScrollArea*>("pageView");
        QWindow* window = f.screen.windowHandle();
        QPoint const start = f.onScreen(view).center();
        QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, start);
        for (int i = 1; i <= 10; ++i)
            QTest::mouseMove(window, start - QPoint(0, 12 * i), 10);
        QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, start - QPoint(0, 120));
        QVERIFY(melvox_test::waitFor([&]() { return view->verticalScrollBar()->value() > 60; }));
        QVERIFY(!f.screen.keypad()->isOpen());
    }

    void tapOnAnEditOpensTheKeypadThroughTheScrollingPage()
    {
        fixture_t f(QSize(800, 480));
        f.screen.showPage("long");
        QLineEdit* edit = f.screen.findChild<QLineEdit*>("edit2");
        QPoint const place = f.onScreen(edit).center();
        QTest::mouseClick(f.screen.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        QVERIFY(melvox_test::waitFor([&]() { return f.screen.keypad()->isOpen(); }));
        QCOMPARE(f.screen.keypad()->edit(), edit);
    }

    void editStaysInSightAboveTheKeypad_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::addColumn<QString>("type");
        QTest::newRow("small, numbers") << QSize(800, 480) << "numeric";
        QTest::newRow("small, letters") << QSize(800, 480) << "full";
        QTest::newRow("wide, numbers") << QSize(1024, 600) << "numeric";
        QTest::newRow("wide, letters") << QSize(1024, 600) << "full";
    }

    void editStaysInSightAboveTheKeypad()
    {
        QFETCH(QSize, size);
        QFETCH(QString, type);
        fixture_t f(size);
        f.screen.showPage("long");
        for (char const* name : {"edit19", "edit0"})
        {
            QLineEdit* edit = f.screen.findChild<QLineEdit*>(name);
            edit->setProperty("keypadType", type);
            f.screen.keypad()->open(edit);
            melvox_test::settle();
            QScrollArea* view = f.screen.pageArea()->findChild<QScrollArea*>("pageView");
            QVERIFY(f.onScreen(view->viewport()).contains(f.onScreen(edit)));
            QVERIFY(f.onScreen(edit).bottom() < f.onScreen(f.screen.keypad()).top());
            f.screen.keypad()->accept();
        }
    }

    void stripIsAlwaysInSight()
    {
        fixture_t f(QSize(800, 480));
        f.screen.showPage("long");
        f.screen.keypad()->open(f.screen.findChild<QLineEdit*>("edit3"));
        melvox_test::settle();
        QCOMPARE(f.screen.size(), QSize(800, 480));
        QVERIFY(f.screen.rect().contains(f.onScreen(f.screen.strip())));
        QVERIFY(f.onScreen(f.screen.keypad()).bottom() < f.onScreen(f.screen.strip()).top());
        f.screen.keypad()->accept();
        QMessageBox box;
        f.screen.dialogs()->showDialog(&box);
        QWidget* strip = f.screen.childAt(f.onScreen(f.screen.strip()).center());
        QVERIFY(strip == f.screen.strip() || f.screen.strip()->isAncestorOf(strip));
        box.reject();
    }

    void anotherPageClosesTheKeypad()
    {
        fixture_t f;
        f.screen.showPage("long");
        f.screen.keypad()->open(f.screen.findChild<QLineEdit*>("edit3"));
        f.screen.showPage("short");
        QVERIFY(!f.screen.keypad()->isOpen());
    }

    void messageBoxClosesTheKeypad()
    {
        fixture_t f;
        f.screen.showPage("long");
        f.screen.keypad()->open(f.screen.findChild<QLineEdit*>("edit3"));
        QMessageBox box;
        f.screen.dialogs()->showDialog(&box);
        QVERIFY(!f.screen.keypad()->isOpen());
        box.reject();
    }

    void dialogHasItsTitleAndABackButton()
    {
        fixture_t f(QSize(800, 480));
        f.screen.showPage("short");
        QDialog dialog;
        dialog.setWindowTitle("Base Position");
        dialogPage_t::host()->showDialog(&dialog);
        QCOMPARE(f.title(), QString("Base Position"));
        QVERIFY(!f.button("menuButton")->isVisible());
        f.tap("backButton");
        QVERIFY(!dialog.isVisible());
        QCOMPARE(f.title(), QString("Short & Sweet"));
        QVERIFY(!f.button("backButton")->isVisible());
        QVERIFY(f.button("menuButton")->isVisible());
    }

    void escapeClosesTheDialogOnTop()
    {
        fixture_t f;
        f.screen.showPage("short");
        QDialog dialog;
        QVBoxLayout layout(&dialog);
        QLineEdit* edit = new QLineEdit(&dialog);
        layout.addWidget(edit);
        f.screen.dialogs()->showDialog(&dialog);
        melvox_test::settle();
        QTest::keyClick(f.screen.windowHandle(), Qt::Key_Escape);
        QVERIFY2(dialog.isHidden(), "as it is shown");
        f.screen.dialogs()->showDialog(&dialog);
        edit->setFocus(Qt::TabFocusReason);
        QTest::keyClick(f.screen.windowHandle(), Qt::Key_Escape);
        QVERIFY2(dialog.isHidden(), "while something in it has the focus");
        f.screen.dialogs()->showDialog(&dialog);
        dialog.parentWidget()->setFocus(Qt::MouseFocusReason);
        QTest::keyClick(f.screen.windowHandle(), Qt::Key_Escape);
        QVERIFY2(dialog.isHidden(), "after a tap beside it");
        QTest::keyClick(f.screen.windowHandle(), Qt::Key_Escape);
        QVERIFY(f.screen.page("short")->isVisible());
    }

    void enterPressesTheDefaultButtonOfADialog()
    {
        fixture_t f;
        f.screen.showPage("short");
        QDialog dialog;
        QVBoxLayout layout(&dialog);
        QPushButton* ok = new QPushButton("OK", &dialog);
        ok->setDefault(true);
        connect(ok, &QPushButton::clicked, &dialog, &QDialog::accept);
        layout.addWidget(ok);
        QSignalSpy accepted(&dialog, &QDialog::accepted);
        f.screen.dialogs()->showDialog(&dialog);
        melvox_test::settle();
        QTest::keyClick(f.screen.windowHandle(), Qt::Key_Return);
        QCOMPARE(accepted.size(), 1);
    }

    void escapeAndEnterAnswerAMessageBox()
    {
        fixture_t f;
        f.screen.showPage("short");
        QMessageBox box(QMessageBox::Question, "Delete?", "Delete it?", QMessageBox::Yes | QMessageBox::No);
        box.setDefaultButton(QMessageBox::Yes);
        QSignalSpy finished(&box, &QDialog::finished);
        for (Qt::Key key : {Qt::Key_Escape, Qt::Key_Return})
        {
            f.screen.dialogs()->showDialog(&box);
            melvox_test::settle();
            QTest::keyClick(f.screen.windowHandle(), key);
            QVERIFY(box.isHidden());
        }
        QCOMPARE(finished.size(), 2);
        QCOMPARE(finished.at(0).at(0).toInt(), int(QMessageBox::No));
        QCOMPARE(finished.at(1).at(0).toInt(), int(QMessageBox::Yes));
    }

    void anotherPageRejectsTheDialog()
    {
        fixture_t f;
        f.screen.showPage("short");
        QDialog dialog;
        QSignalSpy rejected(&dialog, &QDialog::rejected);
        f.screen.dialogs()->showDialog(&dialog);
        f.tap("nav_long");
        QCOMPARE(rejected.size(), 1);
        QVERIFY(f.screen.page("long")->isVisible());
    }

    void dialogOfTheMenuIsShownOverThePage()
    {
        fixture_t f;
        f.screen.showPage("short");
        f.tap("nav_restart");
        QCOMPARE(f.title(), QString("Restart Receiver"));
        QCOMPARE(f.screen.currentPage(), QString("short"));
        f.tap("backButton");
        QVERIFY(f.screen.page("short")->isVisible());
        QVERIFY(f.button("nav_short")->isChecked());
        f.tap("nav_restart");
        QCOMPARE(made, 2);
        QCOMPARE(f.title(), QString("Restart Receiver"));
    }

    void lastPageIsRemembered()
    {
        fixture_t f;
        f.screen.showPage("long");
        QCOMPARE(f.settings.lastPage(), QString("long"));
    }

    void hostIsGivenUpWithTheScreen()
    {
        {
            fixture_t f;
            QVERIFY(dialogPage_t::host() == f.screen.dialogs());
        }
        QVERIFY(!dialogPage_t::host());
    }

    void barButtonsAreLargeEnoughForAFinger()
    {
        fixture_t f(QSize(800, 480));
        f.screen.showPage("short");
        QDialog dialog;
        for (char const* name : {"menuButton", "backButton"})
        {
            QVERIFY2(f.button(name)->isVisible(), name);
            QVERIFY2(f.button(name)->height() >= 40, name);
            f.screen.dialogs()->showDialog(&dialog);
            melvox_test::settle();
        }
        dialog.reject();
        f.tap("menuButton");
        for (char const* name : {"nav_long", "nav_short", "nav_restart"})
            QVERIFY2(f.button(name)->height() >= 40, name);
    }

    void settingsPageChangesUnitsAndFormat()
    {
        using namespace brel_common_qt;
        brel_common_qt_gui::guiSettings_t& settings = brel_common_qt_gui::guiSettings_t::get();
        settings.setDistanceUnit(DISTANCE_UNIT_METER);
        settings.setLatLonFormat(LATLON_FORMAT_DEGREE);
        std::unique_ptr<QWidget> page(findPage(allPages(), "displaySettings")->create(nullptr));
        QVERIFY(page->findChild<QPushButton*>("metersButton")->isChecked());
        page->findChild<QPushButton*>("feetButton")->click();
        QCOMPARE(settings.distanceUnit(), DISTANCE_UNIT_US_SURVEY_FOOT);
        QVERIFY(page->findChild<QLabel*>("unitExampleLabel")->text().endsWith("ft"));
        page->findChild<QPushButton*>("secondsButton")->click();
        QCOMPARE(settings.latLonFormat(), LATLON_FORMAT_DEGMINSEC);
        page->findChild<QPushButton*>("minutesButton")->click();
        QCOMPARE(settings.latLonFormat(), LATLON_FORMAT_DEGMIN);
        // The other way round as well.
        settings.setDistanceUnit(DISTANCE_UNIT_METER);
        settings.setLatLonFormat(LATLON_FORMAT_DEGREE);
        QVERIFY(page->findChild<QPushButton*>("metersButton")->isChecked());
        QVERIFY(page->findChild<QPushButton*>("degreesButton")->isChecked());
    }
};

QTEST_MAIN(tst_screen)
#include "tst_screen.moc"
