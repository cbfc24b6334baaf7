#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/textHelpers.h"
#include "display/displayStyle.h"
#include "display/displayWindow.h"
#include "display/keypad.h"
#include "display/screen.h"
#include "display/uiSettings.h"
#include "display/unit.h"
#include "link/localLink.h"
#include "receiver/receiver.h"
#include "support/operator.h"
#include "support/test.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QScrollArea>
#include <QTemporaryDir>
#include <QTimer>

using namespace melvox_display;
using brel_common_qt::NoDataString;
using brel_common_qt::NoString;
using melvox_test::choose;
using melvox_test::find;
using melvox_test::labelText;
using melvox_test::waitFor;

namespace
{

/** A whole unit with one page on its screen. */
struct fixture_t
{
    explicit fixture_t(QString const& name)
        : unit(connection_t()), settings(folder.filePath("display.conf")),
          window(allPages(), &unit, &settings, QSize(800, 480))
    {
        unit.localLink()->setLatency(1);
        unit.start();
        window.showFirstPage(name);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        page = window.screen()->page(name);
        QVERIFY(waitFor([this]() { return unit.device()->ppsConfigValid() && unit.device()->extendedNavInfoValid(); }));
        melvox_test::settle();
    }

    void go(QString const& name)
    {
        QVERIFY(window.screen()->showPage(name));
        page = window.screen()->page(name);
        melvox_test::settle();
    }

    void tap(QWidget* widget)
    {
        for (QWidget* above = widget->parentWidget(); above; above = above->parentWidget())
        {
            if (QScrollArea* view = qobject_cast<QScrollArea*>(above))
                view->ensureWidgetVisible(widget);
        }
        melvox_test::settle();
        QPoint const place = widget->mapTo(&window, widget->rect().center());
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
        melvox_test::settle();
    }

    void press(QString const& keys)
    {
        for (QString const& name : keys.split(' '))
        {
            QPushButton* found = nullptr;
            for (QPushButton* key : window.screen()->keypad()->findChildren<QPushButton*>("key_" + name))
                found = key->isVisible() ? key : found;
            QVERIFY2(found, qPrintable("no key " + name));
            tap(found);
        }
    }

    void apply() { tap(page->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Apply)); }

    bool shows(QString const& label, QString const& text)
    {
        return waitFor([&]() { return labelText(page, label) == text; });
    }

    QTemporaryDir folder;
    unit_t unit;
    uiSettings_t settings;
    displayWindow_t window;
    QWidget* page;
};

} // namespace

/** The whole way from the operator's finger to the receiver and back, on each positioning page. */
class tst_operatingPositioning : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void initTestCase() { applyDisplayStyle(*qApp); }

    void takesAConstellationOutOfUse();
    void choosesADynamicMode();
    void typesTheAngleOfTheAntennas();
    void turnsThePulseAround();
    void showsTheSolutionUntilTheReceiverFallsSilent();
    void showsTheHeadingUntilTheReceiverFallsSilent();
    void followsANewAlignmentInTheHeading();
    void losesTheSolutionWithARestart_data();
    void losesTheSolutionWithARestart();
};

void tst_operatingPositioning::takesAConstellationOutOfUse()
{
    fixture_t f("navigationMode");
    QVERIFY(f.shows("galileoLabel", brel_common_qt::YesString));
    choose(f.page, "galileoCombo", "No");
    f.apply();
    QVERIFY(f.shows("galileoLabel", NoString));
    QVariantMap const galileo = f.unit.receiver()->setting("measUse").toList().at(2).toMap();
    QCOMPARE(galileo.value("name"), QVariant("GAL"));
    QCOMPARE(galileo.value("use"), QVariant(false));
}

void tst_operatingPositioning::choosesADynamicMode()
{
    fixture_t f("navigationMode");
    QVERIFY(f.shows("overallModeLabel", "Medium"));
    choose(f.page, "overallModeCombo", "High");
    f.apply();
    QVERIFY(f.shows("overallModeLabel", "High"));
    QCOMPARE(f.unit.receiver()->setting("dynamicConfig").toMap().value("mode").toInt(), 3);
}

void tst_operatingPositioning::typesTheAngleOfTheAntennas()
{
    fixture_t f("rtkConfiguration");
    QVERIFY(f.shows("alignmentLabel", "Lateral"));
    choose(f.page, "alignmentCombo", "User-Specified");
    f.tap(find<QLineEdit>(f.page, "userAngleLineEdit"));
    QVERIFY(f.window.screen()->keypad()->isOpen());
    f.press("1 2 3 . 5 done");
    f.apply();
    QVERIFY(f.shows("userAngleLabel", "123.50"));
    QCOMPARE(f.unit.receiver()->setting("antennaAlignment").toMap().value("angle").toDouble(), 123.5);
}

void tst_operatingPositioning::turnsThePulseAround()
{
    fixture_t f("ppsConfiguration");
    QVariantMap expected = f.unit.receiver()->setting("ppsConfig").toMap();
    QVERIFY(f.shows("polarityLabel", "Positive"));
    choose(f.page, "polarityCombo", "Negative");
    f.apply();
    QVERIFY(f.shows("polarityLabel", "Negative"));
    QVariantMap const taken = f.unit.receiver()->setting("ppsConfig").toMap();
    expected["polarity"] = 0;
    for (auto field = expected.begin(); field != expected.end(); ++field)
        QCOMPARE(taken.value(field.key()).toUInt(), field.value().toUInt());
}

void tst_operatingPositioning::showsTheSolutionUntilTheReceiverFallsSilent()
{
    fixture_t f("extendedNavInfo");
    QVERIFY(f.shows("failureCodeLabel", "1:Navigation solution available"));
    QString const time = labelText(f.page, "gpsTimeLabel");
    QVERIFY(waitFor([&]() { return labelText(f.page, "gpsTimeLabel") != time; }));
    f.unit.receiver()->setSituation("solutionReports", false);
    QTimer* const timer = find<QTimer>(f.page, "clearTimer");
    // A report may be under way, so the page's time runs out more than once.
    QVERIFY(waitFor(
        [&]()
        {
            timer->start(0);
            melvox_test::settle();
            return labelText(f.page, "gpsTimeLabel") == NoDataString;
        }));
    QVERIFY(!timer->isActive());
    QCOMPARE(labelText(f.page, "velocityUpLabel"), NoDataString);
}

void tst_operatingPositioning::showsTheHeadingUntilTheReceiverFallsSilent()
{
    fixture_t f("vhdInfo");
    QVERIFY(waitFor([&]() { return labelText(f.page, "rawHeadingLabel") != NoDataString; }));
    QCOMPARE(labelText(f.page, "attitudeLabel"), QString("-90.000"));
    f.unit.receiver()->setSituation("headingReports", false);
    QTimer* const timer = find<QTimer>(f.page, "clearTimer");
    QVERIFY(waitFor(
        [&]()
        {
            timer->start(0);
            melvox_test::settle();
            return labelText(f.page, "rawHeadingLabel") == NoDataString;
        }));
    QVERIFY(!timer->isActive());
}

void tst_operatingPositioning::followsANewAlignmentInTheHeading()
{
    fixture_t f("rtkConfiguration");
    choose(f.page, "alignmentCombo", "Longitudinal");
    f.apply();
    f.go("vhdInfo");
    QVERIFY(f.shows("attitudeLabel", "0.000"));
}

void tst_operatingPositioning::losesTheSolutionWithARestart_data()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("warm") << "warmRestartButton";
    QTest::newRow("cold") << "coldRestartButton";
}

void tst_operatingPositioning::losesTheSolutionWithARestart()
{
    QFETCH(QString, button);
    fixture_t f("extendedNavInfo");
    QVERIFY(f.shows("navValidLabel", brel_common_qt::YesString));
    f.go("restart");
    f.tap(find<QAbstractButton>(f.page, button));
    f.go("extendedNavInfo");
    QVERIFY(f.shows("navValidLabel", NoString));
    QCOMPARE(labelText(f.page, "failureCodeLabel"), QString("2:Too few measurements for navigation init"));
}

QTEST_MAIN(tst_operatingPositioning)
#include "tst_operatingPositioning.moc"
