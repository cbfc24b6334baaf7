#include "firmware/firmwareFile.h"

#include "support/firmware.h"
#include "support/test.h"

using namespace melvox_firmware;
using melvox_test::package_t;

namespace
{

/** One record with the checksum that it needs. */
QByteArray record(char type, QByteArray const& bytes)
{
    QByteArray whole;
    whole += char(bytes.size() + 1);
    whole += bytes;
    int sum = 0;
    for (int i = 0; i < whole.size(); ++i)
        sum += static_cast<unsigned char>(whole.at(i));
    whole += char(~sum);
    return QByteArray("S") + type + whole.toHex().toUpper() + "\n";
}

QByteArray header(QByteArray const& text)
{
    return record('0', QByteArray(2, '\0') + text);
}

QByteArray const NAV = header("MELVOX COMP=NAV VER=1.14.33 PROD=8");
QByteArray const BOOT = header("MELVOX COMP=BOOT1 VER=2.0 PROD=9");
QByteArray const DATA = record('1', QByteArray("\x12\x34", 2) + "abc");
QByteArray const END = record('9', QByteArray("\0\0", 2));

} // namespace

class tst_firmwareFile : public melvox_test::test_t
{
    Q_OBJECT

private:
    bool readAll(QByteArray const& text, int pieceSize);
    QString errorOf(QByteArray const& text);

    std::vector<part_t> m_parts;
    QString m_error;

private slots:
    void readsWhatItWrites();
    void namesComponentsWithoutRegardToCase();
    void readsAHeaderWhateverTheOrderOfItsWords();
    void refusesAHeader_data();
    void refusesAHeader();
    void takesAProductThatIsLeftOutAsNone();
    void readsEveryTypeOfRecord_data();
    void readsEveryTypeOfRecord();
    void readsAnyEndOfLine_data();
    void readsAnyEndOfLine();
    void readsAFileHoweverItIsCut_data();
    void readsAFileHoweverItIsCut();
    void readsLowerCaseDigits();
    void passesHeadersOfOthersOver();
    void readsComponentsThatEachHaveAnEnd();
    void refusesDamage_data();
    void refusesDamage();
    void tellsTheLineOfTheDamage();
    void staysDamaged();
    void writesRecordsThatOthersReadToo();
};

bool tst_firmwareFile::readAll(QByteArray const& text, int pieceSize)
{
    packageReader_t reader;
    bool good = true;
    for (int i = 0; i < text.size(); i += pieceSize)
        good = reader.feed(text.constData() + i, std::size_t(qMin(pieceSize, int(text.size()) - i))) && good;
    good = reader.finish() && good;
    m_parts = reader.parts();
    m_error = QString::fromLatin1(reader.error().c_str());
    return good;
}

QString tst_firmwareFile::errorOf(QByteArray const& text)
{
    return readAll(text, text.size() + 1) ? QString() : m_error;
}

void tst_firmwareFile::readsWhatItWrites()
{
    QVERIFY2(readAll(package_t().add(2, "1.14.40", 8, 1000).add(0, "2.1", 9, 1).add(16, "x", 0, 33).bytes(), 4096),
             qPrintable(m_error));
    QCOMPARE(int(m_parts.size()), 3);
    QCOMPARE(m_parts[0].component, 2);
    QCOMPARE(m_parts[0].version, std::string("1.14.40"));
    QCOMPARE(m_parts[0].product, 8);
    QCOMPARE(int(m_parts[0].size), 1000);
    QCOMPARE(m_parts[1].component, 0);
    QCOMPARE(m_parts[1].product, 9);
    QCOMPARE(int(m_parts[1].size), 1);
    QCOMPARE(m_parts[2].component, 16);
    QCOMPARE(int(m_parts[2].size), 33);
}

void tst_firmwareFile::namesComponentsWithoutRegardToCase()
{
    QCOMPARE(componentFromName("NAV"), 2);
    QCOMPARE(componentFromName("nav"), 2);
    QCOMPARE(componentFromName("NAVI"), -1);
    QCOMPARE(componentFromName("NA"), -1);
    QCOMPARE(componentFromName(""), -1);
    QCOMPARE(QString(componentName(16)), QString("ALL"));
    QVERIFY(!componentName(17));
    QVERIFY(!componentName(-1));
}

void tst_firmwareFile::readsAHeaderWhateverTheOrderOfItsWords()
{
    part_t part;
    QVERIFY(readHeader("MELVOX  PROD=12 BUILD=77 VER=3.1-rc COMP=gpb", part));
    QCOMPARE(part.component, 13);
    QCOMPARE(part.product, 12);
    QCOMPARE(part.version, std::string("3.1-rc"));
    QVERIFY(readHeader(headerText(part), part));
    QCOMPARE(part.component, 13);
    QCOMPARE(part.product, 12);
}

void tst_firmwareFile::refusesAHeader_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("of somebody else") << QByteArray("HDR");
    QTest::newRow("without a component") << QByteArray("MELVOX VER=1.0 PROD=8");
    QTest::newRow("without a version") << QByteArray("MELVOX COMP=NAV PROD=8");
    QTest::newRow("with an unknown component") << QByteArray("MELVOX COMP=COFFEE VER=1.0");
    QTest::newRow("with a product that is no number") << QByteArray("MELVOX COMP=NAV VER=1.0 PROD=eight");
    QTest::newRow("with a negative product") << QByteArray("MELVOX COMP=NAV VER=1.0 PROD=-8");
    QTest::newRow("with a longer first word") << QByteArray("MELVOXX COMP=NAV VER=1.0 PROD=8");
}

void tst_firmwareFile::refusesAHeader()
{
    QFETCH(QByteArray, text);
    part_t part;
    part.component = 5;
    QVERIFY(!readHeader(text.constData(), part));
    QCOMPARE(part.component, 5);
}

void tst_firmwareFile::takesAProductThatIsLeftOutAsNone()
{
    part_t part;
    part.product = 4;
    QVERIFY(readHeader("MELVOX COMP=NAV VER=1.0", part));
    QCOMPARE(part.product, 0);
}

void tst_firmwareFile::readsEveryTypeOfRecord_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("S1 and S9") << NAV + DATA + END;
    QTest::newRow("S2 and S8") << NAV + record('2', QByteArray(3, '\1') + "abc") + record('8', QByteArray(3, '\0'));
    QTest::newRow("S3 and S7") << NAV + record('3', QByteArray(4, '\1') + "abc") + record('7', QByteArray(4, '\0'));
    QTest::newRow("S5 count") << NAV + DATA + DATA + record('5', QByteArray("\0\2", 2)) + END;
    QTest::newRow("S6 count") << NAV + DATA + record('6', QByteArray("\0\0\1", 3)) + END;
    QTest::newRow("counts of each component")
        << NAV + DATA + record('5', QByteArray("\0\1", 2)) + BOOT + DATA + record('5', QByteArray("\0\1", 2)) + END;
    QTest::newRow("counts of the file so far")
        << NAV + DATA + record('5', QByteArray("\0\1", 2)) + BOOT + DATA + record('5', QByteArray("\0\2", 2)) + END;
    QTest::newRow("the longest record") << NAV + record('1', QByteArray(254, '\xFF')) + END;
}

void tst_firmwareFile::readsEveryTypeOfRecord()
{
    QFETCH(QByteArray, text);
    QCOMPARE(errorOf(text), QString());
    QCOMPARE(m_parts[0].version, std::string("1.14.33"));
}

void tst_firmwareFile::readsAnyEndOfLine_data()
{
    QTest::addColumn<QByteArray>("end");
    QTest::newRow("line feed") << QByteArray("\n");
    QTest::newRow("carriage return") << QByteArray("\r");
    QTest::newRow("both") << QByteArray("\r\n");
    QTest::newRow("an empty line between") << QByteArray("\n\n");
    QTest::newRow("blanks before it") << QByteArray(" \t\r\n");
}

void tst_firmwareFile::readsAnyEndOfLine()
{
    QFETCH(QByteArray, end);
    QByteArray text = NAV + DATA + DATA + BOOT + DATA + END;
    text.replace("\n", end);
    for (int size : {1, 7, 100000})
    {
        QVERIFY2(readAll(text, size), qPrintable(m_error));
        QCOMPARE(int(m_parts.size()), 2);
        QCOMPARE(int(m_parts[0].size), 6);
    }
    // The last line need not have an end.
    QVERIFY2(readAll(text.left(text.lastIndexOf(end)), 5), qPrintable(m_error));
}

void tst_firmwareFile::readsAFileHoweverItIsCut_data()
{
    QTest::addColumn<int>("size");
    for (int size : {1, 2, 3, 45, 46, 47, 1024, 1 << 20})
        QTest::newRow(qPrintable(QString::number(size))) << size;
}

void tst_firmwareFile::readsAFileHoweverItIsCut()
{
    QFETCH(int, size);
    QVERIFY2(readAll(package_t().add(2, "1", 8, 5000).add(6, "7", 8, 5000).bytes(), size), qPrintable(m_error));
    QCOMPARE(int(m_parts.size()), 2);
    QCOMPARE(int(m_parts[1].size), 5000);
}

void tst_firmwareFile::readsLowerCaseDigits()
{
    QByteArray text = NAV + DATA + END;
    QCOMPARE(errorOf(text.toLower().replace('s', 'S')), QString());
    QCOMPARE(m_parts[0].component, 2);
}

void tst_firmwareFile::passesHeadersOfOthersOver()
{
    QCOMPARE(errorOf(header("HDR") + NAV + header("made today") + DATA + END), QString());
    QCOMPARE(int(m_parts.size()), 1);
}

void tst_firmwareFile::readsComponentsThatEachHaveAnEnd()
{
    QCOMPARE(errorOf(NAV + DATA + END + BOOT + DATA + END), QString());
    QCOMPARE(int(m_parts.size()), 2);
    QCOMPARE(m_parts[1].component, 0);
}

void tst_firmwareFile::refusesDamage_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("reason");
    QByteArray flipped = DATA;
    flipped[10] = flipped.at(10) == '0' ? '1' : '0';
    QByteArray strange = DATA;
    strange[10] = 'G';
    QByteArray high = DATA;
    high[10] = '\xFF';
    QTest::newRow("nothing") << QByteArray() << "no component's header";
    QTest::newRow("no component") << header("HDR") + END << "no component's header";
    QTest::newRow("a digit changed") << NAV + flipped + END << "checksum";
    QTest::newRow("a letter beyond F") << NAV + strange + END << "no digits";
    QTest::newRow("a byte beyond ASCII") << NAV + high + END << "no digits";
    QTest::newRow("a digit less") << NAV + DATA.left(DATA.size() - 2) + "\n" + END << "length";
    QTest::newRow("a digit more") << NAV + DATA.left(DATA.size() - 1) + "0\n" + END << "length";
    QTest::newRow("a count of nothing") << NAV + "S100FF\n" + END << "length";
    QTest::newRow("a short address") << NAV + record('3', QByteArray(3, '\0')) + END << "length";
    QTest::newRow("a count that is no number") << NAV + "S1XX1234\n" + END << "length";
    QTest::newRow("only the type") << NAV + "S1\n" + END << "not an S-record";
    QTest::newRow("another format") << QByteArray(":10000000\n") << "not an S-record";
    QTest::newRow("a type that is no digit") << NAV + "SA031234\n"
                                             << "not an S-record";
    QTest::newRow("the reserved type") << NAV + record('4', QByteArray(4, '\0')) << "S4";
    QTest::newRow("cut off at a line") << NAV + DATA << "cut off";
    QTest::newRow("data before a header") << DATA + NAV + DATA + END << "before a component's header";
    QTest::newRow("data after the end") << NAV + DATA + END + DATA << "after the end";
    QTest::newRow("a component without data") << NAV + END << "empty";
    QTest::newRow("the first component without data") << NAV + BOOT + DATA + END << "empty";
    QTest::newRow("a bad header") << header("MELVOX COMP=TEA VER=1") + DATA + END << "TEA";
    QTest::newRow("a record missing") << NAV + DATA + record('5', QByteArray("\0\2", 2)) + END << "missing";
    QTest::newRow("no line at all") << QByteArray(200000, 'S') << "not an S-record";
}

void tst_firmwareFile::refusesDamage()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, reason);
    for (int size : {1, 100, 1000000})
    {
        QVERIFY(!readAll(text, size));
        if (text.size() < 100000)
            QVERIFY2(m_error.contains(reason), qPrintable(m_error));
    }
}

void tst_firmwareFile::tellsTheLineOfTheDamage()
{
    QByteArray text = NAV + DATA + DATA + "nonsense\n" + END;
    QVERIFY2(errorOf(text).startsWith("line 4: "), qPrintable(m_error));
    QVERIFY2(errorOf(text.replace("\n", "\r\n")).startsWith("line 4: "), qPrintable(m_error));
}

void tst_firmwareFile::staysDamaged()
{
    packageReader_t reader;
    QVERIFY(!reader.feed("nonsense\n", 9));
    std::string const error = reader.error();
    QVERIFY(!reader.feed(NAV.constData(), std::size_t(NAV.size())));
    QVERIFY(!reader.finish());
    QCOMPARE(reader.error(), error);
}

void tst_firmwareFile::writesRecordsThatOthersReadToo()
{
    packageWriter_t writer;
    part_t part;
    part.component = 2;
    part.version = "1.0";
    part.product = 8;
    writer.start(part);
    writer.takeText();
    writer.add("\x01\xFF", 2);
    QCOMPARE(QString(writer.takeText().c_str()), QString("S3070200000001FFF6\n"));
    writer.finish();
    QCOMPARE(QString(writer.takeText().c_str()), QString("S70500000000FA\n"));
}

QTEST_MAIN(tst_firmwareFile)
#include "tst_firmwareFile.moc"
