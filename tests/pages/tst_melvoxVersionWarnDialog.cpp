#include "melvox_ui/melvoxVersionWarnDialog.h"

#include "support/pageTest.h"

using namespace brel_common_qt_gui;

class tst_melvoxVersionWarnDialog : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void startsWithTheTextsOfItsForm();
    void showsVersions_data();
    void showsVersions();
    void showsEachVersionInItsOwnLabel();
    void blanksALabelForNoVersion();
    void closesWithOk();
};

void tst_melvoxVersionWarnDialog::startsWithTheTextsOfItsForm()
{
    melvoxVersionWarnDialog_t dialog(0);
    QCOMPARE(dialog.windowTitle(), QString("Melvox Firmware Version Warning"));
    QCOMPARE(melvox_test::labelText(&dialog, "warningLabel"),
             QString("This receiver is running an older firmware version.\n"
                     "Please upgrade the receiver to the following firmware version or later."));
    QCOMPARE(melvox_test::labelText(&dialog, "minVersionLabel"), QString("1.13.15"));
    QCOMPARE(melvox_test::labelText(&dialog, "currentVersionLabel"), QString("--"));
}

void tst_melvoxVersionWarnDialog::showsVersions_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("one number") << "7";
    QTest::newRow("two") << "1.0";
    QTest::newRow("three") << "1.14.33";
    QTest::newRow("five") << "0.0.10.4294967295.2";
}

void tst_melvoxVersionWarnDialog::showsVersions()
{
    QFETCH(QString, text);
    std::vector<unsigned int> version;
    for (QString const& part : text.split('.'))
        version.push_back(part.toUInt());
    melvoxVersionWarnDialog_t dialog(0);
    dialog.setCurrentVersion(version);
    dialog.setMinimumVersion(version);
    QCOMPARE(melvox_test::labelText(&dialog, "currentVersionLabel"), text);
    QCOMPARE(melvox_test::labelText(&dialog, "minVersionLabel"), text);
}

void tst_melvoxVersionWarnDialog::showsEachVersionInItsOwnLabel()
{
    melvoxVersionWarnDialog_t dialog(0);
    dialog.setMinimumVersion({1, 14, 33});
    dialog.setCurrentVersion({1, 14, 32});
    QCOMPARE(melvox_test::labelText(&dialog, "minVersionLabel"), QString("1.14.33"));
    QCOMPARE(melvox_test::labelText(&dialog, "currentVersionLabel"), QString("1.14.32"));
}

void tst_melvoxVersionWarnDialog::blanksALabelForNoVersion()
{
    melvoxVersionWarnDialog_t dialog(0);
    dialog.setCurrentVersion(std::vector<unsigned int>());
    dialog.setMinimumVersion(std::vector<unsigned int>());
    QCOMPARE(melvox_test::labelText(&dialog, "currentVersionLabel"), QString());
    QCOMPARE(melvox_test::labelText(&dialog, "minVersionLabel"), QString());
}

void tst_melvoxVersionWarnDialog::closesWithOk()
{
    melvoxVersionWarnDialog_t dialog(0);
    dialog.show();
    melvox_test::tap(&dialog, "OK");
    QVERIFY(!dialog.isVisible());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
}

QTEST_MAIN(tst_melvoxVersionWarnDialog)
#include "tst_melvoxVersionWarnDialog.moc"
