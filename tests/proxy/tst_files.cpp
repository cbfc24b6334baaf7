#include "proxycheck/signalRecorder.h"
#include "support/pageTest.h"

#include <QDir>

using namespace brel_common_qt;
using melvox_proxycheck::signalRecorder_t;

namespace
{

int const LARGEST_BLOCK = 64 * 1024;

QByteArray pattern(int size)
{
    QByteArray bytes(size, 0);
    for (int i = 0; i < size; ++i)
        bytes[i] = char(i * 7 + i / 251);
    return bytes;
}

void removeAll(QString const& folder)
{
    QDir dir(folder);
    QFileInfoList const entries =
        dir.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (QFileInfo const& entry : entries)
    {
        if (entry.isDir() && !entry.isSymLink())
            removeAll(entry.filePath());
        else
            QFile::remove(entry.filePath());
    }
    dir.rmdir(folder);
}

melvoxFirmwareUpdateComponent_t component(unsigned int index, melvoxFirmwareComponent_t which, std::string const& path)
{
    melvoxFirmwareUpdateComponent_t const component = {index, which, path};
    return component;
}

typedef QList<melvoxFirmwareUpdateComponent_t> components_t;

} // namespace

class tst_files : public melvox_test::pageTest_t
{
    Q_OBJECT

private slots:
    void aFirmwareUpdateNamesEachComponentWithItsFile();
    void aFirmwareUpdateNamesOneFileForAllItsComponents();
    void aWebUiUploadNamesItsFile();
    void aFileThatCannotBeReadHasNoSize();

    void givesThePartThatIsWanted_data();
    void givesThePartThatIsWanted();
    void givesAWholeFilePartByPart();
    void givesPartsInAnyOrderOfSeveralFiles();
    void givesPartsWhileTheLockIsHeld();
    void givesNothingOfAFileThatWasNotOffered();
    void givesNothingOfAFileThatWasOfferedBefore();
    void givesNothingByAnotherNameOfAnOfferedFile();
    void aWebUiUploadLeavesTheFirmwareOnOffer();
    void aSecondUploadLeavesTheFirstOneItsFile();
    void saysWhyAFileCannotBeRead();
    void aFolderIsNoFile();
    void aFileThatVanishesIsSaidToBeGone();
    void saysSoWhenMoreIsWantedThanOneMessageShouldCarry();
    void ignoresPartsThatAreNone_data();
    void ignoresPartsThatAreNone();
    void letsGoOfAFileThatIsDone_data();
    void letsGoOfAFileThatIsDone();

    void writesADumpedProfile();
    void writesAnEmptyProfile();
    void aDumpReplacesAnExistingFileAsAWhole();
    void aDumpThatFailedWritesNothing();
    void tellsThePathAsItWasNamed();
    void ignoresADumpThatNobodyAskedFor();
    void ignoresADumpThatComesTwice();
    void ignoresADumpWithoutItsData_data();
    void ignoresADumpWithoutItsData();
    void aFolderThatIsNotThereFailsTheDump();
    void anExistingFileIsKeptWhenItsReplacementCannotBeOpened();
    void anExistingFileIsKeptWhenTheDriveIsFull();
    void anExistingFolderIsKeptWhenADumpHasItsName();
    void aDumpFailsWhenTheLinkCloses();
    void aDumpOverAClosedLinkFailsLater();
    void anAnswerThatComesAfterTheLinkWasLostWritesNothing();

protected:
    void setUp();
    void tearDown();

private:
    std::string at(QString const& name) const { return QFile::encodeName(m_folder + name).constData(); }
    std::string create(QString const& name, QByteArray const& bytes) const;
    QByteArray contents(QString const& name) const;
    QStringList names() const { return QDir(m_folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }

    void want(std::string const& path, QVariant const& offset, QVariant const& size);
    QVariantMap lastAnswer() const { return receiver->messages().last().value.toMap(); }
    QByteArray part(std::string const& path, int offset, int size);
    void offer(std::string const& path);
    void dump(std::string const& path, QByteArray const& bytes);

    QString m_folder; //!< ends with a separator
};

void tst_files::setUp()
{
    pageTest_t::setUp();
    m_folder = QDir::tempPath() + QString("/melvox_files_%1/").arg(QCoreApplication::applicationPid());
    removeAll(m_folder);
    QVERIFY(QDir().mkpath(m_folder));
}

void tst_files::tearDown()
{
    pageTest_t::tearDown();
    removeAll(m_folder);
}

std::string tst_files::create(QString const& name, QByteArray const& bytes) const
{
    QFile file(m_folder + name);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be created", qPrintable(file.fileName()));
    return at(name);
}

QByteArray tst_files::contents(QString const& name) const
{
    QFile file(m_folder + name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

void tst_files::want(std::string const& path, QVariant const& offset, QVariant const& size)
{
    receiver->clear();
    receiver->event("fileWanted", map("path", QString::fromStdString(path), "offset", offset, "size", size));
}

QByteArray tst_files::part(std::string const& path, int offset, int size)
{
    want(path, offset, size);
    if (receiver->messages().size() != 1 || lastAnswer().contains("error"))
        return "(no answer, or an error)";
    return lastAnswer().value("data").toByteArray();
}

void tst_files::offer(std::string const& path)
{
    device->startFirmwareUpdate(components_t() << component(0, MELVOX_FW_COMP_NAV, path), "");
}

void tst_files::dump(std::string const& path, QByteArray const& bytes)
{
    receiver->report("profileDump", map("path", QString::fromStdString(path), "success", true, "description",
                                        "Profile dumped", "data", bytes));
}

// --- what is offered -----------------------------------------------------------------------------------------------

void tst_files::aFirmwareUpdateNamesEachComponentWithItsFile()
{
    std::string const nav = create("nav.s19", pattern(300));
    std::string const boot = create("boot.s19", pattern(20));
    device->startFirmwareUpdate(
        components_t() << component(3, MELVOX_FW_COMP_NAV, nav) << component(1, MELVOX_FW_COMP_BOOT2, boot), "");
    QCOMPARE(receiver->sent(), QStringList(QString("command startFirmwareUpdate combinedPath=\"\" components="
                                                   "[[component=2 fileIndex=3 path=%1nav.s19 size=300] "
                                                   "[component=1 fileIndex=1 path=%1boot.s19 size=20]]")
                                               .arg(m_folder)));
}

void tst_files::aFirmwareUpdateNamesOneFileForAllItsComponents()
{
    std::string const all = create("all.s19", pattern(500));
    device->startFirmwareUpdate(
        components_t() << component(0, MELVOX_FW_COMP_NAV, "") << component(1, MELVOX_FW_COMP_BOOT1, ""), all);
    QCOMPARE(receiver->sent(),
             QStringList(QString("command startFirmwareUpdate combinedPath=%1all.s19 combinedSize=500 components="
                                 "[[component=2 fileIndex=0 path=\"\"] [component=0 fileIndex=1 path=\"\"]]")
                             .arg(m_folder)));
}

void tst_files::aWebUiUploadNamesItsFile()
{
    device->startWebUiUpload(create("web.pkg", pattern(700)));
    QCOMPARE(receiver->sent(), QStringList(QString("command startWebUiUpload path=%1web.pkg size=700").arg(m_folder)));
}

void tst_files::aFileThatCannotBeReadHasNoSize()
{
    device->startWebUiUpload(at("not there"));
    device->startWebUiUpload(at(""));
    QCOMPARE(receiver->messages().at(0).value.toMap().value("size").toInt(), -1);
    QCOMPARE(receiver->messages().at(1).value.toMap().value("size").toInt(), -1);
}

// --- what is sent of it --------------------------------------------------------------------------------------------

void tst_files::givesThePartThatIsWanted_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("length");
    QTest::newRow("from the start") << 0 << 100 << 100;
    QTest::newRow("from the middle") << 500 << 17 << 17;
    QTest::newRow("one byte") << 999 << 1 << 1;
    QTest::newRow("to the end") << 900 << 100 << 100;
    QTest::newRow("beyond the end") << 900 << 101 << 100;
    QTest::newRow("at the end") << 1000 << 100 << 0;
    QTest::newRow("behind the end") << 5000 << 100 << 0;
    QTest::newRow("as much as there may be") << 0 << LARGEST_BLOCK << 1000;
}

void tst_files::givesThePartThatIsWanted()
{
    QFETCH(int, offset);
    QFETCH(int, size);
    QFETCH(int, length);
    std::string const path = create("nav.s19", pattern(1000));
    offer(path);
    want(path, offset, size);
    QCOMPARE(receiver->commands(),
             QStringList(
                 QString("fileBlock data=<%1 bytes> offset=%2 path=%3nav.s19").arg(length).arg(offset).arg(m_folder)));
    QCOMPARE(lastAnswer().value("data").toByteArray(), pattern(1000).mid(offset, size));
}

void tst_files::givesAWholeFilePartByPart()
{
    QByteArray const bytes = pattern(3 * 1024);
    std::string const path = create("nav.s19", bytes);
    offer(path);
    QByteArray received;
    for (int offset = 0; offset <= bytes.size(); offset += 1024)
        received += part(path, offset, 1024);
    QCOMPARE(received, bytes);
}

void tst_files::givesPartsInAnyOrderOfSeveralFiles()
{
    std::string const nav = create("nav.s19", pattern(1000));
    std::string const boot = create("boot.s19", QByteArray(1000, 'b'));
    device->startFirmwareUpdate(
        components_t() << component(0, MELVOX_FW_COMP_NAV, nav) << component(0, MELVOX_FW_COMP_BOOT1, boot), "");
    QCOMPARE(part(nav, 500, 10), pattern(1000).mid(500, 10));
    QCOMPARE(part(boot, 0, 3), QByteArray("bbb"));
    QCOMPARE(part(nav, 0, 10), pattern(1000).left(10));
}

void tst_files::givesPartsWhileTheLockIsHeld()
{
    std::string const path = create("nav.s19", pattern(10));
    receiver->report("portLock", 2);
    offer(path);
    QCOMPARE(part(path, 0, 10), pattern(10));
}

void tst_files::givesNothingOfAFileThatWasNotOffered()
{
    std::string const secret = create("secret", "secret");
    offer(create("nav.s19", pattern(10)));
    want(secret, 0, 10);
    QCOMPARE(receiver->messages().size(), 1);
    QVERIFY(!lastAnswer().value("error").toString().isEmpty());
    QVERIFY(lastAnswer().value("data").toByteArray().isEmpty());
    QString const reason = lastAnswer().value("error").toString();
    want(at("not there"), 0, 10);
    QCOMPARE(lastAnswer().value("error").toString(), reason);
}

void tst_files::givesNothingOfAFileThatWasOfferedBefore()
{
    std::string const first = create("first", "1");
    std::string const second = create("second", "2");
    offer(first);
    offer(second);
    want(first, 0, 1);
    QVERIFY(lastAnswer().contains("error"));
    QCOMPARE(part(second, 0, 1), QByteArray("2"));
}

void tst_files::givesNothingByAnotherNameOfAnOfferedFile()
{
    offer(create("nav.s19", "1"));
    want(at("./nav.s19"), 0, 1);
    QVERIFY(lastAnswer().contains("error"));
}

void tst_files::aWebUiUploadLeavesTheFirmwareOnOffer()
{
    std::string const nav = create("nav.s19", "nav");
    std::string const web = create("web.pkg", "web");
    receiver->report("portLock", 2);
    offer(nav);
    device->startWebUiUpload(web);
    QCOMPARE(part(nav, 0, 3), QByteArray("nav"));
    QCOMPARE(part(web, 0, 3), QByteArray("web"));
}

void tst_files::aSecondUploadLeavesTheFirstOneItsFile()
{
    std::string const first = create("first", "1");
    std::string const second = create("second", "2");
    device->startWebUiUpload(first);
    receiver->report("webUiUploadState", map("state", 1, "description", "Receiving"));
    device->startWebUiUpload(second);
    QCOMPARE(part(first, 0, 1), QByteArray("1"));
    offer(first);
    receiver->report("firmwareUpdateState", map("state", 1, "description", "Receiving"));
    offer(second);
    QCOMPARE(part(first, 0, 1), QByteArray("1"));
}

void tst_files::saysWhyAFileCannotBeRead()
{
    offer(at("not there"));
    want(at("not there"), 0, 10);
    QVERIFY(!lastAnswer().value("error").toString().isEmpty());
    QVERIFY(lastAnswer().value("data").toByteArray().isEmpty());
}

void tst_files::aFolderIsNoFile()
{
    offer(at(""));
    want(at(""), 0, 10);
    QVERIFY(lastAnswer().contains("error"));
}

void tst_files::aFileThatVanishesIsSaidToBeGone()
{
    std::string const path = create("nav.s19", pattern(1000));
    offer(path);
    QCOMPARE(part(path, 0, 1000), pattern(1000));
    QVERIFY(QFile::remove(m_folder + "nav.s19"));
    want(path, 0, 10);
    QVERIFY(lastAnswer().contains("error"));
}

// Part of it would pass for the end of the file.
void tst_files::saysSoWhenMoreIsWantedThanOneMessageShouldCarry()
{
    std::string const path = create("nav.s19", pattern(LARGEST_BLOCK + 1));
    offer(path);
    QCOMPARE(part(path, 0, LARGEST_BLOCK).size(), LARGEST_BLOCK);
    want(path, 0, LARGEST_BLOCK + 1);
    QVERIFY(lastAnswer().value("error").toString().contains("65536"));
    QVERIFY(lastAnswer().value("data").toByteArray().isEmpty());
    want(path, 0, 9007199254740992.0);
    QVERIFY(lastAnswer().contains("error"));
}

void tst_files::ignoresPartsThatAreNone_data()
{
    QTest::addColumn<QVariant>("offset");
    QTest::addColumn<QVariant>("size");
    QTest::newRow("before the file") << QVariant(-1) << QVariant(10);
    QTest::newRow("of no bytes") << QVariant(0) << QVariant(0);
    QTest::newRow("of fewer bytes than none") << QVariant(0) << QVariant(-10);
    QTest::newRow("of a part of a byte") << QVariant(0) << QVariant(1.5);
    QTest::newRow("between two bytes") << QVariant(0.5) << QVariant(1);
    QTest::newRow("nowhere") << QVariant(1e300) << QVariant(10);
    QTest::newRow("of everything") << QVariant(0) << QVariant(1e300);
    QTest::newRow("by text") << QVariant("0") << QVariant(10);
    QTest::newRow("without a size") << QVariant(0) << QVariant();
}

void tst_files::ignoresPartsThatAreNone()
{
    QFETCH(QVariant, offset);
    QFETCH(QVariant, size);
    std::string const path = create("nav.s19", pattern(1000));
    offer(path);
    want(path, offset, size);
    QVERIFY(receiver->sent().isEmpty());
}

void tst_files::letsGoOfAFileThatIsDone_data()
{
    QTest::addColumn<int>("read");
    QTest::addColumn<bool>("ended");
    QTest::newRow("to its end") << 1000 << false;
    QTest::newRow("half of it, then the update ended") << 500 << true;
}

// An open file keeps its drive from being pulled out.
void tst_files::letsGoOfAFileThatIsDone()
{
#ifdef Q_OS_LINUX
    QFETCH(int, read);
    QFETCH(bool, ended);
    std::string const path = create("nav.s19", pattern(1000));
    offer(path);
    part(path, 0, read);
    if (ended)
        receiver->report("firmwareUpdateState", map("state", 0, "description", "Failed"));
    QFileInfoList const open = QDir("/proc/self/fd").entryInfoList(QDir::AllEntries | QDir::System);
    for (QFileInfo const& entry : open)
        QVERIFY(entry.symLinkTarget() != m_folder + "nav.s19");
#endif
}

// --- dumped profiles -----------------------------------------------------------------------------------------------

void tst_files::writesADumpedProfile()
{
    signalRecorder_t const recorder(device);
    device->dumpAsProfile(at("profile_1.dravel"));
    dump(at("profile_1.dravel"), pattern(3000));
    QCOMPARE(contents("profile_1.dravel"), pattern(3000));
    QCOMPARE(names(), QStringList("profile_1.dravel"));
    QCOMPARE(recorder.told,
             QStringList(QString("profileDumpDone \"%1profile_1.dravel\" yes \"Profile dumped\"").arg(m_folder)));
}

void tst_files::writesAnEmptyProfile()
{
    device->dumpAsProfile(at("empty"));
    dump(at("empty"), QByteArray());
    QCOMPARE(contents("empty"), QByteArray());
}

void tst_files::aDumpReplacesAnExistingFileAsAWhole()
{
    create("profile", QByteArray(5000, 'o'));
    device->dumpAsProfile(at("profile"));
    dump(at("profile"), "new");
    QCOMPARE(contents("profile"), QByteArray("new"));
    QCOMPARE(names(), QStringList("profile"));
}

void tst_files::aDumpThatFailedWritesNothing()
{
    create("profile", "old");
    signalRecorder_t const recorder(device);
    device->dumpAsProfile(at("profile"));
    receiver->report("profileDump", map("path", QString::fromStdString(at("profile")), "success", false, "description",
                                        "No memory", "data", QByteArray("half")));
    QCOMPARE(contents("profile"), QByteArray("old"));
    QCOMPARE(recorder.told, QStringList(QString("profileDumpDone \"%1profile\" no \"No memory\"").arg(m_folder)));
}

// Who asked compares it byte by byte, and a path is not always text that passes a link unchanged.
void tst_files::tellsThePathAsItWasNamed()
{
    std::string const path = at("profile_") + '\xfc';
    QSignalSpy const spy(device, SIGNAL(profileDumpDone(std::string, bool, std::string)));
    device->dumpAsProfile(path);
    receiver->report("profileDump", map("path", receiver->messages().last().value, "success", false, "description",
                                        "No", "data", QByteArray()));
    QCOMPARE(spy.size(), 1);
    QVERIFY(spy.at(0).at(0).value<std::string>() == path);
}

void tst_files::ignoresADumpThatNobodyAskedFor()
{
    create("profile", "old");
    signalRecorder_t const recorder(device);
    device->dumpAsProfile(at("another"));
    dump(at("profile"), "new");
    QCOMPARE(contents("profile"), QByteArray("old"));
    QVERIFY(recorder.told.isEmpty());
}

void tst_files::ignoresADumpThatComesTwice()
{
    device->dumpAsProfile(at("profile"));
    dump(at("profile"), "first");
    signalRecorder_t const recorder(device);
    dump(at("profile"), "second");
    QCOMPARE(contents("profile"), QByteArray("first"));
    QVERIFY(recorder.told.isEmpty());
}

void tst_files::ignoresADumpWithoutItsData_data()
{
    QTest::addColumn<QVariantMap>("value");
    QVariantMap const good = map("success", true, "description", "Dumped", "data", QByteArray("new"));
    QVariantMap noData = good, textData = good, noSuccess = good, noDescription = good;
    noData.remove("data");
    textData.insert("data", "new");
    noSuccess.remove("success");
    noDescription.remove("description");
    QTest::newRow("no data") << noData;
    QTest::newRow("text for data") << textData;
    QTest::newRow("no success") << noSuccess;
    QTest::newRow("no description") << noDescription;
}

void tst_files::ignoresADumpWithoutItsData()
{
    QFETCH(QVariantMap, value);
    create("profile", "old");
    signalRecorder_t const recorder(device);
    device->dumpAsProfile(at("profile"));
    value.insert("path", QString::fromStdString(at("profile")));
    receiver->report("profileDump", value);
    QVERIFY(recorder.told.isEmpty());
    QCOMPARE(contents("profile"), QByteArray("old"));
    dump(at("profile"), "new");
    QCOMPARE(contents("profile"), QByteArray("new"));
}

void tst_files::aFolderThatIsNotThereFailsTheDump()
{
    signalRecorder_t const recorder(device);
    device->dumpAsProfile(at("no folder/profile"));
    dump(at("no folder/profile"), "new");
    QCOMPARE(recorder.told.size(), 1);
    QVERIFY2(
        recorder.told.first().startsWith(
            QString("profileDumpDone \"%1no folder/profile\" no \"The profile could not be written: ").arg(m_folder)),
        qPrintable(recorder.told.first()));
    QVERIFY(names().isEmpty());
}

void tst_files::anExistingFileIsKeptWhenItsReplacementCannotBeOpened()
{
    create("profile", "old");
    QVERIFY(QDir(m_folder).mkdir("profile.part"));
    signalRecorder_t const recorder(device);
    device->dumpAsProfile(at("profile"));
    dump(at("profile"), "new");
    QVERIFY(recorder.told.first().contains("\" no \""));
    QCOMPARE(contents("profile"), QByteArray("old"));
}

void tst_files::anExistingFileIsKeptWhenTheDriveIsFull()
{
#ifdef Q_OS_LINUX
    create("profile", "old");
    QVERIFY(QFile::link("/dev/full", m_folder + "profile.part"));
    signalRecorder_t const recorder(device);
    device->dumpAsProfile(at("profile"));
    dump(at("profile"), pattern(3000));
    QVERIFY2(recorder.told.first().contains("\" no \""), qPrintable(recorder.told.first()));
    QCOMPARE(contents("profile"), QByteArray("old"));
    QCOMPARE(names(), QStringList("profile"));
#endif
}

void tst_files::anExistingFolderIsKeptWhenADumpHasItsName()
{
    QVERIFY(QDir(m_folder).mkdir("profile"));
    create("profile/inside", "kept");
    signalRecorder_t const recorder(device);
    device->dumpAsProfile(at("profile"));
    dump(at("profile"), "new");
    QVERIFY(recorder.told.first().contains("\" no \""));
    QCOMPARE(contents("profile/inside"), QByteArray("kept"));
    QCOMPARE(names(), QStringList("profile"));
}

void tst_files::aDumpFailsWhenTheLinkCloses()
{
    signalRecorder_t const recorder(device);
    device->dumpAsProfile(at("profile"));
    receiver->setOpen(false);
    QCOMPARE(
        recorder.told,
        QStringList(QString("profileDumpDone \"%1profile\" no \"The link to the receiver was lost.\"").arg(m_folder)));
}

void tst_files::aDumpOverAClosedLinkFailsLater()
{
    receiver->setOpen(false);
    signalRecorder_t const recorder(device);
    device->dumpAsProfile(at("profile"));
    QVERIFY(recorder.told.isEmpty());
    QVERIFY(melvox_test::waitFor([&recorder]() { return !recorder.told.isEmpty(); }));
    QCOMPARE(recorder.told.size(), 1);
    QVERIFY(recorder.told.first().startsWith("profileDumpDone"));
}

void tst_files::anAnswerThatComesAfterTheLinkWasLostWritesNothing()
{
    device->dumpAsProfile(at("profile"));
    receiver->setOpen(false);
    receiver->setOpen(true);
    dump(at("profile"), "new");
    QVERIFY(names().isEmpty());
}

QTEST_MAIN(tst_files)
#include "tst_files.moc"
