#include "display/lineEntry.h"
#include "support/test.h"

#include <QDoubleValidator>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QRegularExpressionValidator>
#include <QSpinBox>

using namespace melvox_display;

class tst_lineEntry : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void knowsWhatAMaskAdmits_data()
    {
        QTest::addColumn<QString>("mask");
        QTest::addColumn<QString>("admitted");
        QTest::addColumn<QString>("refused");
        QTest::newRow("none") << ""
                              << "9.-:a"
                              << "";
        QTest::newRow("one decimal") << "99.9; "
                                     << "059."
                                     << "-:a";
        QTest::newRow("whole") << "9999; "
                               << "7"
                               << ".-:a";
        QTest::newRow("signed") << "#00.00"
                                << "-+3."
                                << ":a";
        QTest::newRow("time of day") << "99:99;_"
                                     << "1:"
                                     << ".-";
        QTest::newRow("hexadecimal") << "HHHH"
                                     << "0fA"
                                     << "g.";
        QTest::newRow("binary") << "BB"
                                << "01"
                                << "2";
        QTest::newRow("not zero") << "D"
                                  << "1"
                                  << "0a";
        QTest::newRow("letters") << ">AAA"
                                 << "x"
                                 << "1>";
        QTest::newRow("letters and digits") << "NN"
                                            << "x1"
                                            << "-";
        QTest::newRow("anything") << "xx"
                                  << "x1-."
                                  << "";
        QTest::newRow("a class as it stands") << "\\A99"
                                              << "A1"
                                              << "B";
    }

    void knowsWhatAMaskAdmits()
    {
        QFETCH(QString, mask);
        QFETCH(QString, admitted);
        QFETCH(QString, refused);
        for (QChar character : admitted)
            QVERIFY2(maskAdmits(mask, character), qPrintable(QString(character)));
        for (QChar character : refused)
            QVERIFY2(!maskAdmits(mask, character), qPrintable(QString(character)));
    }

    void knowsWhatAValidatorAdmits()
    {
        QIntValidator const positive(0, 100);
        QIntValidator const whole(-100, 100);
        QRegularExpressionValidator const address(QRegularExpression("\\d{1,3}(\\.\\d{1,3}){3}"));
        QRegularExpressionValidator const time(QRegularExpression("\\d{2}:\\d{2}"));
        QVERIFY(!validatorAdmits(&positive, "10", '-'));
        QVERIFY(!validatorAdmits(&positive, "10", '.'));
        QVERIFY(validatorAdmits(&whole, "10", '-'));
        QVERIFY(validatorAdmits(&address, "", '.'));
        QVERIFY(!validatorAdmits(&address, "", ':'));
        QVERIFY(validatorAdmits(&time, "12", ':'));
        QVERIFY(validatorAdmits(nullptr, "", ':'));
    }

    void typesUnderAMask()
    {
        QLineEdit edit("00.0");
        edit.setInputMask("99.9; ");
        lineEntry_t entry;
        entry.begin(&edit);
        edit.selectAll();
        entry.type("12.5");
        QCOMPARE(edit.displayText(), QString("12.5"));
        entry.clear();
        entry.type("5.5");
        QCOMPARE(edit.displayText(), QString("5 .5"));
        entry.clear();
        entry.type("x7");
        QCOMPARE(edit.displayText(), QString("7 . "));
    }

    void doesNotTypeBeyondAMask()
    {
        QLineEdit edit;
        edit.setInputMask("9999; ");
        lineEntry_t entry;
        entry.begin(&edit);
        entry.clear();
        entry.type("12345");
        QCOMPARE(edit.text(), QString("1234"));
    }

    void doesNotTypeWhatTheValidatorRefuses()
    {
        QLineEdit edit;
        QIntValidator validator(0, 250);
        edit.setValidator(&validator);
        lineEntry_t entry;
        entry.begin(&edit);
        entry.type("2a5-1");
        QCOMPARE(edit.text(), QString("251"));
        entry.clear();
        entry.type("9999");
        QCOMPARE(edit.text(), QString("999"));
    }

    void doesNotTypeBeyondTheLength()
    {
        QLineEdit edit;
        edit.setMaxLength(3);
        lineEntry_t entry;
        entry.begin(&edit);
        entry.type("abcd");
        QCOMPARE(edit.text(), QString("abc"));
    }

    void listenersHearWhatIsTyped()
    {
        QLineEdit edit;
        QSignalSpy edited(&edit, &QLineEdit::textEdited);
        lineEntry_t entry;
        entry.begin(&edit);
        entry.type("ab");
        QCOMPARE(edited.size(), 2);
    }

    void movesAndDeletes()
    {
        QLineEdit edit("abc");
        lineEntry_t entry;
        entry.begin(&edit);
        edit.end(false);
        entry.moveLeft();
        entry.backspace();
        QCOMPARE(edit.text(), QString("ac"));
        entry.moveRight();
        entry.type("d");
        QCOMPARE(edit.text(), QString("acd"));
        entry.clear();
        QCOMPARE(edit.text(), QString());
    }

    void signComesAndGoesWhereverTheCursorIs()
    {
        QLineEdit edit("12");
        lineEntry_t entry;
        entry.begin(&edit);
        edit.setCursorPosition(1);
        entry.toggleSign();
        QCOMPARE(edit.text(), QString("-12"));
        QCOMPARE(edit.cursorPosition(), 2);
        entry.toggleSign();
        QCOMPARE(edit.text(), QString("12"));
        QCOMPARE(edit.cursorPosition(), 1);
    }

    void signOfAWholeSelectionKeepsTheNumber()
    {
        QLineEdit edit("12");
        lineEntry_t entry;
        entry.begin(&edit);
        edit.selectAll();
        entry.toggleSign();
        QCOMPARE(edit.text(), QString("-12"));
    }

    void signStandsWhereTheMaskHasIt()
    {
        QLineEdit edit;
        edit.setInputMask("#99.9; ");
        edit.setText(" 12.5");
        lineEntry_t entry;
        entry.begin(&edit);
        entry.toggleSign();
        QCOMPARE(edit.displayText(), QString("-12.5"));
        entry.toggleSign();
        QCOMPARE(edit.displayText(), QString(" 12.5"));
    }

    void signIsLeftOutWhereNoneCanBe()
    {
        QLineEdit edit("12.5");
        edit.setInputMask("99.9; ");
        lineEntry_t entry;
        entry.begin(&edit);
        entry.toggleSign();
        QCOMPARE(edit.displayText(), QString("12.5"));
    }

    void restoresWhatStoodThere_data()
    {
        QTest::addColumn<QString>("mask");
        QTest::addColumn<QString>("before");
        QTest::newRow("free") << ""
                              << "Base 7";
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("masked") << "99.9; "
                                << "07.5";
        QTest::newRow("masked with blanks") << "99.9; "
                                            << " 5.0";
        QTest::newRow("masked and empty") << "9999; "
                                          << "";
    }

    void restoresWhatStoodThere()
    {
        QFETCH(QString, mask);
        QFETCH(QString, before);
        QLineEdit edit;
        edit.setInputMask(mask);
        edit.setText(before);
        if (before.startsWith(' '))
        {
            // Blanks at the beginning come by deleting only.
            edit.setText("1" + before.mid(1));
            edit.home(false);
            edit.del();
        }
        QString const shown = edit.displayText();
        QCOMPARE(shown.startsWith(' '), before.startsWith(' ') || (before.isEmpty() && !mask.isEmpty()));
        lineEntry_t entry;
        entry.begin(&edit);
        edit.selectAll();
        entry.type("8");
        QVERIFY(edit.displayText() != shown);
        entry.restore();
        QCOMPARE(edit.displayText(), shown);
    }

    void restoresATextThatTheValidatorWouldRefuse()
    {
        QLineEdit edit;
        QIntValidator validator(0, 9);
        edit.setText("none");
        edit.setValidator(&validator);
        lineEntry_t entry;
        entry.begin(&edit);
        entry.clear();
        entry.type("5");
        entry.restore();
        QCOMPARE(edit.text(), QString("none"));
    }

    void listenersHearOfWhatIsRestored()
    {
        QLineEdit edit("12");
        lineEntry_t entry;
        entry.begin(&edit);
        entry.type("3");
        QSignalSpy edited(&edit, &QLineEdit::textEdited);
        entry.restore();
        QVERIFY(!edited.isEmpty());
        QCOMPARE(edited.last().first().toString(), QString("12"));
    }

    void restoringWhatWasNotTouchedIsSilent()
    {
        QLineEdit edit("12");
        QSignalSpy changed(&edit, &QLineEdit::textChanged);
        lineEntry_t entry;
        entry.begin(&edit);
        entry.restore();
        QVERIFY(changed.isEmpty());
    }

    void restoresAPassword()
    {
        QLineEdit edit("secret 1");
        edit.setEchoMode(QLineEdit::Password);
        lineEntry_t entry;
        entry.begin(&edit);
        entry.clear();
        entry.type("x");
        entry.restore();
        QCOMPARE(edit.text(), QString("secret 1"));
    }

    void survivesTheEdit()
    {
        QLineEdit* edit = new QLineEdit("1");
        lineEntry_t entry;
        entry.begin(edit);
        delete edit;
        entry.type("2");
        entry.clear();
        entry.toggleSign();
        entry.restore();
        QVERIFY(!entry.edit());
        QVERIFY(!entry.admits('1'));
    }

    void survivesAnEditThatGoesWhileItIsTypedInto()
    {
        QLineEdit* edit = new QLineEdit;
        connect(edit, &QLineEdit::textEdited, this, [edit]() { edit->setEnabled(false); });
        connect(edit, &QLineEdit::textEdited, edit, [edit]() { edit->deleteLater(); });
        lineEntry_t entry;
        entry.begin(edit);
        entry.type("1");
        melvox_test::settle();
        entry.type("2");
        QVERIFY(!entry.edit());
    }

    void promptsByPropertyThenNameThenCaption()
    {
        QWidget page;
        QLineEdit edit(&page);
        QLabel label("&Elevation mask:", &page);
        label.setBuddy(&edit);
        QCOMPARE(lineEntry_t::promptOf(&edit), QString("Elevation mask"));
        edit.setAccessibleName("Mask angle");
        QCOMPARE(lineEntry_t::promptOf(&edit), QString("Mask angle"));
        edit.setProperty("keypadPrompt", "Elevation Mask");
        QCOMPARE(lineEntry_t::promptOf(&edit), QString("Elevation Mask"));
    }

    void promptsForACompositeByItsOwnCaption()
    {
        QWidget page;
        QSpinBox box(&page);
        QLabel label("Hours:", &page);
        label.setBuddy(&box);
        QLineEdit* edit = box.findChild<QLineEdit*>();
        QVERIFY(edit);
        QCOMPARE(lineEntry_t::promptOf(edit), QString("Hours"));
        QVERIFY(!lineEntry_t::isNumeric(edit));
        box.setProperty("keypadType", "numeric");
        QVERIFY(lineEntry_t::isNumeric(edit));
    }
};

QTEST_MAIN(tst_lineEntry)
#include "tst_lineEntry.moc"
