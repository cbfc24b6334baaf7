#include "melvox_ui/melvoxUiRestart.h"

#include "support/pageTest.h"

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

class tst_melvoxUiRestart : public melvox_test::pageTest_t
{
    Q_OBJECT

private slots:
    void restartsWarmAtOnce();
    void restartsColdWithTheAlmanacAsChosen_data();
    void restartsColdWithTheAlmanacAsChosen();
    void readsTheAlmanacWhenTheButtonIsPressed();
    void sendsARestartForEveryPress();
    void keepsItsButtonsEnabledWhateverTheReceiverDoes();
    void asksNoQuestion();
    void startsWithoutTheAlmanacInEveryPage();
    void neverAsksTheReceiverAnything();
    void hasNoOtherButtons();
};

void tst_melvoxUiRestart::restartsWarmAtOnce()
{
    melvoxUiRestart_t page(device);
    tap(&page, "warmRestartButton");
    QCOMPARE(receiver->sent().join("; "), QString("command warmRestart"));
}

void tst_melvoxUiRestart::restartsColdWithTheAlmanacAsChosen_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<bool>("useBuiltInAlmanac");
    QTest::newRow("no") << "No" << false;
    QTest::newRow("yes") << "Yes" << true;
}

void tst_melvoxUiRestart::restartsColdWithTheAlmanacAsChosen()
{
    QFETCH(QString, choice);
    QFETCH(bool, useBuiltInAlmanac);
    melvoxUiRestart_t page(device);
    choose(&page, "useAlmanacCombo", choice);
    tap(&page, "coldRestartButton");
    QCOMPARE(receiver->messages().size(), 1);
    QCOMPARE(receiver->messages().first().group, QString("coldRestart"));
    QCOMPARE(receiver->messages().first().value.toMap(), map("useBuiltInAlmanac", useBuiltInAlmanac));
}

void tst_melvoxUiRestart::readsTheAlmanacWhenTheButtonIsPressed()
{
    melvoxUiRestart_t page(device);
    choose(&page, "useAlmanacCombo", "Yes");
    QVERIFY(receiver->sent().isEmpty());
    tap(&page, "coldRestartButton");
    choose(&page, "useAlmanacCombo", "No");
    tap(&page, "coldRestartButton");
    QCOMPARE(receiver->messages().size(), 2);
    QCOMPARE(receiver->messages().at(0).value.toMap(), map("useBuiltInAlmanac", true));
    QCOMPARE(receiver->messages().at(1).value.toMap(), map("useBuiltInAlmanac", false));
}

void tst_melvoxUiRestart::sendsARestartForEveryPress()
{
    melvoxUiRestart_t page(device);
    tap(&page, "warmRestartButton");
    tap(&page, "warmRestartButton");
    QCOMPARE(receiver->commands().join("; "), QString("warmRestart; warmRestart"));
    receiver->clear();
    tap(&page, "coldRestartButton");
    tap(&page, "coldRestartButton");
    QCOMPARE(receiver->commands().filter("coldRestart").size(), 2);
}

void tst_melvoxUiRestart::keepsItsButtonsEnabledWhateverTheReceiverDoes()
{
    melvoxUiRestart_t page(device);
    tap(&page, "warmRestartButton");
    tap(&page, "coldRestartButton");
    receiver->report("extendedNavInfo", map("valid", false));
    receiver->setOpen(false);
    QVERIFY(isEnabled(&page, "warmRestartButton"));
    QVERIFY(isEnabled(&page, "coldRestartButton"));
    QVERIFY(isEnabled(&page, "useAlmanacCombo"));
}

void tst_melvoxUiRestart::asksNoQuestion()
{
    melvoxUiRestart_t page(device);
    tap(&page, "warmRestartButton");
    QVERIFY(!melvox_test::openBox());
    tap(&page, "coldRestartButton");
    QVERIFY(!melvox_test::openBox());
}

void tst_melvoxUiRestart::startsWithoutTheAlmanacInEveryPage()
{
    {
        melvoxUiRestart_t page(device);
        QCOMPARE(chosen(&page, "useAlmanacCombo"), QString("No"));
        choose(&page, "useAlmanacCombo", "Yes");
        tap(&page, "coldRestartButton");
    }
    melvoxUiRestart_t page(device);
    QCOMPARE(chosen(&page, "useAlmanacCombo"), QString("No"));
}

void tst_melvoxUiRestart::neverAsksTheReceiverAnything()
{
    melvoxUiRestart_t page(device);
    page.show();
    melvox_test::settle();
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiRestart::hasNoOtherButtons()
{
    melvoxUiRestart_t page(device);
    QStringList names;
    QList<QAbstractButton*> const buttons = page.findChildren<QAbstractButton*>();
    for (QAbstractButton const* button : buttons)
        names << button->objectName() + " " + button->text();
    names.sort();
    QCOMPARE(names.join("; "), QString("coldRestartButton Restart; warmRestartButton Restart"));
}

QTEST_MAIN(tst_melvoxUiRestart)
#include "tst_melvoxUiRestart.moc"
