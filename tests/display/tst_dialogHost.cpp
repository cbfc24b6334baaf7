#include "brel_common_qt_gui/kitDialog.h"
#include "display/cardLayer.h"
#include "display/dialogHost.h"
#include "support/test.h"

#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace melvox_display;
using brel_common_qt_gui::dialogPage_t;

namespace
{

struct fixture_t
{
    fixture_t() : layout(&screen), area(new QStackedWidget), cards(new cardLayer_t(&screen)), host(area, cards)
    {
        layout.addWidget(area);
        page = new QWidget;
        button = new QPushButton("Behind", page);
        area->addWidget(page);
        host.setPage(page);
        screen.resize(800, 440);
        screen.show();
        screen.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&screen));
    }

    bool showsPage() const { return area->currentWidget() == page; }

    QWidget screen;
    QVBoxLayout layout;
    QStackedWidget* area;
    cardLayer_t* cards;
    displayDialogHost_t host;
    QWidget* page;
    QPushButton* button;
};

QDialog* createDialog(QString const& title, QWidget* parent = nullptr)
{
    QDialog* dialog = new QDialog(parent);
    dialog->setWindowTitle(title);
    (new QVBoxLayout(dialog))->addWidget(new QLabel(title));
    return dialog;
}

QMessageBox* createBox(QWidget* parent = nullptr)
{
    return new QMessageBox(QMessageBox::Question, "Really?", "Are you sure?", QMessageBox::Yes | QMessageBox::No,
                           parent);
}

} // namespace

class tst_dialogHost : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void dialogTakesThePlaceOfThePage()
    {
        fixture_t f;
        std::unique_ptr<QDialog> dialog(createDialog("Base Position"));
        QSignalSpy changed(&f.host, &displayDialogHost_t::changed);
        f.host.showDialog(dialog.get());
        QVERIFY(dialog->isVisible());
        QVERIFY(!dialog->isWindow());
        QVERIFY(f.screen.isAncestorOf(dialog.get()));
        QVERIFY(!f.page->isVisible());
        QCOMPARE(f.host.currentDialog(), dialog.get());
        QVERIFY(!changed.isEmpty());
        QCOMPARE(dialog->mapTo(&f.screen, QPoint(0, 0)), f.area->mapTo(&f.screen, QPoint(0, 0)));
        QCOMPARE(dialog->width(), f.area->width());
    }

    void finishedDialogGoesBackHidden_data()
    {
        QTest::addColumn<bool>("hasParent");
        QTest::newRow("to its parent") << true;
        QTest::newRow("to nobody") << false;
    }

    void finishedDialogGoesBackHidden()
    {
        QFETCH(bool, hasParent);
        fixture_t f;
        QPointer<QDialog> dialog = createDialog("Base Position", hasParent ? f.page : nullptr);
        Qt::WindowFlags const flags = dialog->windowFlags();
        QSignalSpy finished(dialog, &QDialog::finished);
        f.host.showDialog(dialog);
        dialog->accept();
        QCOMPARE(finished.size(), 1);
        QVERIFY(dialog);
        QVERIFY(!dialog->isVisible());
        QVERIFY(dialog->isWindow());
        QCOMPARE(dialog->windowFlags(), flags);
        QCOMPARE(dialog->parentWidget(), hasParent ? f.page : nullptr);
        QVERIFY(f.showsPage());
        QVERIFY(!f.host.currentDialog());
        delete dialog;
    }

    void makesNoWindowForADialogThatItGivesBack()
    {
        fixture_t f;
        QDialog* const dialog = createDialog("Base Position", f.page);
        f.host.showDialog(dialog);
        melvox_test::settle();
        dialog->reject();
        QVERIFY(!dialog->windowHandle());
        f.host.showDialog(dialog);
        QVERIFY(dialog->isVisible());
    }

    void whatIsShownOnceGoesWithTheHost()
    {
        QPointer<QMessageBox> const box = createBox();
        {
            fixture_t f;
            dialogPage_t::setHost(&f.host);
            melvox_kit::showOnce(box);
            dialogPage_t::setHost(nullptr);
            QVERIFY(box->isVisible());
        }
        melvox_test::settle();
        QVERIFY(!box);
    }

    void backRejects()
    {
        fixture_t f;
        std::unique_ptr<QDialog> dialog(createDialog("Base Position"));
        QSignalSpy rejected(dialog.get(), &QDialog::rejected);
        f.host.showDialog(dialog.get());
        f.host.back();
        QCOMPARE(rejected.size(), 1);
        QVERIFY(f.showsPage());
    }

    void dialogIsShownAgain()
    {
        fixture_t f;
        std::unique_ptr<QDialog> dialog(createDialog("Base Position"));
        for (int i = 0; i < 3; ++i)
        {
            f.host.showDialog(dialog.get());
            QVERIFY(dialog->isVisible());
            dialog->accept();
            QVERIFY(f.showsPage());
        }
        QCOMPARE(f.area->count(), 2);
    }

    void dialogShownAgainOutOfItsOwnResultStays()
    {
        fixture_t f;
        std::unique_ptr<QDialog> dialog(createDialog("Base Position"));
        bool again = true;
        connect(dialog.get(), &QDialog::finished, this,
                [&]()
                {
                    if (again)
                        f.host.showDialog(dialog.get());
                });
        f.host.showDialog(dialog.get());
        dialog->accept();
        melvox_test::settle();
        QVERIFY(dialog->isVisible());
        QCOMPARE(f.host.currentDialog(), dialog.get());
        again = false;
        dialog->accept();
        QVERIFY(f.showsPage());
    }

    void dialogsStack()
    {
        fixture_t f;
        std::unique_ptr<QDialog> lower(createDialog("Lower"));
        std::unique_ptr<QDialog> upper(createDialog("Upper", lower.get()));
        f.host.showDialog(lower.get());
        f.host.showDialog(upper.get());
        QVERIFY(upper->isVisible());
        QVERIFY(!lower->isVisible());
        f.host.back();
        QVERIFY(lower->isVisible());
        QCOMPARE(upper->parentWidget(), lower.get());
        f.host.back();
        QVERIFY(f.showsPage());
    }

    void lowerDialogMayFinishFirst()
    {
        fixture_t f;
        std::unique_ptr<QDialog> lower(createDialog("Lower"));
        std::unique_ptr<QDialog> upper(createDialog("Upper"));
        f.host.showDialog(lower.get());
        f.host.showDialog(upper.get());
        lower->accept();
        QVERIFY(upper->isVisible());
        QCOMPARE(f.host.currentDialog(), upper.get());
        f.host.back();
        QVERIFY(f.showsPage());
    }

    void dialogMayBeDestroyedWhileItIsShown()
    {
        fixture_t f;
        QDialog* dialog = createDialog("Base Position");
        f.host.showDialog(dialog);
        delete dialog;
        QVERIFY(f.showsPage());
        QVERIFY(!f.host.currentDialog());
    }

    void dialogMayBeDestroyedByWhoeverHearsItsResult()
    {
        fixture_t f;
        QPointer<QDialog> dialog = createDialog("Base Position");
        connect(dialog, &QDialog::finished, dialog, &QObject::deleteLater);
        f.host.showDialog(dialog);
        dialog->reject();
        melvox_test::settle();
        QVERIFY(!dialog);
        QVERIFY(f.showsPage());
    }

    void dialogDiesWithItsParent()
    {
        fixture_t f;
        QWidget* owner = new QWidget;
        QPointer<QDialog> dialog = createDialog("Base Position", owner);
        f.host.showDialog(dialog);
        delete owner;
        melvox_test::settle();
        QVERIFY(!dialog);
        QVERIFY(f.showsPage());
    }

    void upperDialogDiesWithTheLowerOneThatOwnsIt()
    {
        fixture_t f;
        QDialog* lower = createDialog("Lower");
        QPointer<QDialog> upper = createDialog("Upper", lower);
        f.host.showDialog(lower);
        f.host.showDialog(upper);
        delete lower;
        melvox_test::settle();
        QVERIFY(!upper);
        QVERIFY(f.showsPage());
    }

    void dialogHiddenByItsOwnerGoesBack()
    {
        fixture_t f;
        std::unique_ptr<QDialog> dialog(createDialog("Base Position"));
        QSignalSpy finished(dialog.get(), &QDialog::finished);
        f.host.showDialog(dialog.get());
        dialog->hide();
        QVERIFY(melvox_test::waitFor([&f]() { return f.showsPage(); }));
        QVERIFY(!dialog->parentWidget());
        QVERIFY(finished.isEmpty());
    }

    void titleChangesAreTold()
    {
        fixture_t f;
        std::unique_ptr<QDialog> dialog(createDialog("Base Position"));
        f.host.showDialog(dialog.get());
        QSignalSpy changed(&f.host, &displayDialogHost_t::changed);
        dialog->setWindowTitle("Base Position 2");
        QCOMPARE(changed.size(), 1);
    }

    void pageMayChangeBelowADialog()
    {
        fixture_t f;
        QWidget* another = new QWidget;
        f.area->addWidget(another);
        std::unique_ptr<QDialog> dialog(createDialog("Base Position"));
        f.host.showDialog(dialog.get());
        f.host.setPage(another);
        QVERIFY(dialog->isVisible());
        f.host.back();
        QCOMPARE(f.area->currentWidget(), another);
    }

    void allDialogsCanBeRejected()
    {
        fixture_t f;
        std::unique_ptr<QDialog> lower(createDialog("Lower"));
        std::unique_ptr<QDialog> upper(createDialog("Upper"));
        f.host.showDialog(lower.get());
        f.host.showDialog(upper.get());
        f.host.rejectAll();
        QVERIFY(f.showsPage());
        QVERIFY(!lower->isVisible());
    }

    void dialogThatDoesNotLetItselfBeRejectedStays()
    {
        class stubborn_t : public QDialog
        {
            void reject() override {}
        };
        fixture_t f;
        stubborn_t dialog;
        f.host.showDialog(&dialog);
        f.host.rejectAll();
        QVERIFY(dialog.isVisible());
        QCOMPARE(f.host.currentDialog(), &dialog);
        f.host.giveAllBack();
        QVERIFY(!dialog.isVisible());
        QVERIFY(!dialog.parentWidget());
    }

    void messageBoxIsACardOverTheScreen()
    {
        fixture_t f;
        std::unique_ptr<QMessageBox> box(createBox());
        f.host.showDialog(box.get());
        QVERIFY(box->isVisible());
        QVERIFY(!box->isWindow());
        QCOMPARE(f.host.currentCard(), box.get());
        QVERIFY(!f.host.currentDialog());
        QVERIFY(f.showsPage());
        QVERIFY(f.page->isVisible());
        QCOMPARE(f.cards->geometry(), f.screen.rect());
        QPoint const middle = box->mapTo(&f.screen, box->rect().center());
        QVERIFY(qAbs(middle.x() - 400) < 20);
        QVERIFY(qAbs(middle.y() - 220) < 40);
        QCOMPARE(f.cards->findChild<QLabel*>("cardTitle")->text(), QString("Really?"));
    }

    void messageBoxAnswersAndGoesBack()
    {
        fixture_t f;
        std::unique_ptr<QMessageBox> box(createBox());
        for (int i = 0; i < 2; ++i)
        {
            QSignalSpy finished(box.get(), &QDialog::finished);
            f.host.showDialog(box.get());
            QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
            QCOMPARE(finished.size(), 1);
            QCOMPARE(finished.first().first().toInt(), 16384);
            QVERIFY(!box->isVisible());
            QVERIFY(!box->parentWidget());
            QVERIFY(box->isWindow());
            QVERIFY(!f.cards->isVisible());
        }
    }

    void nothingBehindACardCanBeTapped()
    {
        fixture_t f;
        std::unique_ptr<QMessageBox> box(createBox());
        QSignalSpy clicked(f.button, &QPushButton::clicked);
        f.host.showDialog(box.get());
        QPoint const place = f.button->mapTo(&f.screen, f.button->rect().center());
        QTest::mouseClick(f.screen.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        QVERIFY(clicked.isEmpty());
        QVERIFY(f.screen.childAt(place) == f.cards);
        box->reject();
        QTest::mouseClick(f.screen.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        QCOMPARE(clicked.size(), 1);
    }

    void tabStaysOnTheCard()
    {
        fixture_t f;
        std::unique_ptr<QMessageBox> box(createBox());
        f.button->setFocus();
        f.host.showDialog(box.get());
        for (int i = 0; i < 5; ++i)
        {
            QVERIFY(box->isAncestorOf(QApplication::focusWidget()));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        box->reject();
        QCOMPARE(QApplication::focusWidget(), f.button);
    }

    void shortcutsBehindACardAreDead()
    {
        fixture_t f;
        f.button->setText("&Behind");
        std::unique_ptr<QMessageBox> box(createBox());
        f.host.showDialog(box.get());
        QTest::keyClick(&f.screen, Qt::Key_B, Qt::AltModifier);
        // A shortcut presses the button at once and lets it go a little later.
        QVERIFY(!f.button->isDown());
        box->reject();
        QTest::keyClick(&f.screen, Qt::Key_B, Qt::AltModifier);
        QVERIFY(f.button->isDown());
    }

    void cardMayBeDestroyedWhileItIsShown()
    {
        fixture_t f;
        QMessageBox* box = createBox();
        f.host.showDialog(box);
        delete box;
        melvox_test::settle();
        QVERIFY(!f.cards->isVisible());
        QVERIFY(!f.host.currentCard());
    }

    void cardsStack()
    {
        fixture_t f;
        std::unique_ptr<QMessageBox> lower(createBox());
        std::unique_ptr<QMessageBox> upper(createBox());
        f.host.showDialog(lower.get());
        f.host.showDialog(upper.get());
        QCOMPARE(f.host.currentCard(), upper.get());
        QVERIFY(!lower->isVisible());
        upper->reject();
        QVERIFY(lower->isVisible());
        lower->reject();
        QVERIFY(!f.cards->isVisible());
    }

    void cardThatIsHigherThanTheScreenScrolls()
    {
        fixture_t f;
        std::unique_ptr<QMessageBox> box(createBox());
        box->setText(QString("One more line of what was wrong\n").repeated(40));
        f.host.showDialog(box.get());
        melvox_test::settle();
        QWidget* card = f.cards->findChild<QWidget*>("card");
        QVERIFY(f.cards->rect().contains(card->geometry()));
        QVERIFY(box->height() > card->height());
    }

    void wrappedDialogsComeToTheHost()
    {
        fixture_t f;
        dialogPage_t::setHost(&f.host);
        QDialog* dialog = createDialog("Base Position", f.page);
        {
            dialogPage_t wrapped(dialog);
            wrapped.show();
            QCOMPARE(f.host.currentDialog(), dialog);
        }
        QVERIFY(f.showsPage());
        dialogPage_t::setHost(nullptr);
    }

    void hostGivesAllBackWhenItEnds()
    {
        std::unique_ptr<QDialog> dialog(createDialog("Base Position"));
        std::unique_ptr<QMessageBox> box(createBox());
        {
            fixture_t f;
            f.host.showDialog(dialog.get());
            f.host.showDialog(box.get());
        }
        QVERIFY(!dialog->parentWidget());
        QVERIFY(!dialog->isVisible());
        QVERIFY(!box->parentWidget());
    }
};

QTEST_MAIN(tst_dialogHost)
#include "tst_dialogHost.moc"
