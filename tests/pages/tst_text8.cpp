#include "support/text8.h"

#include "support/test.h"

using namespace brel_common_qt_gui;

class tst_text8 : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void readsTheReceiversTextsAsUtf8();
    void keepsTextsWithZeros();
    void spellsPathsAsTheFileSystemDoes();
};

void tst_text8::readsTheReceiversTextsAsUtf8()
{
    QCOMPARE(fromText8("Melvox 8"), QString("Melvox 8"));
    QCOMPARE(fromText8("\xC3\xA4"), QString(QChar(0xE4)));
    QCOMPARE(fromText8(""), QString(""));
}

void tst_text8::keepsTextsWithZeros()
{
    QCOMPARE(int(fromText8(std::string("a\0b", 3)).size()), 3);
}

void tst_text8::spellsPathsAsTheFileSystemDoes()
{
    QCOMPARE(toPath8("/mnt/stick/a.srec"), std::string("/mnt/stick/a.srec"));
    QString const strange = "/mnt/" + QString(QChar(0xE4));
    QByteArray const expected = QFile::encodeName(strange);
    QCOMPARE(toPath8(strange), std::string(expected.constData(), std::size_t(expected.size())));
}

QTEST_MAIN(tst_text8)
#include "tst_text8.moc"
