#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/usbDriveManager.h"
#include "display/dialogHost.h"
#include "display/displayStyle.h"
#include "display/displayWindow.h"
#include "display/driveRack.h"
#include "display/keypad.h"
#include "display/screen.h"
#include "display/tour.h"
#include "display/tourScenes.h"
#include "display/uiSettings.h"
#include "display/unit.h"
#include "link/localLink.h"
#include "receiver/receiver.h"
#include "support/test.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScrollArea>
#include <QTemporaryDir>

using namespace melvox_display;

namespace
{

/** A whole unit, touched through its window as a finger does. */
struct fixture_t
{
    explicit fixture_t(QSize const& size)
        : unit(connection_t()), settings(folder.filePath("display.conf")), window(allPages(), &unit, &settings, size)
    {
        unit.localLink()->setLatency(1);
        unit.start();
        window.showFirstPage("solutionControl");
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        page = window.screen()->page("solutionControl");
        QVERIFY(melvox_test::waitFor([this]() { return unit.device()->ntripPPPModeValid(); }));
        melvox_test::settle();
    }

    void tap(QWidget* widget)
    {
        QVERIFY(widget);
        if (QScrollArea* view = viewOf(widget))
            view->ensureWidgetVisible(widget);
        melvox_test::settle();
        QPoint const place = widget->mapTo(&window, widget->rect().center());
        QWidget* there = window.childAt(place);
        QVERIFY2(there == widget || widget->isAncestorOf(there), qPrintable(widget->objectName() + " is covered"));
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        melvox_test::settle();
    }

    QScrollArea* viewOf(QWidget* widget)
    {
        for (QWidget* above = widget->parentWidget(); above; above = above->parentWidget())
        {
            if (QScrollArea* view = qobject_cast<QScrollArea*>(above))
                return view;
        }
        return nullptr;
    }

    void press(QString const& keys)
    {
        for (QString const& name : keys.split(' '))
        {
            QPushButton* found = nullptr;
            for (QPushButton* key : window.screen()->keypad()->findChildren<QPushButton*>("key_" + name))
                found = key->isVisible() ? key : found;
            QVERIFY2(found, qPrintable("no key " + name));
            tap(found);
        }
    }

    QAbstractButton* apply() { return page->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Apply); }

    QString label(QString const& name) { return page->findChild<QLabel*>(name)->text(); }

    QTemporaryDir folder;
    unit_t unit;
    uiSettings_t settings;
    displayWindow_t window;
    QWidget* page;
};

} // namespace

class tst_operating : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void initTestCase() { applyDisplayStyle(*qApp); }

    void whatTheOperatorTypesComesBackFromTheReceiver_data()
    {
        QTest::addColumn<QSize>("size");
        QTest::newRow("small screen") << QSize(800, 480);
        QTest::newRow("wide screen") << QSize(1024, 600);
    }

    void whatTheOperatorTypesComesBackFromTheReceiver()
    {
        QFETCH(QSize, size);
        fixture_t f(size);
        QVERIFY(f.label("elevationMaskLabel") != "12.5");
        f.tap(f.page->findChild<QLineEdit*>("elevationMaskLineEdit"));
        QVERIFY(f.window.screen()->keypad()->isOpen());
        f.press("1 2 . 5 done");
        QVERIFY(!f.window.screen()->keypad()->isOpen());
        f.tap(f.apply());
        QVERIFY(melvox_test::waitFor([&]() { return f.label("elevationMaskLabel") == "12.5"; }));
        QCOMPARE(f.unit.receiver()->setting("elevationMask").toDouble(), 12.5);
        QVERIFY(!f.window.screen()->dialogs()->currentCard());
    }

    void wrongInputIsToldOnACardAndNotSent()
    {
        fixture_t f(QSize(800, 480));
        QVariant const before = f.unit.receiver()->setting("elevationMask");
        f.tap(f.page->findChild<QLineEdit*>("elevationMaskLineEdit"));
        f.press("6 0 . 1 done");
        f.tap(f.apply());
        displayDialogHost_t* host = f.window.screen()->dialogs();
        QVERIFY(melvox_test::waitFor([&]() { return host->currentCard() != nullptr; }));
        QMessageBox* box = qobject_cast<QMessageBox*>(host->currentCard());
        QCOMPARE(box->text(), QString("Elevation mask must be 4 - 60\n"));
        f.tap(box->button(QMessageBox::Ok));
        QVERIFY(melvox_test::waitFor([&]() { return host->currentCard() == nullptr; }));
        QCOMPARE(f.unit.receiver()->setting("elevationMask"), before);
    }

    void cancelledInputIsNotApplied()
    {
        fixture_t f(QSize(1024, 600));
        double const before = f.unit.receiver()->setting("pdopLimit").toDouble();
        f.tap(f.page->findChild<QLineEdit*>("pdopLineEdit"));
        f.press("9 9 cancel");
        f.tap(f.apply());
        QVERIFY(melvox_test::waitFor([&]() { return f.label("pdopLabel") == QString::number(before, 'f', 1); }));
        QCOMPARE(f.unit.receiver()->setting("pdopLimit").toDouble(), before);
    }

    void choiceFromAListReachesTheReceiver()
    {
        fixture_t f(QSize(800, 480));
        QComboBox* combo = f.page->findChild<QComboBox*>("geoidalModelCombo");
        QCOMPARE(f.label("geoidalModelLabel"), QString("EGM84"));
        // What the offscreen platform cannot do.
        melvox_test::expectWarning("raise()");
        melvox_test::expectWarning("grabbing the keyboard");
        f.tap(combo);
        QAbstractItemView* list = combo->view();
        QVERIFY(QTest::qWaitForWindowExposed(list->window()));
        QRect const item = list->visualRect(list->model()->index(0, 0));
        QVERIFY2(item.height() >= 40, "too low for a finger");
        QPoint const place = list->viewport()->mapTo(list->window(), item.center());
        QTest::mouseMove(list->window()->windowHandle(), place);
        QTest::mouseClick(list->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        QVERIFY(melvox_test::waitFor([&]() { return combo->currentIndex() == 0; }));
        QVERIFY(!list->isVisible());
        f.tap(f.apply());
        QVERIFY(melvox_test::waitFor([&]() { return f.label("geoidalModelLabel") == "None"; }));
        QCOMPARE(f.unit.receiver()->setting("geoidalModel").toInt(), 0);
    }

    void tourPicturesEveryPage()
    {
        brel_common_qt::usbDriveManager_t const drives;
        fixture_t f(QSize(800, 480));
        QDir const pictures(f.folder.filePath("pictures"));
        QCOMPARE(walkTour(f.window, f.unit, pictures.path()), 0);
        QStringList const names = pictures.entryList({"*.png"});
        for (QString const& part : pageNames(allPages()) + QStringList{"keypad-numeric", "error-box", "link-monitor"})
        {
            QStringList const found = names.filter(part);
            QVERIFY2(!found.isEmpty(), qPrintable("no picture of " + part));
            QCOMPARE(QImage(pictures.filePath(found.first())).size(), QSize(800, 480));
        }
    }

    void tourPlaysScenesOnlyWithDrivesThatHaveTheirFiles_data()
    {
        QTest::addColumn<int>("need");
        QTest::addColumn<QString>("file");
        QTest::newRow("profile") << int(scene_t::PROFILE) << "profile1.melvox";
        QTest::newRow("web package") << int(scene_t::WEB_UI) << "pages.WEBUI";
        QTest::newRow("firmware") << int(scene_t::FIRMWARE) << "releases/new/combined.srec";
        QTest::newRow("firmware, at the end") << int(scene_t::LAST) << "nav.srec";
    }

    void tourPlaysScenesOnlyWithDrivesThatHaveTheirFiles()
    {
        QFETCH(int, need);
        QFETCH(QString, file);
        scene_t::need_t const files = scene_t::need_t(need);
        QTemporaryDir folder;
        driveRack_t rack(folder.path());
        QVERIFY(rack.open());
        QVERIFY(isMet(scene_t::NOTHING));
        QVERIFY(!isMet(scene_t::DRIVE));
        QVERIFY(!isMet(files));
        QVERIFY(rack.plugIn("stick", {{"readme.txt", "nothing"}}));
        QVERIFY(melvox_test::waitFor([]() { return isMet(scene_t::DRIVE); }));
        QVERIFY(!isMet(files));
        QFileInfo const place(folder.filePath("stick/" + file));
        QVERIFY(QDir().mkpath(place.path()));
        QFile written(place.filePath());
        QVERIFY(written.open(QIODevice::WriteOnly));
        QVERIFY(isMet(files));
    }

    void tourThatCannotWriteFails()
    {
        fixture_t f(QSize(800, 480));
        QFile file(f.folder.filePath("taken"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(walkTour(f.window, f.unit, file.fileName() + "/pictures") != 0);
    }
};

QTEST_MAIN(tst_operating)
#include "tst_operating.moc"
