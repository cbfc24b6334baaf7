#include "melvox_ui/melvoxUiFirmwareVersionDisplay.h"

#include "support/pageTest.h"

#include <QScrollBar>
#include <QTextBlock>
#include <QTextEdit>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

class tst_melvoxUiFirmwareVersionDisplay : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    void tell(char const* component, char const* version)
    {
        receiver->report("firmwareVersion", map("component", component, "version", version));
    }

private slots:
    void makesTheBoxReadOnly();
    void leavesTheBoxEmptyWithoutVersions();
    void clearsWhatStoodInTheBox();
    void showsVersionsThatTheProxyHeldBefore();
    void showsEachVersionInTheReceiversOrder();
    void rebuildsTheTextWithEachReport();
    void showsNamesBoldAndVersionsNormal();
    void doesNotScrollTheReaderAway_data();
    void doesNotScrollTheReaderAway();
};

void tst_melvoxUiFirmwareVersionDisplay::makesTheBoxReadOnly()
{
    QTextEdit box;
    melvoxUiFirmwareVersionDisplay_t const display(device, &box, 0);
    QVERIFY(box.isReadOnly());
}

void tst_melvoxUiFirmwareVersionDisplay::leavesTheBoxEmptyWithoutVersions()
{
    QTextEdit box;
    melvoxUiFirmwareVersionDisplay_t const display(device, &box, 0);
    QCOMPARE(box.toPlainText(), QString());
}

void tst_melvoxUiFirmwareVersionDisplay::clearsWhatStoodInTheBox()
{
    QTextEdit box;
    box.setPlainText("before");
    melvoxUiFirmwareVersionDisplay_t const display(device, &box, 0);
    QCOMPARE(box.toPlainText(), QString());
}

void tst_melvoxUiFirmwareVersionDisplay::showsVersionsThatTheProxyHeldBefore()
{
    tell("NAV", "1.14.40");
    QTextEdit box;
    melvoxUiFirmwareVersionDisplay_t const display(device, &box, 0);
    QCOMPARE(box.toPlainText(), QString("NAV: 1.14.40\n"));
}

void tst_melvoxUiFirmwareVersionDisplay::showsEachVersionInTheReceiversOrder()
{
    QTextEdit box;
    melvoxUiFirmwareVersionDisplay_t const display(device, &box, 0);
    tell("NAV", "1.14.40");
    tell("BOOT1", "2.0");
    tell("GPB", "<b>7</b>");
    QCOMPARE(box.toPlainText(), QString("NAV: 1.14.40\nBOOT1: 2.0\nGPB: <b>7</b>\n"));
}

void tst_melvoxUiFirmwareVersionDisplay::rebuildsTheTextWithEachReport()
{
    QTextEdit box;
    melvoxUiFirmwareVersionDisplay_t const display(device, &box, 0);
    tell("NAV", "1.14.40");
    tell("BOOT1", "2.0");
    tell("NAV", "1.15");
    QCOMPARE(box.toPlainText(), QString("NAV: 1.15\nBOOT1: 2.0\n"));
}

void tst_melvoxUiFirmwareVersionDisplay::showsNamesBoldAndVersionsNormal()
{
    QTextEdit box;
    melvoxUiFirmwareVersionDisplay_t const display(device, &box, 0);
    tell("NAV", "1.14.40");
    tell("BOOT1", "2.0");
    for (int line = 0; line < 2; ++line)
    {
        QTextBlock const block = box.document()->findBlockByNumber(line);
        QTextCursor cursor(block);
        cursor.movePosition(QTextCursor::NextCharacter);
        QCOMPARE(int(cursor.charFormat().fontWeight()), int(QFont::Bold));
        cursor.movePosition(QTextCursor::EndOfBlock);
        QCOMPARE(int(cursor.charFormat().fontWeight()), int(QFont::Normal));
    }
}

void tst_melvoxUiFirmwareVersionDisplay::doesNotScrollTheReaderAway_data()
{
    QTest::addColumn<bool>("shown");
    QTest::newRow("of a page on the screen") << true;
    QTest::newRow("of a page that comes on the screen later") << false;
}

void tst_melvoxUiFirmwareVersionDisplay::doesNotScrollTheReaderAway()
{
    QFETCH(bool, shown);
    QTextEdit box;
    box.resize(100, 60);
    if (shown)
        box.show();
    melvoxUiFirmwareVersionDisplay_t const display(device, &box, 0);
    for (int i = 0; i < 30; ++i)
        tell(qPrintable(QString("COMPONENT%1").arg(i)), "1.0");
    box.show();
    melvox_test::settle();
    QCOMPARE(box.verticalScrollBar()->value(), 0);
    box.setFocus();
    melvox_test::settle();
    QCOMPARE(box.verticalScrollBar()->value(), 0);
    box.resize(120, 70); // which brings the box's cursor into view
    melvox_test::settle();
    QCOMPARE(box.verticalScrollBar()->value(), 0);
    box.verticalScrollBar()->setValue(50);
    tell("COMPONENT3", "2.0");
    melvox_test::settle();
    QCOMPARE(box.verticalScrollBar()->value(), 50);
}

QTEST_MAIN(tst_melvoxUiFirmwareVersionDisplay)
#include "tst_melvoxUiFirmwareVersionDisplay.moc"
