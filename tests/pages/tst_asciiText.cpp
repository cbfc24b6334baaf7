#include "support/asciiText.h"

#include "support/test.h"

using namespace brel_common_qt_gui;

class tst_asciiText : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void keepsWhatIsAscii();
    void writesAQuestionMarkForWhatIsNot();
    void turnsLettersIntoCapitals();
    void keepsNothing();
};

void tst_asciiText::keepsWhatIsAscii()
{
    QCOMPARE(QString(asciiText(" Base 7-b~").c_str()), QString(" Base 7-b~"));
}

void tst_asciiText::writesAQuestionMarkForWhatIsNot()
{
    QCOMPARE(QString(asciiText(QString("M") + QChar(0xfc) + "hle " + QChar(0x4e2d)).c_str()), QString("M?hle ?"));
    QCOMPARE(QString(asciiText(QString(QChar(0x80))).c_str()), QString("?"));
    QCOMPARE(asciiText(QString(QChar(0x7f))), std::string("\x7f"));
}

void tst_asciiText::turnsLettersIntoCapitals()
{
    QCOMPARE(QString(upperAsciiText(QString("nax3g+c  none ") + QChar(0xe9)).c_str()), QString("NAX3G+C  NONE ?"));
}

void tst_asciiText::keepsNothing()
{
    QVERIFY(asciiText(QString()).empty());
    QVERIFY(upperAsciiText(QString()).empty());
}

QTEST_MAIN(tst_asciiText)
#include "tst_asciiText.moc"
