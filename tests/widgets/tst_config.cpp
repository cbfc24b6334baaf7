#include "qdconfig/config.h"
#include "support/test.h"

#include <QDir>
#include <QFile>

using qdconfig::config_t;

class tst_config : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void missingKeysLeaveTheValueAlone();
    void valuesComeBackAsTheyWere_data();
    void valuesComeBackAsTheyWere();
    void everyByteComesBack();
    void valuesOutliveTheStore();
    void valuesAreInTheFileAtOnce();
    void valuesAreReplaced();
    void keysMayHaveTheNameOfAGroup();
    void keysWithoutANameAreRefused_data();
    void keysWithoutANameAreRefused();
    void folderOfTheStoreIsMade();
    void anUnwritablePlaceIsReportedAndLosesNothing();
    void aDamagedFileIsWrittenAnew();
    void flagsComeBack();
    void onlyFlagsAreReadAsFlags_data();
    void onlyFlagsAreReadAsFlags();

private:
    void setUp() override;
    void tearDown() override;

    QString path(char const* name) const { return m_dir.absoluteFilePath(name); }
    std::string file(char const* name) const { return QFile::encodeName(path(name)).constData(); }

    QDir m_dir;
};

namespace
{

void removeTree(QDir const& dir)
{
    QStringList const files = dir.entryList(QDir::Files | QDir::Hidden | QDir::System);
    for (int i = 0; i < files.size(); ++i)
        QFile::remove(dir.absoluteFilePath(files.at(i)));
    QStringList const dirs = dir.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden);
    for (int i = 0; i < dirs.size(); ++i)
        removeTree(QDir(dir.absoluteFilePath(dirs.at(i))));
    dir.rmdir(dir.absolutePath());
}

} // namespace

void tst_config::setUp()
{
    m_dir = QDir(QDir::tempPath() + QString("/tst_config_%1").arg(QCoreApplication::applicationPid()));
    removeTree(m_dir);
    QVERIFY(m_dir.mkpath("."));
}

void tst_config::tearDown()
{
    removeTree(m_dir);
}

void tst_config::missingKeysLeaveTheValueAlone()
{
    config_t const store(file("store.ini"));
    std::string value("before");
    QVERIFY(!store.getValue("nothing/here", value));
    QCOMPARE(value, std::string("before"));
    QVERIFY(!QFile::exists(path("store.ini")));
}

void tst_config::valuesComeBackAsTheyWere_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("word") << QByteArray("true");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("blanks") << QByteArray("  a b  ");
    QTest::newRow("equals") << QByteArray("a=b=c");
    QTest::newRow("semicolon") << QByteArray("a;b # c");
    QTest::newRow("percent") << QByteArray("100 %20");
    QTest::newRow("comma") << QByteArray("a, b, c");
    QTest::newRow("only comma") << QByteArray(",");
    QTest::newRow("quotes") << QByteArray("\"a\" 'b' \\\" \\x41");
    QTest::newRow("newlines") << QByteArray("a\nb\r\nc\n");
    QTest::newRow("tab") << QByteArray("\ta\t");
    QTest::newRow("variant") << QByteArray("@Invalid()");
    QTest::newRow("byte array") << QByteArray("@ByteArray(a)");
    QTest::newRow("at") << QByteArray("@@");
    QTest::newRow("group") << QByteArray("[group]");
    QTest::newRow("other bytes") << QByteArray("\xC3\xA4\xFF\x80 \xE4");
    QTest::newRow("zero byte") << QByteArray("a\0"
                                             "1b",
                                             4);
}

void tst_config::valuesComeBackAsTheyWere()
{
    QFETCH(QByteArray, value);
    std::string const bytes(value.constData(), value.size());
    {
        config_t store(file("store.ini"));
        QVERIFY(store.setValue("pages/text", bytes));
        QVERIFY(store.setValue("pages/after", "next"));
    }
    // As another process would find it: in a file of another name nothing is known already.
    QVERIFY(QFile::copy(path("store.ini"), path("copy.ini")));
    config_t const store(file("copy.ini"));
    std::string read("before");
    QVERIFY(store.getValue("pages/text", read));
    QVERIFY(read == bytes);
    QVERIFY(store.getValue("pages/after", read));
    QCOMPARE(read, std::string("next"));
}

void tst_config::everyByteComesBack()
{
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all += static_cast<char>(byte);
    config_t store(file("store.ini"));
    QVERIFY(store.setValue("all", all));
    QVERIFY(QFile::copy(path("store.ini"), path("copy.ini")));
    std::string read;
    QVERIFY(config_t(file("copy.ini")).getValue("all", read));
    QVERIFY(read == all);
}

void tst_config::valuesOutliveTheStore()
{
    {
        config_t store(file("store.ini"));
        QVERIFY(store.setValue("a", "1"));
        QVERIFY(store.setValue("group/a", "2"));
    }
    config_t const store(file("store.ini"));
    std::string value;
    QVERIFY(store.getValue("a", value));
    QCOMPARE(value, std::string("1"));
    QVERIFY(store.getValue("group/a", value));
    QCOMPARE(value, std::string("2"));
}

void tst_config::valuesAreInTheFileAtOnce()
{
    config_t store(file("store.ini"));
    QVERIFY(store.setValue("display/show_dtm_warning", "false"));
    QFile written(path("store.ini"));
    QVERIFY(written.open(QIODevice::ReadOnly));
    QVERIFY(written.readAll().contains("show_dtm_warning=false"));
}

void tst_config::valuesAreReplaced()
{
    config_t store(file("store.ini"));
    QVERIFY(store.setValue("a", "first"));
    QVERIFY(store.setValue("a", "second"));
    std::string value;
    QVERIFY(store.getValue("a", value));
    QCOMPARE(value, std::string("second"));
    QVERIFY(store.setValue("a", ""));
    QVERIFY(store.getValue("a", value));
    QCOMPARE(value, std::string());
}

void tst_config::keysMayHaveTheNameOfAGroup()
{
    config_t store(file("store.ini"));
    QVERIFY(store.setValue("output", "1"));
    QVERIFY(store.setValue("output/messages", "2"));
    QVERIFY(store.setValue("General/messages", "3"));
    QVERIFY(store.setValue("odd key=\xE4;[x]%/a b", "4"));
    std::string value;
    QVERIFY(store.getValue("output", value));
    QCOMPARE(value, std::string("1"));
    QVERIFY(store.getValue("output/messages", value));
    QCOMPARE(value, std::string("2"));
    QVERIFY(store.getValue("General/messages", value));
    QCOMPARE(value, std::string("3"));
    QVERIFY(store.getValue("odd key=\xE4;[x]%/a b", value));
    QCOMPARE(value, std::string("4"));
}

void tst_config::keysWithoutANameAreRefused_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("empty") << "";
    QTest::newRow("separator") << "/";
    QTest::newRow("separators") << "//";
}

void tst_config::keysWithoutANameAreRefused()
{
    QFETCH(QString, key);
    config_t store(file("store.ini"));
    std::string value("before");
    QVERIFY(!store.setValue(key.toLatin1().constData(), "a"));
    QVERIFY(!store.getValue(key.toLatin1().constData(), value));
    QCOMPARE(value, std::string("before"));
}

void tst_config::folderOfTheStoreIsMade()
{
    config_t store(file("new/folder/store.ini"));
    QVERIFY(store.setValue("a", "1"));
    QVERIFY(QFile::exists(path("new/folder/store.ini")));
}

void tst_config::anUnwritablePlaceIsReportedAndLosesNothing()
{
    // Where the store was, a folder stands in the way: nobody, not even root, can write the file.
    QVERIFY(QDir().mkpath(path("store.ini")));
    config_t store(file("store.ini"));
    std::string value("before");
    QVERIFY(!store.setValue("a", "1"));
    QVERIFY(!store.getValue("a", value));
    QCOMPARE(value, std::string("before"));

    QVERIFY(QDir().rmdir(path("store.ini")));
    QVERIFY(store.setValue("a", "2"));
    QVERIFY(store.getValue("a", value));
    QCOMPARE(value, std::string("2"));

    QVERIFY(QFile::rename(path("store.ini"), path("aside.ini")));
    QVERIFY(QDir().mkpath(path("store.ini")));
    QVERIFY(!store.setValue("a", "3"));
    QVERIFY(QDir().rmdir(path("store.ini")));
    QVERIFY(QFile::rename(path("aside.ini"), path("store.ini")));
    QVERIFY(store.setValue("b", "4"));
    QVERIFY(store.getValue("a", value));
    QCOMPARE(value, std::string("2"));
}

void tst_config::aDamagedFileIsWrittenAnew()
{
    QFile damaged(path("store.ini"));
    QVERIFY(damaged.open(QIODevice::WriteOnly));
    damaged.write("[pages]\na=1\nno line of a store\n");
    damaged.close();
    config_t store(file("store.ini"));
    QVERIFY(store.setValue("pages/b", "2"));
    std::string value;
    QVERIFY(store.getValue("pages/a", value));
    QCOMPARE(value, std::string("1"));
    QVERIFY(store.getValue("pages/b", value));
    QCOMPARE(value, std::string("2"));
    QVERIFY(QFile::copy(path("store.ini"), path("copy.ini")));
    QVERIFY(config_t(file("copy.ini")).getValue("pages/b", value));
}

void tst_config::flagsComeBack()
{
    bool value = false;
    QVERIFY(qdconfig::qdConfigDecode(qdconfig::qdConfigEncode(true), value));
    QVERIFY(value);
    QVERIFY(qdconfig::qdConfigDecode(qdconfig::qdConfigEncode(false), value));
    QVERIFY(!value);
    QCOMPARE(qdconfig::qdConfigEncode(true), std::string("true"));
    QCOMPARE(qdconfig::qdConfigEncode(false), std::string("false"));
}

void tst_config::onlyFlagsAreReadAsFlags_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("meaning");
    QTest::newRow("1") << "1"
                       << "true";
    QTest::newRow("0") << "0"
                       << "false";
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("upper case") << "True"
                                << "";
    QTest::newRow("word") << "yes"
                          << "";
    QTest::newRow("blank") << "true "
                           << "";
    QTest::newRow("number") << "2"
                            << "";
    QTest::newRow("zeros") << "00"
                           << "";
}

void tst_config::onlyFlagsAreReadAsFlags()
{
    QFETCH(QString, text);
    QFETCH(QString, meaning);
    for (int before = 0; before < 2; ++before)
    {
        bool value = before != 0;
        QCOMPARE(qdconfig::qdConfigDecode(text.toLatin1().constData(), value), !meaning.isEmpty());
        QCOMPARE(value, meaning.isEmpty() ? before != 0 : meaning == "true");
    }
}

QTEST_MAIN(tst_config)
#include "tst_config.moc"
