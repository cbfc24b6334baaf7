#include "support/pageSupport.h"

#include "support/pageTest.h"

#include <QDialogButtonBox>
#include <QPushButton>

#include <limits>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

namespace
{

struct counter_t
{
    counter_t() : resets(0) {}
    void reset() { ++resets; }

    int resets;
};

} // namespace

class tst_pageSupport : public melvox_test::pageTest_t
{
    Q_OBJECT

public slots:
    void submit() { m_pressed << "submit"; }
    void reset() { m_pressed << "reset"; }
    void query() { m_pressed << "query"; }

private:
    QStringList m_pressed;

private slots:
    void showsAValueOrThatThereIsNone();
    void fillsOnceAndOnlyWhenValid();
    void padsNumbersWithZeros_data();
    void padsNumbersWithZeros();
    void readsANumberOrLeavesTheOutput_data();
    void readsANumberOrLeavesTheOutput();
    void countsBothLimitsAsInside();
    void choosesNothingForAValueWithoutAnItem_data();
    void choosesNothingForAValueWithoutAnItem();
    void wiresApplyResetAndQuery();
    void asksWithYesAndNo();
};

void tst_pageSupport::showsAValueOrThatThereIsNone()
{
    QLabel label;
    showStatus(&label, true, "10.0");
    QCOMPARE(label.text(), QString("10.0"));
    showStatus(&label, false, "10.0");
    QCOMPARE(label.text(), NoDataString);
}

void tst_pageSupport::fillsOnceAndOnlyWhenValid()
{
    QBitArray setUi(2);
    counter_t page;
    fillOnce(setUi, 1, false, &page, &counter_t::reset);
    QCOMPARE(page.resets, 0);
    fillOnce(setUi, 1, true, &page, &counter_t::reset);
    fillOnce(setUi, 1, true, &page, &counter_t::reset);
    QCOMPARE(page.resets, 1);
    QVERIFY(!setUi.testBit(0));
    fillOnce(setUi, 0, true, &page, &counter_t::reset);
    QCOMPARE(page.resets, 2);
}

void tst_pageSupport::padsNumbersWithZeros_data()
{
    QTest::addColumn<QString>("padded");
    QTest::addColumn<QString>("expected");
    QTest::newRow("one decimal") << zeroPadded(5.0, 4, 1) << "05.0";
    QTest::newRow("two decimals") << zeroPadded(45.5, 6, 2) << "045.50";
    QTest::newRow("whole") << zeroPadded(30u, 4) << "0030";
    QTest::newRow("wider than the field") << zeroPadded(123456u, 4) << "123456";
    QTest::newRow("rounded up a digit") << zeroPadded(9.96, 4, 1) << "10.0";
}

void tst_pageSupport::padsNumbersWithZeros()
{
    QFETCH(QString, padded);
    QFETCH(QString, expected);
    QCOMPARE(padded, expected);
}

void tst_pageSupport::readsANumberOrLeavesTheOutput_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("good");
    QTest::addColumn<double>("value");
    QTest::newRow("number") << "12.5" << true << 12.5;
    QTest::newRow("trailing point") << "5." << true << 5.0;
    QTest::newRow("a lone point") << "." << false << -1.0;
    QTest::newRow("nothing") << "" << false << -1.0;
    QTest::newRow("word") << "abc" << false << -1.0;
}

void tst_pageSupport::readsANumberOrLeavesTheOutput()
{
    QFETCH(QString, text);
    QFETCH(bool, good);
    QFETCH(double, value);
    QLineEdit edit(text);
    double read = -1;
    QCOMPARE(readNumber(&edit, read), good);
    QCOMPARE(read, value);
}

void tst_pageSupport::countsBothLimitsAsInside()
{
    QLineEdit edit("4");
    double value = 0;
    QVERIFY(readWithin(&edit, 4.0, 60.0, value));
    edit.setText("60");
    QVERIFY(readWithin(&edit, 4.0, 60.0, value));
    edit.setText("60.1");
    value = 7;
    QVERIFY(!readWithin(&edit, 4.0, 60.0, value));
    QCOMPARE(value, 7.0);
    edit.setText("nan");
    QVERIFY(!readWithin(&edit, 4.0, 60.0, value));
}

void tst_pageSupport::choosesNothingForAValueWithoutAnItem_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("index");
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("last") << 1 << 1;
    QTest::newRow("beyond") << 2 << -1;
    QTest::newRow("below") << -1 << -1;
    QTest::newRow("far") << std::numeric_limits<int>::max() << -1;
}

void tst_pageSupport::choosesNothingForAValueWithoutAnItem()
{
    QFETCH(int, value);
    QFETCH(int, index);
    QComboBox combo;
    combo.addItems(QStringList() << "None"
                                 << "EGM84");
    combo.setCurrentIndex(1);
    setChoice(&combo, value);
    QCOMPARE(combo.currentIndex(), index);
}

void tst_pageSupport::wiresApplyResetAndQuery()
{
    QDialogButtonBox box(QDialogButtonBox::Apply | QDialogButtonBox::Reset);
    addPageButtons(&box, this);
    m_pressed.clear();
    tap(&box, "Query");
    tap(&box, "Reset");
    tap(&box, "Apply");
    QCOMPARE(m_pressed.join(" "), QString("query reset submit"));
    QList<QAbstractButton*> const buttons = box.buttons();
    QCOMPARE(buttons.size(), 3);
    for (QAbstractButton* button : buttons)
    {
        QVERIFY(button->minimumHeight() >= TOUCH_HEIGHT);
        if (button->text() == "Query")
            QCOMPARE(int(box.buttonRole(button)), int(QDialogButtonBox::ActionRole));
    }
}

void tst_pageSupport::asksWithYesAndNo()
{
    QScopedPointer<QMessageBox> const box(createQuestion(QMessageBox::Question, "Title", "Sure?", 0));
    QCOMPARE(box->text(), QString("Sure?"));
    QCOMPARE(int(box->standardButtons()), int(QMessageBox::Yes | QMessageBox::No));
    QVERIFY(!box->isVisible());
}

QTEST_MAIN(tst_pageSupport)
#include "tst_pageSupport.moc"
