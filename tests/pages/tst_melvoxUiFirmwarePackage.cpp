#include "melvox_ui/melvoxUiFirmwarePackage.h"

#include "support/pageTest.h"

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

class tst_melvoxUiFirmwarePackage : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void isNamedAfterItsFile();
    void startsWithoutRecordsAndFiles();
    void copiesAsAValue();
    void isDeletedAsAScannedFile();
};

void tst_melvoxUiFirmwarePackage::isNamedAfterItsFile()
{
    melvoxUiFirmwarePackage_t const package(QFileInfo("/somewhere/nav.1.14.srec"));
    QCOMPARE(package.name, QString("nav.1.14.srec"));
    QCOMPARE(package.fileInfo().filePath(), QString("/somewhere/nav.1.14.srec"));
}

void tst_melvoxUiFirmwarePackage::startsWithoutRecordsAndFiles()
{
    melvoxUiFirmwarePackage_t const package(QFileInfo("a.srec"));
    QVERIFY(package.records.isEmpty());
    QVERIFY(package.files.isEmpty());
}

void tst_melvoxUiFirmwarePackage::copiesAsAValue()
{
    melvoxFirmwareScanRecord_t const record = {3, MELVOX_FW_COMP_GPB, 8, "7.1"};
    melvoxUiFirmwarePackage_t package(QFileInfo("/a/b.srec"));
    package.records << record;
    package.files << "/a/b.srec";
    melvoxUiFirmwarePackage_t const copy(package);
    package.name = "other";
    package.records.clear();
    package.files.clear();
    QCOMPARE(copy.name, QString("b.srec"));
    QCOMPARE(copy.fileInfo().filePath(), QString("/a/b.srec"));
    QCOMPARE(int(copy.records.size()), 1);
    QCOMPARE(copy.records.first().fileIndex, 3u);
    QCOMPARE(copy.records.first().component, MELVOX_FW_COMP_GPB);
    QCOMPARE(copy.records.first().version, QString("7.1"));
    QCOMPARE(copy.files, QStringList("/a/b.srec"));
}

void tst_melvoxUiFirmwarePackage::isDeletedAsAScannedFile()
{
    // The leak check at the end of the program tells if the lists stayed behind.
    melvoxUiFirmwarePackage_t* const package = new melvoxUiFirmwarePackage_t(QFileInfo("a.srec"));
    package->files << QString(1000, 'x');
    scanFile_t* const file = package;
    delete file;
}

QTEST_MAIN(tst_melvoxUiFirmwarePackage)
#include "tst_melvoxUiFirmwarePackage.moc"
