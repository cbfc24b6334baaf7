#include "proxycheck/groupRows.h"
#include "proxycheck/signalRecorder.h"
#include "support/pageTest.h"

#include <QMetaMethod>

#include <limits>

using namespace brel_common_qt;
using melvox_proxycheck::groupRow_t;
using melvox_proxycheck::groupRows;
using melvox_proxycheck::signalRecorder_t;
using melvox_proxycheck::step_t;

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
    static void addSteps(bool withValue);
    groupRow_t const& row() const;
    step_t const& step() const;
    QString state() const;
    void say(step_t const& step);
    void sayWhatComesBefore();
};

/** What answers an order is looked at where orders are. */
void tst_replies::addSteps(bool withValue)
{
    QTest::addColumn<int>("row");
    QTest::addColumn<int>("step");
    for (std::size_t i = 0; i < groupRows().size(); ++i)
    {
        groupRow_t const& row = groupRows()[i];
        for (std::size_t j = 0; row.kind != groupRow_t::ANSWERS && j < row.steps.size(); ++j)
        {
            QByteArray const name = row.messageOf(row.steps[j]) + QByteArray(" ") + QByteArray::number(int(j) + 1);
            if (!withValue || row.steps[j].value.isValid())
                QTest::newRow(name.constData()) << int(i) << int(j);
        }
    }
}

groupRow_t const& tst_replies::row() const
{
    QFETCH(int, row);
    return groupRows()[std::size_t(row)];
}

step_t const& tst_replies::step() const
{
    QFETCH(int, step);
    return row().steps[std::size_t(step)];
}

QString tst_replies::state() const
{
    return row().state ? row().state(*device) : QString();
}

void tst_replies::say(step_t const& step)
{
    receiver->report(row().messageOf(step), step.value);
}

void tst_replies::sayWhatComesBefore()
{
    for (step_t const& one : row().steps)
    {
        if (&one == &step())
            return;
        say(one);
    }
}

void tst_replies::nothingIsKnownBeforeTheFirstReport_data()
{
    addSteps(false);
}

void tst_replies::nothingIsKnownBeforeTheFirstReport()
{
    QCOMPARE(state(), QString::fromUtf8(row().unknown));
}

void tst_replies::theGettersGiveEachFieldOfAReport_data()
{
    addSteps(false);
}

void tst_replies::theGettersGiveEachFieldOfAReport()
{
    sayWhatComesBefore();
    say(step());
    QCOMPARE(state(), QString::fromUtf8(step().known));
}

void tst_replies::aReportIsToldOfOnceWithItsValues_data()
{
    addSteps(false);
}

void tst_replies::aReportIsToldOfOnceWithItsValues()
{
    sayWhatComesBefore();
    signalRecorder_t const recorder(device);
    say(step());
    QCOMPARE(recorder.told.join("; "), QString::fromUtf8(step().told));
}

void tst_replies::aReportIsToldOfAfterTheCacheWasRefreshed_data()
{
    addSteps(false);
}

void tst_replies::aReportIsToldOfAfterTheCacheWasRefreshed()
{
    sayWhatComesBefore();
    signalRecorder_t const recorder(device, [this]() { return state(); });
    say(step());
    QVERIFY(!recorder.states.isEmpty());
    for (QString const& state : recorder.states)
        QCOMPARE(state, QString::fromUtf8(step().known));
}

void tst_replies::eachReportIsToldOfAlsoWhenNothingChanged_data()
{
    addSteps(false);
}

// Pages start timers and clear lists by the signal alone.
void tst_replies::eachReportIsToldOfAlsoWhenNothingChanged()
{
    say(step());
    signalRecorder_t const recorder(device);
    say(step());
    QCOMPARE(recorder.told.join("; "), QString::fromUtf8(step().told));
}

void tst_replies::aSpoiledFirstReportIsIgnored_data()
{
    addSteps(true);
}

void tst_replies::aSpoiledFirstReportIsIgnored()
{
    QString const before = state();
    signalRecorder_t const recorder(device);
    QList<spoiled_t> const all = spoil(step().value);
    QVERIFY(all.size() > 3);
    for (spoiled_t const& spoiled : all)
    {
        receiver->report(row().messageOf(step()), spoiled.value);
        QVERIFY2(recorder.told.isEmpty(), qPrintable(spoiled.how));
        QVERIFY2(state() == before, qPrintable(spoiled.how));
    }
}

void tst_replies::aSpoiledLaterReportLeavesWhatWasKnown_data()
{
    addSteps(true);
}

// What is known differs from the spoiled report in every field, so that one field taken over would show.
void tst_replies::aSpoiledLaterReportLeavesWhatWasKnown()
{
    receiver->report(row().messageOf(step()), otherwise(step().value));
    QString const before = state();
    signalRecorder_t const recorder(device);
    QList<spoiled_t> const all = spoil(step().value);
    for (spoiled_t const& spoiled : all)
    {
        receiver->report(row().messageOf(step()), spoiled.value);
        QVERIFY2(recorder.told.isEmpty(), qPrintable(spoiled.how));
        QVERIFY2(state() == before, qPrintable(spoiled.how + "\n" + state()));
    }
}

void tst_replies::everySignalOfTheProxyHasAReportThatBringsIt()
{
    QStringList told;
    for (groupRow_t const& row : groupRows())
    {
        for (step_t const& step : row.steps)
        {
            for (QString const& signal : QString::fromUtf8(step.told).split("; "))
                told << signal.section(' ', 0, 0);
        }
    }
    QMetaObject const& meta = remoteMelvoxDevice_t::staticMetaObject;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
    {
        QByteArray const signature = melvox_proxycheck::signatureOf(meta.method(i));
        QString const name = QString::fromLatin1(signature.left(signature.indexOf('(')));
        if (meta.method(i).methodType() == QMetaMethod::Signal)
            QVERIFY2(told.contains(name), qPrintable(name));
    }
}

QTEST_MAIN(tst_replies)
#include "tst_replies.moc"
