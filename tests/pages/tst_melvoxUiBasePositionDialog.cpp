#include "melvox_ui/melvoxUiBasePositionDialog.h"

#include "brel_common_qt_gui/distanceEdit.h"
#include "brel_common_qt_gui/guiSettings.h"
#include "brel_common_qt_gui/latitudeEdit.h"
#include "brel_common_qt_gui/longitudeEdit.h"
#include "support/pageTest.h"

using namespace brel_common_qt;
using namespace brel_common_qt_gui;

namespace
{

double const RADIANS_PER_DEGREE = 3.14159265358979323846 / 180;

} // namespace

class tst_melvoxUiBasePositionDialog : public melvox_test::pageTest_t
{
    Q_OBJECT

protected:
    void setUp() override;
    void tearDown() override;

private:
    melvoxUiBasePositionDialog_t* dialog;

    void reportPosition(double latitudeDegrees, double longitudeDegrees, double height);
    QVariantMap sentPosition() const;

private slots:
    void isTitledAfterThePosition();
    void showsZerosWhileNoPositionIsKnown();
    void sendsZerosWhileNoPositionIsKnown();
    void showsAPositionThatWasKnownBefore();
    void leavesTheEditsAloneUntilReset();
    void resetPutsAwayWhatWasTyped();
    void resetShowsZerosForWhatIsNoPosition();
    void sendsWhatWasTyped();
    void sendsBackExactlyWhatItGot();
    void takesHeightsInTheOperatorsUnit();
    void changesWithTheOperatorsUnitAndFormat();
    void closesAfterSending();
    void closesWithoutSendingOnCancel();
    void keepsTheKeypadPromptsOfItsEdits();
    void titlesEachEdit();
};

void tst_melvoxUiBasePositionDialog::setUp()
{
    pageTest_t::setUp();
    dialog = new melvoxUiBasePositionDialog_t(device, 0);
}

void tst_melvoxUiBasePositionDialog::tearDown()
{
    delete dialog;
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_METER);
    guiSettings_t::get().setLatLonFormat(LATLON_FORMAT_DEGREE);
    pageTest_t::tearDown();
}

void tst_melvoxUiBasePositionDialog::reportPosition(double latitudeDegrees, double longitudeDegrees, double height)
{
    receiver->report("basePosition", map("latitude", latitudeDegrees * RADIANS_PER_DEGREE, "longitude",
                                         longitudeDegrees * RADIANS_PER_DEGREE, "height", height));
}

QVariantMap tst_melvoxUiBasePositionDialog::sentPosition() const
{
    for (melvox_link::message_t const& message : receiver->messages())
    {
        if (message.kind == melvox_link::message_t::COMMAND && message.group == "basePosition")
            return message.value.toMap();
    }
    return QVariantMap();
}

void tst_melvoxUiBasePositionDialog::isTitledAfterThePosition()
{
    QCOMPARE(dialog->windowTitle(), QString("MELVOX Base Station Position"));
}

void tst_melvoxUiBasePositionDialog::showsZerosWhileNoPositionIsKnown()
{
    QCOMPARE(find<latitudeEdit_t>(dialog, "latitudeEdit")->degrees(), 0.0);
    QCOMPARE(find<longitudeEdit_t>(dialog, "longitudeEdit")->degrees(), 0.0);
    QCOMPARE(find<distanceEdit_t>(dialog, "heightEdit")->meters(), 0.0);
    QCOMPARE(editText(dialog, "latitudeDegreesLineEdit").toDouble(), 0.0);
    QCOMPARE(editText(dialog, "distanceLineEdit").toDouble(), 0.0);
}

void tst_melvoxUiBasePositionDialog::sendsZerosWhileNoPositionIsKnown()
{
    dialog->reset();
    tap(dialog, "Apply");
    QCOMPARE(receiver->commands(), QStringList("basePosition height=0 latitude=0 longitude=0"));
}

void tst_melvoxUiBasePositionDialog::showsAPositionThatWasKnownBefore()
{
    reportPosition(48.5, -11.25, 520.75);
    melvoxUiBasePositionDialog_t late(device, 0);
    QCOMPARE(find<latitudeEdit_t>(&late, "latitudeEdit")->degrees(), 48.5);
    QCOMPARE(find<longitudeEdit_t>(&late, "longitudeEdit")->degrees(), -11.25);
    QCOMPARE(find<distanceEdit_t>(&late, "heightEdit")->meters(), 520.75);
    QCOMPARE(editText(&late, "latitudeDegreesLineEdit").toDouble(), 48.5);
    QCOMPARE(editText(&late, "longitudeDegreesLineEdit").toDouble(), 11.25);
    QCOMPARE(chosen(&late, "longitudeSideCombo"), QString("W"));
    QCOMPARE(editText(&late, "distanceLineEdit").toDouble(), 520.75);
}

void tst_melvoxUiBasePositionDialog::leavesTheEditsAloneUntilReset()
{
    type(dialog, "distanceLineEdit", "77");
    reportPosition(48.5, -11.25, 520.75);
    QCOMPARE(find<distanceEdit_t>(dialog, "heightEdit")->meters(), 77.0);
    QCOMPARE(find<latitudeEdit_t>(dialog, "latitudeEdit")->degrees(), 0.0);
}

void tst_melvoxUiBasePositionDialog::resetPutsAwayWhatWasTyped()
{
    reportPosition(48.5, -11.25, 520.75);
    dialog->reset();
    type(dialog, "latitudeDegreesLineEdit", "1");
    choose(dialog, "latitudeSideCombo", "S");
    type(dialog, "longitudeDegreesLineEdit", "2");
    type(dialog, "distanceLineEdit", "3");
    tap(dialog, "Reset");
    QCOMPARE(find<latitudeEdit_t>(dialog, "latitudeEdit")->degrees(), 48.5);
    QCOMPARE(find<longitudeEdit_t>(dialog, "longitudeEdit")->degrees(), -11.25);
    QCOMPARE(find<distanceEdit_t>(dialog, "heightEdit")->meters(), 520.75);
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiBasePositionDialog::resetShowsZerosForWhatIsNoPosition()
{
    type(dialog, "latitudeDegreesLineEdit", "1");
    type(dialog, "longitudeDegreesLineEdit", "2");
    type(dialog, "distanceLineEdit", "3");
    receiver->report("basePosition", map("latitude", 2.0, "longitude", 7.0, "height", 1e12));
    tap(dialog, "Reset");
    QCOMPARE(find<latitudeEdit_t>(dialog, "latitudeEdit")->degrees(), 0.0);
    QCOMPARE(find<longitudeEdit_t>(dialog, "longitudeEdit")->degrees(), 0.0);
    QCOMPARE(find<distanceEdit_t>(dialog, "heightEdit")->meters(), 0.0);
}

void tst_melvoxUiBasePositionDialog::sendsWhatWasTyped()
{
    reportPosition(48.5, -11.25, 520.75);
    dialog->reset();
    type(dialog, "latitudeDegreesLineEdit", "36.5");
    choose(dialog, "latitudeSideCombo", "S");
    type(dialog, "longitudeDegreesLineEdit", "120.125");
    choose(dialog, "longitudeSideCombo", "E");
    type(dialog, "distanceLineEdit", "-12.5");
    tap(dialog, "Apply");
    QCOMPARE(receiver->commands().size(), 1);
    QCOMPARE(sentPosition().value("latitude").toDouble(), -36.5 * RADIANS_PER_DEGREE);
    QCOMPARE(sentPosition().value("longitude").toDouble(), 120.125 * RADIANS_PER_DEGREE);
    QCOMPARE(sentPosition().value("height").toDouble(), -12.5);
}

void tst_melvoxUiBasePositionDialog::sendsBackExactlyWhatItGot()
{
    receiver->report("basePosition",
                     map("latitude", -0.92734567890123, "longitude", 2.12934567890123, "height", 1234.5678901));
    dialog->reset();
    tap(dialog, "Apply");
    // To within the width of an atom on the ground.
    QVERIFY(qAbs(sentPosition().value("latitude").toDouble() + 0.92734567890123) < 1e-15);
    QVERIFY(qAbs(sentPosition().value("longitude").toDouble() - 2.12934567890123) < 1e-15);
    QCOMPARE(sentPosition().value("height").toDouble(), 1234.5678901);
}

void tst_melvoxUiBasePositionDialog::takesHeightsInTheOperatorsUnit()
{
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_US_SURVEY_FOOT);
    reportPosition(0, 0, 1200);
    dialog->reset();
    QCOMPARE(editText(dialog, "distanceLineEdit").toDouble(), 3937.0);
    type(dialog, "distanceLineEdit", "7874");
    tap(dialog, "Apply");
    QCOMPARE(sentPosition().value("height").toDouble(), 2400.0);
}

void tst_melvoxUiBasePositionDialog::changesWithTheOperatorsUnitAndFormat()
{
    reportPosition(48.5, -11.25, 1200);
    dialog->reset();
    guiSettings_t::get().setDistanceUnit(DISTANCE_UNIT_US_SURVEY_FOOT);
    guiSettings_t::get().setLatLonFormat(LATLON_FORMAT_DEGMIN);
    QCOMPARE(editText(dialog, "distanceLineEdit").toDouble(), 3937.0);
    QCOMPARE(editText(dialog, "latitudeDegreesLineEdit").toDouble(), 48.0);
    QCOMPARE(editText(dialog, "latitudeMinutesLineEdit").toDouble(), 30.0);
    QCOMPARE(editText(dialog, "longitudeMinutesLineEdit").toDouble(), 15.0);
    tap(dialog, "Apply");
    QCOMPARE(sentPosition().value("height").toDouble(), 1200.0);
}

void tst_melvoxUiBasePositionDialog::closesAfterSending()
{
    dialog->show();
    tap(dialog, "Apply");
    QVERIFY(!dialog->isVisible());
    QCOMPARE(receiver->commands().size(), 1);
}

void tst_melvoxUiBasePositionDialog::closesWithoutSendingOnCancel()
{
    dialog->show();
    type(dialog, "distanceLineEdit", "3");
    tap(dialog, "Cancel");
    QVERIFY(!dialog->isVisible());
    QVERIFY(receiver->sent().isEmpty());
}

void tst_melvoxUiBasePositionDialog::keepsTheKeypadPromptsOfItsEdits()
{
    QCOMPARE(find<QLineEdit>(dialog, "latitudeDegreesLineEdit")->property("keypadPrompt").toString(),
             QString("Base Station Latitude"));
    QCOMPARE(find<QLineEdit>(dialog, "longitudeDegreesLineEdit")->property("keypadPrompt").toString(),
             QString("Base Station Longitude"));
    QCOMPARE(find<QLineEdit>(dialog, "distanceLineEdit")->property("keypadPrompt").toString(),
             QString("Base Station Height"));
}

void tst_melvoxUiBasePositionDialog::titlesEachEdit()
{
    QCOMPARE(labelText(dialog, "latitudeTitleLabel"), QString("Latitude:"));
    QCOMPARE(labelText(dialog, "longitudeTitleLabel"), QString("Longitude:"));
    QCOMPARE(labelText(dialog, "heightTitleLabel"), QString("Height:"));
    find<QWidget>(dialog, "controlsGroup");
    QVERIFY(find<QWidget>(dialog, "buttonsGroup")->isAncestorOf(melvox_test::button(dialog, "Apply")));
}

QTEST_MAIN(tst_melvoxUiBasePositionDialog)
#include "tst_melvoxUiBasePositionDialog.moc"
