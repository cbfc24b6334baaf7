#include "proxyRecorder.h"
#include "replyRows.h"
#include "support/pageTest.h"

#include <QMetaMethod>
#include <QSet>

#include <limits>

using namespace brel_common_qt;
using melvox_test::proxyRecorder_t;
using melvox_test::REPLY_ROWS;
using melvox_test::replyRow_t;

namespace
{

struct spoiled_t
{
    QString how;
    QVariant value;
};

QList<spoiled_t> spoil(QVariant const& good);

QList<spoiled_t> each(std::initializer_list<spoiled_t> spoiled)
{
    return QList<spoiled_t>(spoiled);
}

QList<spoiled_t> spoilMap(QVariantMap const& good)
{
    QList<spoiled_t> all;
    for (QVariantMap::const_iterator it = good.begin(); it != good.end(); ++it)
    {
        QVariantMap map = good;
        map.remove(it.key());
        all << spoiled_t{"without " + it.key(), map};
        QList<spoiled_t> const fields = spoil(it.value());
        for (spoiled_t const& field : fields)
        {
            map.insert(it.key(), field.value);
            all << spoiled_t{it.key() + ": " + field.how, map};
        }
    }
    return all;
}

QList<spoiled_t> spoilList(QVariantList const& good)
{
    QList<spoiled_t> all;
    for (int i = 0; i < good.size(); ++i)
    {
        QList<spoiled_t> const entries = spoil(good.at(i));
        for (spoiled_t const& entry : entries)
        {
            QVariantList list = good;
            list[i] = entry.value;
            all << spoiled_t{QString("[%1] ").arg(i) + entry.how, list};
        }
    }
    return all;
}

/** The value made wrong in every way that there is for one of its kind, one at a time. */
QList<spoiled_t> spoil(QVariant const& good)
{
    double const infinity = std::numeric_limits<double>::infinity();
    QList<spoiled_t> all;
    all << spoiled_t{"nothing", QVariant()} << spoiled_t{"bytes", QByteArray("12")};
    QList<spoiled_t> const noNumber = each({{"a text for a number", "12"},
                                            {"a flag for a number", true},
                                            {"not a number", std::numeric_limits<double>::quiet_NaN()},
                                            {"infinite", infinity},
                                            {"minus infinite", -infinity}});
    switch (good.userType())
    {
    case QMetaType::QVariantMap:
        all << spoiled_t{"an empty map", QVariantMap()} << spoiled_t{"a list for a map", QVariantList() << good};
        all << spoiled_t{"a text for a map", "12"} << spoiled_t{"a number for a map", 12};
        return all + spoilMap(good.toMap());
    case QMetaType::QVariantList:
        all << spoiled_t{"a map for a list", QVariantMap()} << spoiled_t{"a text for a list", "12"};
        all << spoiled_t{"a list of lists", QVariantList() << QVariant(good.toList())};
        return all + spoilList(good.toList());
    case QMetaType::QString:
        return all << spoiled_t{"a number for a text", 12} << spoiled_t{"a flag for a text", true}
                   << spoiled_t{"a list for a text", QStringList("12")};
    case QMetaType::Bool:
        return all << spoiled_t{"a number for a flag", 1} << spoiled_t{"a text for a flag", "true"};
    case QMetaType::Double:
        return all + noNumber;
    default: // a whole number
        return all + noNumber + each({{"a fraction", 1.5}, {"too large", 1e10}, {"too small", -1e10}, {"huge", 1e300}});
    }
}

/** Another good value in every field but those that say what the report is about. */
QVariant otherwise(QVariant const& value)
{
    switch (value.userType())
    {
    case QMetaType::QVariantMap:
    {
        QVariantMap map = value.toMap();
        for (QVariantMap::iterator it = map.begin(); it != map.end(); ++it)
        {
            bool const isKey = it.key() == "port" || it.key() == "type" || it.key() == "source" ||
                               it.key() == "valid" || (it.key() == "name" && map.contains("use"));
            if (!isKey)
                *it = otherwise(*it);
        }
        return map;
    }
    case QMetaType::QVariantList:
    {
        QVariantList list = value.toList();
        for (int i = 0; i < list.size(); ++i)
            list[i] = otherwise(list.at(i));
        return list;
    }
    case QMetaType::QString:
        return value.toString() + " 2";
    case QMetaType::Bool:
        return !value.toBool();
    case QMetaType::Double:
        return value.toDouble() + 0.5;
    case QMetaType::UInt:
        return value.toUInt() + 1;
    default:
        return value.toInt() + 1;
    }
}

QString signalName(QMetaMethod const& method)
{
#if QT_VERSION < 0x050000
    QByteArray const signature = method.signature();
#else
    QByteArray const signature = method.methodSignature();
#endif
    return signature.left(signature.indexOf('('));
}

} // namespace

class tst_replies : public melvox_test::pageTest_t
{
    Q_OBJECT

private slots:
    void nothingIsKnownBeforeTheFirstReport_data();
    void nothingIsKnownBeforeTheFirstReport();
    void theGettersGiveEachFieldOfAReport_data();
    void theGettersGiveEachFieldOfAReport();
    void aReportIsToldOfOnceWithItsValues_data();
    void aReportIsToldOfOnceWithItsValues();
    void aReportIsToldOfAfterTheCacheWasRefreshed_data();
    void aReportIsToldOfAfterTheCacheWasRefreshed();
    void eachReportIsToldOfAlsoWhenNothingChanged_data();
    void eachReportIsToldOfAlsoWhenNothingChanged();
    void aSpoiledFirstReportIsIgnored_data();
    void aSpoiledFirstReportIsIgnored();
    void aSpoiledLaterReportLeavesWhatWasKnown_data();
    void aSpoiledLaterReportLeavesWhatWasKnown();
    void everySignalOfTheProxyHasAReportThatBringsIt();

private:
    static void addRows();
};

void tst_replies::addRows()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < REPLY_ROWS.size(); ++i)
        QTest::newRow(REPLY_ROWS.at(i).group) << i;
}

void tst_replies::nothingIsKnownBeforeTheFirstReport_data()
{
    addRows();
}

void tst_replies::nothingIsKnownBeforeTheFirstReport()
{
    QFETCH(int, index);
    replyRow_t const& row = REPLY_ROWS.at(index);
    QCOMPARE(row.state(*device), QString::fromUtf8(row.unknown));
}

void tst_replies::theGettersGiveEachFieldOfAReport_data()
{
    addRows();
}

void tst_replies::theGettersGiveEachFieldOfAReport()
{
    QFETCH(int, index);
    replyRow_t const& row = REPLY_ROWS.at(index);
    receiver->report(row.group, row.report());
    QCOMPARE(row.state(*device), QString::fromUtf8(row.known));
}

void tst_replies::aReportIsToldOfOnceWithItsValues_data()
{
    addRows();
}

void tst_replies::aReportIsToldOfOnceWithItsValues()
{
    QFETCH(int, index);
    replyRow_t const& row = REPLY_ROWS.at(index);
    proxyRecorder_t const recorder(device);
    receiver->report(row.group, row.report());
    QCOMPARE(recorder.told.join("; "), QString::fromUtf8(row.told));
}

void tst_replies::aReportIsToldOfAfterTheCacheWasRefreshed_data()
{
    addRows();
}

void tst_replies::aReportIsToldOfAfterTheCacheWasRefreshed()
{
    QFETCH(int, index);
    replyRow_t const& row = REPLY_ROWS.at(index);
    proxyRecorder_t const recorder(device, [&row, this]() { return row.state(*device); });
    receiver->report(row.group, row.report());
    QVERIFY(!recorder.states.isEmpty());
    for (QString const& state : recorder.states)
        QCOMPARE(state, QString::fromUtf8(row.known));
}

void tst_replies::eachReportIsToldOfAlsoWhenNothingChanged_data()
{
    addRows();
}

// Pages start timers and clear lists by the signal alone.
void tst_replies::eachReportIsToldOfAlsoWhenNothingChanged()
{
    QFETCH(int, index);
    replyRow_t const& row = REPLY_ROWS.at(index);
    receiver->report(row.group, row.report());
    proxyRecorder_t const recorder(device);
    receiver->report(row.group, row.report());
    QCOMPARE(recorder.told.join("; "), QString::fromUtf8(row.told));
}

void tst_replies::aSpoiledFirstReportIsIgnored_data()
{
    addRows();
}

void tst_replies::aSpoiledFirstReportIsIgnored()
{
    QFETCH(int, index);
    replyRow_t const& row = REPLY_ROWS.at(index);
    QString const before = row.state(*device);
    proxyRecorder_t const recorder(device);
    QList<spoiled_t> const all = spoil(row.report());
    QVERIFY(all.size() > 3);
    for (spoiled_t const& spoiled : all)
    {
        receiver->report(row.group, spoiled.value);
        QVERIFY2(recorder.told.isEmpty(), qPrintable(spoiled.how));
        QVERIFY2(row.state(*device) == before, qPrintable(spoiled.how));
    }
}

void tst_replies::aSpoiledLaterReportLeavesWhatWasKnown_data()
{
    addRows();
}

// What is known differs from the spoiled report in every field, so that one field taken over would show.
void tst_replies::aSpoiledLaterReportLeavesWhatWasKnown()
{
    QFETCH(int, index);
    replyRow_t const& row = REPLY_ROWS.at(index);
    receiver->report(row.group, otherwise(row.report()));
    QString const before = row.state(*device);
    QVERIFY(row.unknown == 0 || before != QString::fromUtf8(row.unknown));
    proxyRecorder_t const recorder(device);
    QList<spoiled_t> const all = spoil(row.report());
    for (spoiled_t const& spoiled : all)
    {
        receiver->report(row.group, spoiled.value);
        QVERIFY2(recorder.told.isEmpty(), qPrintable(spoiled.how));
        QVERIFY2(row.state(*device) == before, qPrintable(spoiled.how + "\n" + row.state(*device)));
    }
}

void tst_replies::everySignalOfTheProxyHasAReportThatBringsIt()
{
    proxyRecorder_t const recorder(device);
    for (replyRow_t const& row : REPLY_ROWS)
        receiver->report(row.group, row.report());
    receiver->event("antennaListReset");
    receiver->event("outputsCleared");
    receiver->event("profilesCleared");
    receiver->event("badBaud");
    device->dumpAsProfile("x");
    receiver->report("profileDump", map("path", "x", "success", false, "description", "No", "data", QByteArray()));
    QSet<QString> told;
    for (QString const& entry : recorder.told)
        told << entry.section(' ', 0, 0);
    QMetaObject const& meta = remoteMelvoxDevice_t::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
    {
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            QVERIFY2(told.contains(signalName(meta.method(i))), qPrintable(signalName(meta.method(i))));
    }
}

QTEST_MAIN(tst_replies)
#include "tst_replies.moc"
