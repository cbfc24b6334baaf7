#include "support/pageTest.h"

#include <QFile>

using namespace brel_common_qt;

namespace
{

struct row_t
{
    char const* name;
    void (remoteMelvoxDevice_t::*query)();
    char const* groups; //!< parted by blanks
};

typedef remoteMelvoxDevice_t device_t;

row_t const ROWS[] = {
    {"queryElevationMask", &device_t::queryElevationMask, "elevationMask"},
    {"queryPdopLimit", &device_t::queryPdopLimit, "pdopLimit"},
    {"queryGeoidalModel", &device_t::queryGeoidalModel, "geoidalModel"},
    {"queryCorrectionsEnabled", &device_t::queryCorrectionsEnabled, "correctionEnabled"},
    {"queryCorrectionsMaxAge", &device_t::queryCorrectionsMaxAge, "correctionMaxAge"},
    {"queryNtripPPPMode", &device_t::queryNtripPPPMode, "ntripPPP"},
    {"queryMeasUse", &device_t::queryMeasUse, "measUse"},
    {"queryDynamicConfig", &device_t::queryDynamicConfig, "dynamicConfig"},
    {"queryAntennaAlignment", &device_t::queryAntennaAlignment, "antennaAlignment"},
    {"queryAntennaInfo", &device_t::queryAntennaInfo, "antennaInfo antennaList"},
    {"queryAntennaHeight", &device_t::queryAntennaHeight, "antennaHeight"},
    {"queryAntennaRemote", &device_t::queryAntennaRemote, "antennaRemote"},
    {"queryAntennaDualMode", &device_t::queryAntennaDualMode, "antennaDualMode"},
    {"queryCorrectionSelection", &device_t::queryCorrectionSelection, "correctionSelection"},
    {"queryNetPriority", &device_t::queryNetPriority, "netPriority"},
    {"queryRtgUseMode", &device_t::queryRtgUseMode, "rtgUseMode"},
    {"queryCorrectionSats", &device_t::queryCorrectionSats, "correctionSats"},
    {"queryCorrectionSatSelected", &device_t::queryCorrectionSatSelected, "correctionSatSelection"},
    {"queryMrvAlmanacInfo", &device_t::queryMrvAlmanacInfo, "mrvAlmanacInfo"},
    {"queryStarfireAlmStatus", &device_t::queryStarfireAlmStatus, "starfireAlmStatus"},
    {"queryStarfireAlmSwitchPolicy", &device_t::queryStarfireAlmSwitchPolicy, "starfireAlmSwitchPolicy"},
    {"queryDiffConfig", &device_t::queryDiffConfig, "diffConfig"},
    {"queryRtcmVersion", &device_t::queryRtcmVersion, "rtcmVersion"},
    {"queryBaseName", &device_t::queryBaseName, "baseName"},
    {"queryBasePosition", &device_t::queryBasePosition, "basePosition"},
    {"queryActivePort", &device_t::queryActivePort, "activePort"},
    {"queryAllOutputs", &device_t::queryAllOutputs, "outputs"},
    {"queryGgaMode", &device_t::queryGgaMode, "ggaMode"},
    {"queryTalkerIdMode", &device_t::queryTalkerIdMode, "talkerIdMode"},
    {"queryUsbMode", &device_t::queryUsbMode, "usbMode"},
    {"queryEthernetConfig", &device_t::queryEthernetConfig, "ethernetConfig"},
    {"queryWebControl", &device_t::queryWebControl, "webControl"},
    {"queryPpsConfig", &device_t::queryPpsConfig, "ppsConfig"},
    {"listProfiles", &device_t::listProfiles, "profiles"},
    {"queryActiveProfile", &device_t::queryActiveProfile, "activeProfile"},
    {"queryLteModemStatus", &device_t::queryLteModemStatus, "lteModemStat"},
};

/** The groups that the list of messages marks as ones that can be requested. */
QStringList requestableGroups()
{
    QFile list(MESSAGE_LIST);
    QStringList groups;
    if (!list.open(QIODevice::ReadOnly | QIODevice::Text))
        return groups;
    while (!list.atEnd())
    {
        QStringList const cells = QString::fromUtf8(list.readLine()).split('|');
        if (cells.size() > 3 && cells.at(2).trimmed().startsWith('R'))
            groups << cells.at(1).trimmed();
    }
    return groups;
}

} // namespace

class tst_requests : public melvox_test::pageTest_t
{
    Q_OBJECT

private slots:
    void eachQuerySendsItsRequestsAndNothingElse_data();
    void eachQuerySendsItsRequestsAndNothingElse();
    void aRepeatedQueryIsSentAgain();
    void antennaNamesAreNotAskedForAgainOnceTheyAreKnown();
    void queryAllAsksOnceForEveryGroupThatCanBeRequested();
    void aQueryOverAClosedLinkIsLostWithoutASound();
    void nothingIsSentUnasked();
};

void tst_requests::eachQuerySendsItsRequestsAndNothingElse_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < int(sizeof ROWS / sizeof *ROWS); ++i)
        QTest::newRow(ROWS[i].name) << i;
}

void tst_requests::eachQuerySendsItsRequestsAndNothingElse()
{
    QFETCH(int, row);
    (device->*ROWS[row].query)();
    QStringList expected;
    for (QString const& group : QString(ROWS[row].groups).split(' '))
        expected << "request " + group;
    QCOMPARE(receiver->sent(), expected);
}

void tst_requests::aRepeatedQueryIsSentAgain()
{
    device->queryPdopLimit();
    device->queryPdopLimit();
    QCOMPARE(receiver->requests(), QStringList() << "pdopLimit"
                                                 << "pdopLimit");
}

void tst_requests::antennaNamesAreNotAskedForAgainOnceTheyAreKnown()
{
    receiver->report("antennaName", "AOAD/M_T");
    device->queryAntennaInfo();
    QCOMPARE(receiver->requests(), QStringList() << "antennaInfo");
}

void tst_requests::queryAllAsksOnceForEveryGroupThatCanBeRequested()
{
    QStringList expected = requestableGroups();
    QVERIFY(expected.size() > 40);
    device->queryAll();
    QStringList found = receiver->requests();
    QCOMPARE(receiver->sent().size(), found.size());
    expected.sort();
    found.sort();
    QCOMPARE(found, expected);
}

void tst_requests::aQueryOverAClosedLinkIsLostWithoutASound()
{
    receiver->setOpen(false);
    device->queryAll();
    receiver->setOpen(true);
    QVERIFY(receiver->sent().isEmpty());
}

void tst_requests::nothingIsSentUnasked()
{
    melvox_test::settle();
    QVERIFY(receiver->sent().isEmpty());
}

QTEST_MAIN(tst_requests)
#include "tst_requests.moc"
