#include "display/displayStyle.h"
#include "display/statusStrip.h"
#include "support/test.h"

#include <QApplication>
#include <QLabel>
#include <QToolButton>

using namespace melvox_display;

class tst_statusStrip : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void saysThatTheReceiverIsSimulated()
    {
        statusStrip_t strip;
        strip.resize(800, 40);
        strip.show();
        QLabel* label = strip.findChild<QLabel*>("simulatedLabel");
        QVERIFY(!label->isVisible());
        strip.setSimulated(true);
        QVERIFY(label->isVisible());
        QCOMPARE(label->text(), QString("SIMULATED RECEIVER"));
    }

    void saysHowTheLinkIs_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("warns");
        QTest::newRow("connecting") << int(linkState_t::CONNECTING) << "Connecting" << false;
        QTest::newRow("connected") << int(linkState_t::CONNECTED) << "Connected" << false;
        QTest::newRow("interrupted") << int(linkState_t::INTERRUPTED) << "LINK INTERRUPTED" << true;
        QTest::newRow("reconnecting") << int(linkState_t::RECONNECTING) << "RECONNECTING" << true;
    }

    void saysHowTheLinkIs()
    {
        QFETCH(int, state);
        QFETCH(bool, warns);
        applyDisplayStyle(*qApp);
        statusStrip_t strip;
        strip.resize(800, 40);
        strip.show();
        strip.setLink("tcp:192.168.0.7:5000", linkState_t(state));
        QTEST(strip.findChild<QLabel*>("linkStateLabel")->text(), "text");
        QCOMPARE(strip.findChild<QLabel*>("linkDescriptionLabel")->text(), QString("tcp:192.168.0.7:5000"));
        QColor const ground = strip.grab().toImage().pixelColor(600, 20);
        QCOMPARE(ground.red() > 150 && ground.green() < 80, warns);
    }

    void shortensADescriptionThatDoesNotFit()
    {
        applyDisplayStyle(*qApp);
        statusStrip_t strip;
        strip.setSimulated(true);
        strip.resize(600, 40);
        strip.show();
        QString const description("tcp:receiver-on-the-roof.example.org:5000");
        strip.setLink(description, linkState_t::INTERRUPTED);
        QLabel* const label = strip.findChild<QLabel*>("linkDescriptionLabel");
        QString const shortened = label->fontMetrics().elidedText(description, Qt::ElideRight, label->width());
        QVERIFY(shortened != description && shortened.size() > 3);
        QImage const shown = strip.grab().toImage();
        QCOMPARE(label->toolTip(), description);
        strip.setLink(shortened, linkState_t::INTERRUPTED);
        QCOMPARE(strip.grab().toImage(), shown);
        strip.setLink(description.left(shortened.size() - 1), linkState_t::INTERRUPTED);
        QVERIFY(strip.grab().toImage() != shown);
    }

    void monitorButtonAsksForTheMonitor()
    {
        statusStrip_t strip;
        QSignalSpy toggled(&strip, &statusStrip_t::monitorToggled);
        QToolButton* button = strip.findChild<QToolButton*>("monitorButton");
        button->click();
        QCOMPARE(toggled.size(), 1);
        strip.setMonitorShown(false);
        QVERIFY(!button->isChecked());
        strip.setMonitorShown(true);
        QVERIFY(button->isChecked());
    }
};

QTEST_MAIN(tst_statusStrip)
#include "tst_statusStrip.moc"
