#include "display/displayStyle.h"
#include "display/entryMirror.h"
#include "display/keypad.h"
#include "support/test.h"

#include <QApplication>
#include <QDoubleValidator>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QSpinBox>
#include <QVBoxLayout>

using namespace melvox_display;

namespace
{

/** A screen with one edit, a button and the keypad below. */
struct fixture_t
{
    fixture_t() : layout(&screen), keypad(nullptr)
    {
        edit = new QLineEdit("10.0");
        edit->setProperty("keypadType", "numeric");
        edit->setProperty("keypadPrompt", "Elevation Mask");
        other = new QLineEdit("name");
        button = new QPushButton("Apply");
        keypad = new keypad_t(&screen, &screen);
        layout.addWidget(edit);
        layout.addWidget(other);
        layout.addWidget(button);
        layout.addStretch(1);
        layout.addWidget(keypad);
        screen.resize(800, 480);
        screen.show();
        screen.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&screen));
    }

    void tap(QWidget* widget) { QTest::mouseClick(widget, Qt::LeftButton); }

    QPushButton* key(QString const& name)
    {
        for (QPushButton* candidate : keypad->findChildren<QPushButton*>("key_" + name))
        {
            if (candidate->isVisible())
                return candidate;
        }
        return nullptr;
    }

    void press(QString const& keys)
    {
        for (QString const& name : keys.split(' '))
        {
            QPushButton* found = key(name);
            QVERIFY2(found, qPrintable("no key " + name));
            tap(found);
        }
    }

    QString mirrored()
    {
        for (entryMirror_t* mirror : keypad->findChildren<entryMirror_t*>())
        {
            if (mirror->isVisible())
                return mirror->text();
        }
        return "nothing";
    }

    QString prompt()
    {
        for (QLabel* label : keypad->findChildren<QLabel*>("keypadPromptLabel"))
        {
            if (label->isVisible())
                return label->text();
        }
        return "nothing";
    }

    QWidget screen;
    QVBoxLayout layout;
    QLineEdit* edit;
    QLineEdit* other;
    QPushButton* button;
    keypad_t* keypad;
};

} // namespace

class tst_keypad : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void initTestCase() { applyDisplayStyle(*qApp); }

    void opensWhenAnEditIsTapped()
    {
        fixture_t f;
        QVERIFY(!f.keypad->isVisible());
        f.tap(f.edit);
        QVERIFY(f.keypad->isVisible());
        QCOMPARE(f.keypad->edit(), f.edit);
        QCOMPARE(f.prompt(), QString("Elevation Mask"));
        QCOMPARE(f.mirrored(), QString("10.0"));
    }

    void staysShutForWhatCannotBeEdited()
    {
        fixture_t f;
        f.edit->setReadOnly(true);
        f.other->setEnabled(false);
        f.tap(f.edit);
        f.tap(f.other);
        QVERIFY(!f.keypad->isOpen());
    }

    void staysShutForTheKeyboardsFocus()
    {
        fixture_t f;
        f.edit->setFocus(Qt::TabFocusReason);
        QVERIFY(f.edit->hasFocus());
        QVERIFY(!f.keypad->isOpen());
    }

    void staysShutForEditsOfOtherWindows()
    {
        fixture_t f;
        QLineEdit elsewhere;
        elsewhere.show();
        f.tap(&elsewhere);
        QVERIFY(!f.keypad->isOpen());
    }

    void staysShutWhenTheFingerSlidesOff()
    {
        fixture_t f;
        QTest::mousePress(f.edit, Qt::LeftButton);
        QTest::mouseRelease(f.edit, Qt::LeftButton, Qt::NoModifier, QPoint(5, f.edit->height() + 40));
        QVERIFY(!f.keypad->isOpen());
    }

    void opensAgainForAnEditThatStillHasTheFocus()
    {
        fixture_t f;
        f.edit->setFocus();
        f.tap(f.edit);
        f.press("done");
        QVERIFY(!f.keypad->isOpen());
        f.edit->setFocus();
        f.tap(f.edit);
        QVERIFY(f.keypad->isOpen());
    }

    void keysNeverTakeTheFocus()
    {
        fixture_t f;
        f.tap(f.edit);
        for (QPushButton* key : f.keypad->findChildren<QPushButton*>())
            QCOMPARE(key->focusPolicy(), Qt::NoFocus);
        f.press("7");
        QVERIFY(f.edit->hasFocus());
    }

    void typedDigitsReplaceTheNumber()
    {
        fixture_t f;
        f.edit->setInputMask("99.9; ");
        f.tap(f.edit);
        f.press("1 2 . 5");
        QCOMPARE(f.edit->displayText(), QString("12.5"));
        QCOMPARE(f.mirrored(), QString("12.5"));
        f.press("done");
        QVERIFY(!f.keypad->isVisible());
        QCOMPARE(f.edit->displayText(), QString("12.5"));
        QVERIFY(!f.edit->hasFocus());
    }

    void ageFieldTakesFourDigits()
    {
        fixture_t f;
        f.edit->setInputMask("9999; ");
        f.edit->setText("0030");
        f.tap(f.edit);
        f.press("clear 1 2 backspace 5 0 0 7");
        QCOMPARE(f.edit->text(), QString("1500"));
        QVERIFY(!f.key(".")->isEnabled());
        QVERIFY(!f.key("sign")->isEnabled());
    }

    void cursorKeysMoveWithinTheNumber()
    {
        fixture_t f;
        f.tap(f.edit);
        f.press("clear 1 3 left 2 right 4");
        QCOMPARE(f.edit->text(), QString("1234"));
    }

    void offersSignPointAndColonWhereTheyCanBe_data()
    {
        QTest::addColumn<QString>("mask");
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<bool>("sign");
        QTest::addColumn<bool>("point");
        QTest::addColumn<bool>("colon");
        QTest::newRow("one decimal") << "99.9; "
                                     << "" << false << true << false;
        QTest::newRow("whole") << "9999; "
                               << "" << false << false << false;
        QTest::newRow("signed") << "#99.9; "
                                << "" << true << true << false;
        QTest::newRow("time") << "99:99; "
                              << "" << false << false << true;
        QTest::newRow("validated address") << ""
                                           << "[0-9]{1,3}(\\.[0-9]{1,3}){3}" << false << true << false;
        QTest::newRow("validated time") << ""
                                        << "[0-9]{2}:[0-9]{2}" << false << false << true;
        QTest::newRow("validated number") << ""
                                          << "-?[0-9]+(\\.[0-9]*)?" << true << true << false;
        QTest::newRow("free") << ""
                              << "" << true << true << true;
    }

    void offersSignPointAndColonWhereTheyCanBe()
    {
        QFETCH(QString, mask);
        QFETCH(QString, pattern);
        fixture_t f;
        f.edit->clear();
        f.edit->setInputMask(mask);
        QRegularExpressionValidator const validator{QRegularExpression(pattern)};
        if (!pattern.isEmpty())
            f.edit->setValidator(&validator);
        f.tap(f.edit);
        QTEST(f.key("sign")->isEnabled(), "sign");
        QTEST(f.key(".")->isEnabled(), "point");
        QTEST(f.key(":") != nullptr, "colon");
        f.keypad->accept();
        f.edit->setValidator(nullptr);
    }

    void cancelBringsTheOldTextBack()
    {
        fixture_t f;
        f.edit->setInputMask("99.9; ");
        f.edit->setText("15.0");
        f.edit->home(false);
        f.edit->del();
        QCOMPARE(f.edit->displayText(), QString(" 5.0"));
        f.tap(f.edit);
        f.press("4 4 cancel");
        QCOMPARE(f.edit->displayText(), QString(" 5.0"));
        QVERIFY(!f.keypad->isOpen());
    }

    void escapeCancelsAndEnterIsDone()
    {
        fixture_t f;
        QSignalSpy returned(f.edit, &QLineEdit::returnPressed);
        f.tap(f.edit);
        QTest::keyClicks(f.edit, "3");
        QTest::keyClick(f.edit, Qt::Key_Escape);
        QCOMPARE(f.edit->text(), QString("10.0"));
        QVERIFY(!f.keypad->isOpen());
        f.tap(f.edit);
        QTest::keyClicks(f.edit, "3");
        QTest::keyClick(f.edit, Qt::Key_Return);
        QCOMPARE(f.edit->text(), QString("3"));
        QVERIFY(!f.keypad->isOpen());
        // Or a dialog would take it for its own default button.
        QVERIFY(returned.isEmpty());
    }

    void showsWhatIsTypedOnAKeyboard()
    {
        fixture_t f;
        f.tap(f.edit);
        QTest::keyClicks(f.edit, "42");
        QCOMPARE(f.mirrored(), QString("42"));
    }

    void doneLetsTheEditFinish()
    {
        fixture_t f;
        QSignalSpy finished(f.edit, &QLineEdit::editingFinished);
        f.tap(f.edit);
        f.press("1 done");
        QCOMPARE(finished.size(), 1);
    }

    void neverShowsAPassword()
    {
        fixture_t f;
        f.other->clear();
        f.other->setEchoMode(QLineEdit::Password);
        f.other->setProperty("keypadType", "full");
        f.tap(f.other);
        f.press("p w 7");
        QCOMPARE(f.other->text(), QString("pw7"));
        QCOMPARE(f.mirrored(), f.other->displayText());
        QVERIFY(!f.mirrored().contains('p'));
        QCOMPARE(f.mirrored().size(), 3);
    }

    void typesLettersAfterTheOldName()
    {
        fixture_t f;
        f.tap(f.other);
        f.press("space b _ 1");
        QCOMPARE(f.other->text(), QString("name b_1"));
        QVERIFY(f.key("q"));
    }

    void shiftHoldsForOneLetterUntilPressedTwice()
    {
        fixture_t f;
        f.tap(f.other);
        f.press("clear shift A b shift");
        f.press("shift C D shift e");
        QCOMPARE(f.other->text(), QString("AbCDe"));
    }

    void typesEveryPrintableCharacter_data()
    {
        QTest::addColumn<bool>("compact");
        QTest::newRow("low screen") << true;
        QTest::newRow("high screen") << false;
    }

    void typesEveryPrintableCharacter()
    {
        QFETCH(bool, compact);
        fixture_t f;
        f.keypad->setCompact(compact);
        f.tap(f.other);
        QString missing;
        for (char code = ' '; code <= '~'; ++code)
        {
            f.press("clear");
            if (!typed(f, QString(QChar(code))))
                missing += QChar(code);
        }
        QCOMPARE(missing, QString());
    }

    void lowScreenSavesARow()
    {
        fixture_t f;
        f.keypad->setCompact(false);
        f.tap(f.other);
        melvox_test::settle();
        int const high = f.keypad->sizeHint().height();
        f.keypad->setCompact(true);
        melvox_test::settle();
        QVERIFY(f.keypad->sizeHint().height() <= high - 44);
        QVERIFY2(f.keypad->sizeHint().height() <= 280, "leaves no room for the page on a screen of 480");
    }

    void keysAreLargeEnoughForAFinger()
    {
        fixture_t f;
        f.tap(f.edit);
        for (QPushButton* key : f.keypad->findChildren<QPushButton*>())
        {
            if (key->isVisible())
                QVERIFY2(key->height() >= 40, qPrintable(key->objectName()));
        }
    }

    void goesOnToTheNextEditThatIsTapped()
    {
        fixture_t f;
        f.tap(f.edit);
        f.press("3");
        f.tap(f.other);
        QVERIFY(f.keypad->isOpen());
        QCOMPARE(f.keypad->edit(), f.other);
        QCOMPARE(f.edit->text(), QString("3"));
        f.press("cancel");
        QCOMPARE(f.edit->text(), QString("3"));
        QCOMPARE(f.other->text(), QString("name"));
    }

    void tapOnAButtonReachesTheButtonAndClosesTheKeypad()
    {
        fixture_t f;
        QSignalSpy clicked(f.button, &QPushButton::clicked);
        f.tap(f.edit);
        f.press("3");
        f.button->setFocusPolicy(Qt::StrongFocus);
        QTest::mousePress(f.button, Qt::LeftButton);
        f.button->setFocus(Qt::MouseFocusReason);
        QVERIFY(f.keypad->isVisible());
        QTest::mouseRelease(f.button, Qt::LeftButton);
        QCOMPARE(clicked.size(), 1);
        QVERIFY(melvox_test::waitFor([&f]() { return !f.keypad->isOpen(); }));
        QCOMPARE(f.edit->text(), QString("3"));
    }

    void closesWhenTheEditCanNoLongerBeEdited_data()
    {
        QTest::addColumn<QString>("what");
        for (char const* what : {"disabled", "readOnly", "hidden", "destroyed"})
            QTest::newRow(what) << what;
    }

    void closesWhenTheEditCanNoLongerBeEdited()
    {
        QFETCH(QString, what);
        fixture_t f;
        QSignalSpy closed(f.keypad, &keypad_t::closed);
        f.tap(f.edit);
        if (what == "disabled")
            f.edit->setEnabled(false);
        else if (what == "readOnly")
            f.edit->setReadOnly(true);
        else if (what == "hidden")
            f.edit->hide();
        else
            delete f.edit;
        QVERIFY(melvox_test::waitFor([&f]() { return !f.keypad->isOpen(); }));
        QVERIFY(!f.keypad->isVisible());
        QCOMPARE(closed.size(), 1);
    }

    void worksInsideASpinBox()
    {
        fixture_t f;
        QSpinBox* box = new QSpinBox(&f.screen);
        box->setRange(-50, 50);
        f.layout.insertWidget(0, box);
        box->show();
        QLineEdit* inner = box->findChild<QLineEdit*>();
        box->setProperty("keypadType", "numeric");
        QApplication::processEvents();
        f.tap(inner);
        QVERIFY(f.keypad->isOpen());
        f.press("clear 3 7 sign done");
        QCOMPARE(box->value(), -37);
    }

private:
    /** Presses what it takes to get the character. */
    bool typed(fixture_t& f, QString const& character)
    {
        QString const name = character == " " ? "space" : character;
        for (char const* way : {"", "shift", "symbols", "shift", "symbols"})
        {
            if (*way)
                f.press(way);
            QPushButton* key = f.key(name);
            if (!key || !key->isEnabled())
                continue;
            f.tap(key);
            bool const good = f.other->text() == character;
            // Back to the letters.
            f.press("done");
            f.tap(f.other);
            return good;
        }
        return false;
    }
};

QTEST_MAIN(tst_keypad)
#include "tst_keypad.moc"
