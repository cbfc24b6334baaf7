#include "brel_common_qt_gui/guiSettings.h"
#include "display/profileComparison.h"
#include "receiver/profileText.h"
#include "receiver/settingWords.h"
#include "support/folder.h"
#include "support/test.h"

using namespace melvox_display;
using namespace melvox_receiver;
using brel_common_qt_gui::guiSettings_t;

namespace
{

QString text(difference_t const& one)
{
    return QStringList({one.name, one.now, one.then, one.unit}).join("|");
}

QStringList texts(settings_t const& now, settings_t const& then)
{
    QStringList all;
    for (difference_t const& one : differences(now, then))
        all << text(one);
    return all;
}

/** The start value of one setting with one field of its first record set to something else. */
settings_t changed(QString const& group, QString const& field, QVariant const& value, int record = 0)
{
    settings_t settings = startSettings();
    QVariant setting = settings.value(group);
    if (field.isEmpty())
    {
        setting = value;
    }
    else if (setting.userType() == QMetaType::QVariantList)
    {
        QVariantList list = setting.toList();
        QVariantMap map = list.at(record).toMap();
        map.insert(field, value);
        list[record] = map;
        setting = list;
    }
    else
    {
        QVariantMap map = setting.toMap();
        map.insert(field, value);
        setting = map;
    }
    settings.insert(group, setting);
    return settings;
}

/** The rule of one field of a setting, null when there is none. */
rule_t const* ruleOf(setting_t const& setting, QString const& field)
{
    rule_t const* const record = setting.rule.kind == rule_t::LIST ? &setting.rule.entry.first() : &setting.rule;
    if (field.isEmpty())
        return record;
    for (auto const& one : record->fields)
    {
        if (one.first == field)
            return &one.second;
    }
    return nullptr;
}

/** Fields of the setting that a display can change, or the empty one of a single value. */
QStringList fieldsOf(setting_t const& setting)
{
    rule_t const* const record = ruleOf(setting, QString());
    QStringList fields;
    for (auto const& one : record->fields)
        fields << one.first;
    return fields.isEmpty() ? QStringList(QString()) : fields;
}

} // namespace

/** What a profile would change, in the operator's words. */
class tst_profileComparison : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void everySettingThatADisplayCanChangeHasWords();
    void noWordsStandForASettingThatIsNotThere();
    void everyNumberThatStandsForAWordHasOne();

    void settingsThatAreAlikeDoNotDiffer();
    void aDifferenceIsSaidInTheOperatorsWords_data();
    void aDifferenceIsSaidInTheOperatorsWords();
    void heightsAndPositionsAreInTheOperatorsUnits();
    void recordsAreComparedByTheirKeyAndNotTheirPlace();
    void whatTheProfileDoesNotNameIsNoDifference();
    void whatTheReceiverDoesNotTellIsShownAsUnknown();
    void aValueOfAnotherFormIsShownAsItStands_data();
    void aValueOfAnotherFormIsShownAsItStands();
    void aFieldThatNobodyKnowsIsShownByItsName();
    void readOnlyGroupsOfAFileAreNoDifference();

    void aGoodFileIsRead();
    void aFileThatEndsTooEarlyIsRefused();
    void anAlteredFileIsRefused();
    void otherFilesAreRefusedInWords_data();
    void otherFilesAreRefusedInWords();
    void aFileThatIsNotThereIsRefused();
    void aFolderIsRefused();
    void aHugeFileIsRefused();
};

// --- the table of words --------------------------------------------------------------------------------------------

void tst_profileComparison::everySettingThatADisplayCanChangeHasWords()
{
    int count = 0;
    for (setting_t const& setting : settingsTable())
    {
        if (setting.access != READ_WRITE)
            continue;
        ++count;
        for (QString const& field : fieldsOf(setting))
            QVERIFY2(findWords(setting.group, field), qPrintable(setting.group + ' ' + field));
        bool const hasRecords = setting.start.userType() == QMetaType::QVariantList;
        QCOMPARE(findKey(setting.group) != nullptr, hasRecords);
        if (!setting.key.isEmpty())
            QCOMPARE(QString(findKey(setting.group)->field), setting.key);
    }
    QVERIFY(count > 20);
}

void tst_profileComparison::noWordsStandForASettingThatIsNotThere()
{
    for (settingWords_t const& words : settingWords())
    {
        setting_t const* const setting = findSetting(words.group);
        QVERIFY2(setting && setting->access == READ_WRITE, words.group);
        bool const isField = fieldsOf(*setting).contains(words.field) || words.field == QString(INDEX);
        QVERIFY2(isField, qPrintable(QString(words.group) + ' ' + words.field));
        QVERIFY(words.isKey || *words.name);
    }
}

void tst_profileComparison::everyNumberThatStandsForAWordHasOne()
{
    for (settingWords_t const& words : settingWords())
    {
        if (words.reading != reading_t::WORDS || words.field == QString(INDEX))
            continue;
        rule_t const* const rule = ruleOf(*findSetting(words.group), words.field);
        QVERIFY2(rule->maximum + 1 == double(words.words.size()), qPrintable(QString(words.group) + ' ' + words.field));
    }
}

// --- differences ---------------------------------------------------------------------------------------------------

void tst_profileComparison::settingsThatAreAlikeDoNotDiffer()
{
    QCOMPARE(texts(startSettings(), startSettings()), QStringList());
    // As they come back from a file: numbers are all of one type there.
    settings_t read;
    QCOMPARE(readProfile(profileText(startSettings()), read), PROFILE_COMPLETE);
    QCOMPARE(texts(startSettings(), read), QStringList());
    QCOMPARE(texts(read, startSettings()), QStringList());
}

void tst_profileComparison::aDifferenceIsSaidInTheOperatorsWords_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QString>("field");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("record");
    QTest::addColumn<QString>("difference");
    auto const row = [](char const* group, char const* field, QVariant const& value, char const* difference, int at = 0)
    { QTest::addRow("%s %s", group, field) << group << field << value << at << QString::fromUtf8(difference); };
    row("elevationMask", "", 12.5, "Elevation mask|7|12.5|\xc2\xb0");
    row("pdopLimit", "", 6.25, "Maximum PDOP|25|6.25|");
    row("geoidalModel", "", 2, "Geoidal model|EGM84|Default|");
    row("correctionEnabled", "enabled", true, "LEO: Corrections enabled|No|Yes|", 2);
    row("correctionMaxAge", "seconds", 90, "SBAS: Maximum differential age|180|90|s", 1);
    row("measUse", "use", false, "GLO: Measurements used|Yes|No|", 1);
    row("antennaHeight", "height", 60.5, "Secondary antenna: Height|52.1|60.5|mm", 1);
    row("antennaInfo", "serial", "X", "Primary antenna: Serial number|MA4-10287|X|");
    row("diffConfig", "port", 13, "Base output port|COM2|ETH8|");
    row("diffConfig", "port", 14, "Base output port|COM2|None|");
    row("baseName", "", "North", "Base station name|BASE 1|North|");
    row("basePosition", "height", 40.5, "Base height|38.420|40.500|m");
    row("basePosition", "latitude", -0.5, "Base latitude|33.844616958\xc2\xb0 N|28.647889757\xc2\xb0 S|");
    row("serialConfig", "baud", 9600, "COM3: Baud rate|38400|9600|bit/s", 2);
    row("serialConfig", "parity", 2, "COM1: Parity|None|Even|");
    row("vcomConfig", "remoteAddress", 3232235783u, "ETH2: Remote address|0.0.0.0|192.168.1.7|", 1);
    row("ethernetConfig", "dhcp", false, "WiFi: Addresses by DHCP|Yes|No|", 1);
    row("webControl", "enabled", false, "Web interface enabled|Yes|No|");
    row("ppsConfig", "width", 1600000, "1PPS pulse width|50000|1600000|ns");
    row("userCorrectionSat", "frequency", 1545512.5, "Custom satellite frequency|0|1545512.5|kHz");
}

void tst_profileComparison::aDifferenceIsSaidInTheOperatorsWords()
{
    QFETCH(QString, group);
    QFETCH(QString, field);
    QFETCH(QVariant, value);
    QFETCH(int, record);
    QFETCH(QString, difference);
    QCOMPARE(texts(startSettings(), changed(group, field, value, record)), QStringList(difference));
}

void tst_profileComparison::heightsAndPositionsAreInTheOperatorsUnits()
{
    guiSettings_t::get().setDistanceUnit(brel_common_qt::DISTANCE_UNIT_US_SURVEY_FOOT);
    guiSettings_t::get().setLatLonFormat(brel_common_qt::LATLON_FORMAT_DEGMIN);
    QStringList const height = texts(startSettings(), changed("basePosition", "height", 1200.0 / 3937.0));
    QStringList const longitude = texts(startSettings(), changed("basePosition", "longitude", 0.0));
    guiSettings_t::get().setDistanceUnit(brel_common_qt::DISTANCE_UNIT_METER);
    guiSettings_t::get().setLatLonFormat(brel_common_qt::LATLON_FORMAT_DEGREE);
    QCOMPARE(height, QStringList("Base height|126.050|1.000|ft"));
    QCOMPARE(longitude,
             QStringList(QString::fromUtf8("Base longitude|118\xc2\xb0 0.3832491' W|0\xc2\xb0 0.0000000' E|")));
}

void tst_profileComparison::recordsAreComparedByTheirKeyAndNotTheirPlace()
{
    settings_t then = startSettings();
    QVariantList ports = then.value("serialConfig").toList();
    ports.move(0, 5);
    then.insert("serialConfig", ports);
    QCOMPARE(texts(startSettings(), then), QStringList());
}

void tst_profileComparison::whatTheProfileDoesNotNameIsNoDifference()
{
    settings_t then;
    then.insert("elevationMask", 8.0);
    then.insert("ppsConfig", QVariantMap{{"interval", 500}});
    then.insert("serialConfig", QVariantList{QVariantMap{{"port", 1}, {"stopBits", 1}}});
    QCOMPARE(texts(startSettings(), then), QStringList({QString::fromUtf8("Elevation mask|7|8|\xc2\xb0"),
                                                        "1PPS interval|1000|500|ms", "COM2: Stop bits|1|2|"}));
}

void tst_profileComparison::whatTheReceiverDoesNotTellIsShownAsUnknown()
{
    settings_t now = startSettings();
    now.remove("elevationMask");
    QList<difference_t> const found = differences(now, startSettings());
    QCOMPARE(int(found.size()), 1);
    QCOMPARE(found.first().name, QString("Elevation mask"));
    QVERIFY(!found.first().now.isEmpty() && found.first().now != "7");
}

void tst_profileComparison::aValueOfAnotherFormIsShownAsItStands_data()
{
    QTest::addColumn<QString>("group");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("then");
    QTest::newRow("a text for a number") << "pdopLimit" << QVariant("low") << "low";
    QTest::newRow("a list for a number") << "pdopLimit" << QVariant(QVariantList{1, 2}) << "[1,2]";
    QTest::newRow("nothing") << "pdopLimit" << QVariant() << "None";
    QTest::newRow("a number without a word") << "geoidalModel" << QVariant(7) << "7";
    QTest::newRow("a fraction without a word") << "geoidalModel" << QVariant(0.5) << "0.5";
    QTest::newRow("a number below all words") << "geoidalModel" << QVariant(-1) << "-1";
}

void tst_profileComparison::aValueOfAnotherFormIsShownAsItStands()
{
    QFETCH(QString, group);
    QFETCH(QVariant, value);
    QFETCH(QString, then);
    QList<difference_t> const found = differences(startSettings(), changed(group, QString(), value));
    QCOMPARE(int(found.size()), 1);
    QCOMPARE(found.first().then, then);
}

void tst_profileComparison::aFieldThatNobodyKnowsIsShownByItsName()
{
    QStringList const found = texts(startSettings(), changed("ppsConfig", "colour", "red"));
    QCOMPARE(int(found.size()), 1);
    QVERIFY2(found.first().startsWith("ppsConfig colour|"), qPrintable(found.first()));
    QVERIFY(found.first().endsWith("|red|"));
}

void tst_profileComparison::readOnlyGroupsOfAFileAreNoDifference()
{
    QCOMPARE(texts(startSettings(), changed("netPriority", QString(), 1)), QStringList());
    settings_t then = startSettings();
    then.insert("somethingNew", 1);
    QCOMPARE(texts(startSettings(), then), QStringList());
}

// --- files ---------------------------------------------------------------------------------------------------------

void tst_profileComparison::aGoodFileIsRead()
{
    melvox_test::folder_t const folder;
    profileFile_t const profile = readProfileFile(folder.write("good.melvox", profileText(startSettings())));
    QCOMPARE(profile.problem, QString());
    QCOMPARE(profile.bytes, profileText(startSettings()));
    QCOMPARE(profile.settings.value("elevationMask").toDouble(), 7.0);
}

// Wherever it ends.
void tst_profileComparison::aFileThatEndsTooEarlyIsRefused()
{
    melvox_test::folder_t const folder;
    QByteArray const whole = profileText(startSettings());
    for (int length = whole.size() - 1; length >= 0; length -= length > 100 ? 37 : 1)
    {
        profileFile_t const profile = readProfileFile(folder.write("short.melvox", whole.left(length)));
        QVERIFY2(!profile.isGood() && profile.settings.isEmpty(), qPrintable(QString::number(length)));
    }
}

// Wherever it was altered.
void tst_profileComparison::anAlteredFileIsRefused()
{
    melvox_test::folder_t const folder;
    QByteArray const whole = profileText(startSettings());
    for (int at = 0; at < whole.size(); at += 23)
    {
        QByteArray bytes = whole;
        bytes[at] = char(bytes.at(at) ^ 1);
        profileFile_t const profile = readProfileFile(folder.write("bad.melvox", bytes));
        QVERIFY2(!profile.isGood() && profile.settings.isEmpty(), qPrintable(QString::number(at)));
    }
}

void tst_profileComparison::otherFilesAreRefusedInWords_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("problem");
    QByteArray const whole = profileText(startSettings());
    QTest::newRow("empty") << QByteArray() << "This is no settings profile.";
    QTest::newRow("foreign") << QByteArray("S0030000FC\n") << "This is no settings profile.";
    QTest::newRow("binary") << QByteArray(5000, '\0') << "This is no settings profile.";
    QTest::newRow("another version") << QByteArray(whole).replace("profile 1\n", "profile 2\n")
                                     << "This profile is of another version or was altered.";
    QTest::newRow("saved by an editor") << QByteArray(whole).replace("\n", "\r\n")
                                        << "This profile is of another version or was altered.";
    QTest::newRow("without its end") << whole.left(whole.size() / 2) << "This profile is incomplete";
    QTest::newRow("altered") << QByteArray(whole).replace("\"elevationMask\":7", "\"elevationMask\":8")
                             << "This profile is damaged or was altered";
    QTest::newRow("something behind it") << whole + "more"
                                         << "This profile is damaged or was altered";
    QTest::newRow("nothing in it") << profileText(settings_t()) << "This profile has no settings in it.";
}

void tst_profileComparison::otherFilesAreRefusedInWords()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, problem);
    melvox_test::folder_t const folder;
    profileFile_t const profile = readProfileFile(folder.write("some.melvox", bytes));
    QVERIFY2(profile.problem.startsWith(problem), qPrintable(profile.problem));
    QVERIFY(profile.settings.isEmpty());
}

void tst_profileComparison::aFileThatIsNotThereIsRefused()
{
    melvox_test::folder_t const folder;
    profileFile_t const profile = readProfileFile(folder.path("gone.melvox"));
    QVERIFY2(profile.problem.startsWith("The file cannot be read:"), qPrintable(profile.problem));
}

void tst_profileComparison::aFolderIsRefused()
{
    melvox_test::folder_t const folder;
    QVERIFY(!readProfileFile(folder.path()).isGood());
}

void tst_profileComparison::aHugeFileIsRefused()
{
    melvox_test::folder_t const folder;
    QByteArray const bytes = "melvox-profile 1\n" + QByteArray(2 * 1024 * 1024, '\n');
    profileFile_t const profile = readProfileFile(folder.write("huge.melvox", bytes));
    QCOMPARE(profile.problem, QString("This is no settings profile: it is too large."));
    QVERIFY(profile.bytes.size() < bytes.size());
}

QTEST_MAIN(tst_profileComparison)
#include "tst_profileComparison.moc"
