#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/textHelpers.h"
#include "display/actionRecorder.h"
#include "display/dialogHost.h"
#include "display/displayStyle.h"
#include "display/keypad.h"
#include "display/recording.h"
#include "display/screen.h"
#include "journalReplay.h"
#include "link/localLink.h"
#include "link/replayLink.h"
#include "melvox_ui/melvoxUiVirtualPortConfigDialog.h"
#include "melvox_ui/melvoxUiWiFiPasskeyDialog.h"
#include "receiver/receiver.h"
#include "receiver/simClock.h"
#include "support/dialogs.h"
#include "support/folder.h"
#include "support/operator.h"
#include "support/test.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPushButton>
#include <QScrollArea>
#include <QTreeWidget>

using namespace melvox_display;
using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_test::find;
using melvox_test::labelText;
using melvox_test::waitFor;

namespace
{

/** A whole unit with a simulated receiver that writes a journal, and the hands that operate it by mouse and keyboard. */
struct recorded_t
{
    recorded_t(melvox_test::folder_t const& folder, QString const& page)
        : file(folder.path("a.jsonl")), unit(connection_t()), settings(folder.path("display.conf"))
    {
        QString reason;
        if (!recording.open(file, reason))
            qFatal("%s", qPrintable(reason));
        options_t options;
        options.size = QSize(800, 480);
        recording.begin(options, unit, settings);
        window = std::make_unique<displayWindow_t>(allPages(), &unit, &settings, options.size);
        unit.localLink()->setLatency(1);
        unit.start();
        window->showFirstPage(page);
        recording.watch(*window, page);
        window->show();
        window->activateWindow();
        isReady = QTest::qWaitForWindowActive(window.get()) && waitFor([this]() { return isFilled(); });
        melvox_test::settle();
    }

    ~recorded_t() { recording.end(); }

    /** Whatever is asked for last is there. */
    bool isFilled()
    {
        return unit.device()->activePortValid() && unit.device()->portTxRxInfo(MELVOX_PORT_ETH8) &&
               unit.device()->ethernetConfig(MELVOX_ETH_CFG_SOURCE_CABLE) && unit.device()->usbModeValid();
    }

    QWidget* page() const { return window->screen()->page(window->screen()->currentPage()); }

    /** Where this is in the window, once it can be seen. */
    QPoint reach(QWidget* widget, QPoint const& place)
    {
        for (QWidget* above = widget->parentWidget(); above; above = above->parentWidget())
        {
            if (QScrollArea* view = qobject_cast<QScrollArea*>(above))
                view->ensureWidgetVisible(widget);
        }
        melvox_test::settle();
        return widget->mapTo(window.get(), place);
    }

    void tapAt(QWidget* widget, QPoint const& place)
    {
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, reach(widget, place));
        melvox_test::settle();
    }

    void tap(QWidget* widget) { tapAt(widget, widget->rect().center()); }

    void tapIn(QString const& box, QString const& button)
    {
        tap(melvox_test::button(find<QDialogButtonBox>(page(), box), button));
    }

    void openFromMenu(QString const& entry)
    {
        tap(find<QPushButton>(window.get(), "menuButton"));
        tap(find<QPushButton>(window.get(), entry));
    }

    void tapRow(QString const& tree, QString const& name)
    {
        QTreeWidget* const rows = find<QTreeWidget>(page(), tree);
        QVERIFY(waitFor([&]() { return !rows->findItems(name, Qt::MatchExactly).isEmpty(); }));
        QTreeWidgetItem* const row = rows->findItems(name, Qt::MatchExactly).first();
        rows->scrollToItem(row);
        tapAt(rows->viewport(), rows->visualItemRect(row).center());
    }

    void press(QString const& keys)
    {
        for (QString const& name : keys.split(' '))
        {
            QPushButton* found = nullptr;
            for (QPushButton* key : window->screen()->keypad()->findChildren<QPushButton*>("key_" + name))
                found = key->isVisible() ? key : found;
            QVERIFY2(found, qPrintable("no key " + name));
            tap(found);
        }
    }

    /** Down the list with the keyboard: each item on the way is chosen for a moment. */
    void choose(QWidget* root, QString const& name, QString const& item)
    {
        QComboBox* const combo = find<QComboBox>(root, name);
        combo->setFocus();
        QTest::keyClick(combo, Qt::Key_Home);
        for (int i = 0; i < combo->count() && combo->currentText() != item; ++i)
            QTest::keyClick(combo, Qt::Key_Down);
        QCOMPARE(combo->currentText(), item);
    }

    void answer(QMessageBox::StandardButton button)
    {
        QVERIFY(waitFor([]() { return melvox_test::openBox() != nullptr; }));
        tap(melvox_test::openBox()->button(button));
    }

    /** Ends the display, and the journal with it. */
    static QString ended(std::unique_ptr<recorded_t>& recorded)
    {
        QString const file = recorded->file;
        recorded.reset();
        return file;
    }

    QString file;
    recording_t recording;
    unit_t unit;
    uiSettings_t settings;
    std::unique_ptr<displayWindow_t> window;
    bool isReady = false;
};

QList<QJsonObject> linesWith(QByteArray const& journal, QString const& member)
{
    QList<QJsonObject> found;
    for (QByteArray const& line : journal.split('\n'))
    {
        QJsonObject const object = QJsonDocument::fromJson(line).object();
        if (object.contains(member))
            found << object;
    }
    return found;
}

/** The actions as short texts: "tap buttonBox/Apply". */
QStringList actionsIn(QByteArray const& journal)
{
    QStringList texts;
    for (QJsonObject const& action : linesWith(journal, "action"))
    {
        QStringList parts;
        for (char const* member : {"action", "dialog", "widget", "text", "button"})
            parts << action.value(member).toString();
        if (parts.first() == "page")
            parts << action.value("page").toString();
        parts.removeAll("");
        texts << parts.join(" ").simplified();
    }
    return texts;
}

QStringList commandsIn(QByteArray const& journal)
{
    QStringList groups;
    for (QJsonObject const& message : linesWith(journal, "kind"))
    {
        if (message.value("kind").toString() == "command")
            groups << message.value("group").toString();
    }
    return groups;
}

} // namespace

/** A run of the display is written down, and the same run comes out of what was written. */
class tst_recording : public melvox_test::test_t
{
    Q_OBJECT

protected:
    void setUp() override { folder.reset(new melvox_test::folder_t); }
    void tearDown() override { folder.reset(); }

private:
    std::unique_ptr<recorded_t> record(QString const& page) { return std::make_unique<recorded_t>(*folder, page); }
    QByteArray journal() const { return folder->read("a.jsonl"); }
    /** The journal with one text in place of another, played. */
    QStringList replayedWith(QByteArray const& before, QByteArray const& after) const;

    std::unique_ptr<melvox_test::folder_t> folder;

private slots:
    void initTestCase() { applyDisplayStyle(*qApp); }

    void changesTheSolutionAgain();
    void isRefusedAgain();
    void configuresAPortAgain();
    void takesAddressesOverDhcpAgain();
    void leavesDialogsAgain();
    void opensRowsAgain();
    void loadsAFileAgain();
    void endsBeforeThePagesAreTakenDown();
    void answersByKeyboardAgain_data();
    void answersByKeyboardAgain();
    void tellsNotOfAButtonThatTheFingerLeft();
    void showsPositionsInTheUnitsOfThatTime();
    void tellsAPressBeforeWhatItSets();
    void neverWritesThePasskey();
    void tellsWhatTheKeypadChangesAndNotItsKeys();
    void tellsNotWhatThePagesDoThemselves();
    void namesTheLineOfAnActionThatCannotBeDone_data();
    void namesTheLineOfAnActionThatCannotBeDone();
    void refusesAnActionThatIsNone_data();
    void refusesAnActionThatIsNone();
    void refusesAHeaderThatCannotBe();
    void keepsItsHandsOffTheSettingsOfWhoReplays();
    void playsTheReceiverAloneToAnyOperator();
};

QStringList tst_recording::replayedWith(QByteArray const& before, QByteArray const& after) const
{
    QByteArray text = journal();
    if (!text.contains(before))
        return {"the journal does not have: " + before};
    text.replace(before, after);
    QStringList found = melvox_test::replayed(folder->write("b.jsonl", text));
    return found.replaceInStrings(folder->path() + "/", "");
}

void tst_recording::changesTheSolutionAgain()
{
    std::unique_ptr<recorded_t> r = record("solutionControl");
    QVERIFY(r->isReady);
    r->tap(find<QLineEdit>(r->page(), "elevationMaskLineEdit"));
    r->press("1 2 . 5 done");
    r->choose(r->page(), "geoidalModelCombo", find<QComboBox>(r->page(), "geoidalModelCombo")->itemText(1));
    r->tapIn("buttonBox", "Apply");
    QVERIFY(waitFor([&]() { return labelText(r->page(), "elevationMaskLabel") == "12.5"; }));
    QString const file = recorded_t::ended(r);
    QVERIFY(commandsIn(journal()).contains("elevationMask"));
    QCOMPARE(melvox_test::replayed(file).join("\n"), QString());
    // And it would be seen if the pages sent something else.
    QStringList const found = replayedWith("\"group\":\"elevationMask\",\"kind\":\"command\",\"value\":12.5",
                                           "\"group\":\"elevationMask\",\"kind\":\"command\",\"value\":13");
    QCOMPARE(found.size(), 1);
    QVERIFY2(found.first().contains("the command \"elevationMask 13\" was \"elevationMask 12.5\" this time"),
             qPrintable(found.first()));
}

void tst_recording::isRefusedAgain()
{
    std::unique_ptr<recorded_t> r = record("solutionControl");
    QVERIFY(r->isReady);
    r->tap(find<QLineEdit>(r->page(), "elevationMaskLineEdit"));
    r->press("9 9 done");
    r->tapIn("buttonBox", "Apply");
    r->answer(QMessageBox::Ok);
    r->tapIn("buttonBox", "Reset");
    QString const file = recorded_t::ended(r);
    QVERIFY(!commandsIn(journal()).contains("elevationMask"));
    QVERIFY2(actionsIn(journal()).contains("answer errorReport Elevation mask must be 4 - 60 Ok"),
             qPrintable(actionsIn(journal()).join("\n")));
    QCOMPARE(melvox_test::replayed(file).join("\n"), QString());
    // A box with another text is another behaviour.
    QVERIFY(replayedWith("must be 4 - 60", "must be 4 - 70").value(0).contains("the message box says"));
}

void tst_recording::configuresAPortAgain()
{
    std::unique_ptr<recorded_t> r = record("portConfiguration");
    QVERIFY(r->isReady);
    r->openFromMenu("nav_restart");
    r->openFromMenu("nav_portConfiguration");
    r->tapIn("buttonBox", "Virtual");
    r->tapRow("virtualTreeWidget", "ETH3");
    r->tapIn("buttonBox", "Configure Port");
    QWidget* const dialog = r->window->findChild<melvoxUiVirtualPortConfigDialog_t*>();
    QVERIFY(dialog->isVisible());
    r->choose(dialog, "enabledCombo", "Yes");
    r->tap(find<QLineEdit>(dialog, "localPortLineEdit"));
    r->press("6 1 2 3 done");
    r->tap(melvox_test::button(dialog, "OK"));
    QVERIFY(waitFor(
        [&]() {
            return r->unit.receiver()->setting("vcomConfig").toList().value(2).toMap().value("localPort").toInt() ==
                   6123;
        }));
    QString const file = recorded_t::ended(r);
    QStringList const actions = actionsIn(journal());
    QVERIFY2(actions.contains("page portConfiguration"), qPrintable(actions.join("\n")));
    QVERIFY2(actions.contains("tap buttonBox/Virtual"), qPrintable(actions.join("\n")));
    QVERIFY2(actions.contains("select virtualTreeWidget ETH3"), qPrintable(actions.join("\n")));
    QVERIFY2(actions.contains("tap melvoxUiVirtualPortConfigDialog buttonBox/Ok"), qPrintable(actions.join("\n")));
    QVERIFY(commandsIn(journal()).contains("vcomConfig"));
    QCOMPARE(melvox_test::replayed(file).join("\n"), QString());
}

void tst_recording::takesAddressesOverDhcpAgain()
{
    std::unique_ptr<recorded_t> r = record("ethernetConfiguration");
    QVERIFY(r->isReady);
    r->unit.receiver()->setActivePort(r->unit.localLink()->receiverEnd(), 6);
    r->unit.receiver()->clock().setSpeed(10.0);
    r->choose(r->page(), "modeCombo", "DHCP");
    r->tapIn("buttonBox", "Apply");
    r->answer(QMessageBox::Yes);
    QVERIFY(waitFor([&]() { return labelText(r->window.get(), "linkStateLabel") == "LINK INTERRUPTED"; }));
    QVERIFY(waitFor([&]() { return labelText(r->window.get(), "linkStateLabel") == "Connected"; }));
    QVERIFY(waitFor([&]() { return labelText(r->page(), "modeLabel") == "DHCP"; }));
    QString const file = recorded_t::ended(r);
    QCOMPARE(linesWith(journal(), "link").size(), 3);
    QVERIFY(commandsIn(journal()).contains("ethernetConfig"));
    QCOMPARE(melvox_test::replayed(file).join("\n"), QString());
}

void tst_recording::leavesDialogsAgain()
{
    std::unique_ptr<recorded_t> r = record("restart");
    QVERIFY(r->isReady);
    r->openFromMenu("nav_customSat");
    QDialog* const dialog = r->window->screen()->dialogs()->currentDialog();
    QVERIFY(dialog);
    QTest::keyClick(dialog, Qt::Key_Escape);
    QVERIFY(!dialog->isVisible());
    r->openFromMenu("nav_customSat");
    r->tap(find<QPushButton>(r->window.get(), "backButton"));
    QVERIFY(!dialog->isVisible());
    QString const file = recorded_t::ended(r);
    QCOMPARE(actionsIn(journal()), QStringList() << "page restart"
                                                 << "page customSat"
                                                 << "close melvoxUiCustomSatDialog"
                                                 << "page customSat"
                                                 << "back");
    QCOMPARE(melvox_test::replayed(file).join("\n"), QString());
}

void tst_recording::opensRowsAgain()
{
    std::unique_ptr<recorded_t> r = record("portConfiguration");
    QVERIFY(r->isReady);
    r->tapRow("physicalTreeWidget", "COM1");
    QTreeWidget* const rows = find<QTreeWidget>(r->page(), "physicalTreeWidget");
    QTest::keyClick(rows, Qt::Key_Down);
    melvox_test::settle();
    QRect const row = rows->visualItemRect(rows->currentItem());
    QTest::mouseClick(rows->viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
    QTest::mouseDClick(rows->viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
    QVERIFY(r->window->screen()->dialogs()->currentDialog());
    QString const name = rows->currentItem()->text(0);
    QVERIFY(name != "COM1");
    QString const file = recorded_t::ended(r);
    QStringList const actions = actionsIn(journal());
    QCOMPARE(actions.value(1), QString("select physicalTreeWidget COM1"));
    QCOMPARE(actions.value(2), "select physicalTreeWidget " + name);
    QCOMPARE(actions.last(), "open physicalTreeWidget " + name);
    QCOMPARE(melvox_test::replayed(file).join("\n"), QString());
}

void tst_recording::loadsAFileAgain()
{
    QByteArray const secret = "hushqzxv";
    QString const profile = folder->write("profile_1", QByteArray(3000, 'x') + secret);
    melvox_test::currentDir_t const currentDir;
    std::unique_ptr<recorded_t> r = record("settingsProfiles");
    QVERIFY(r->isReady);
    r->openFromMenu("nav_loadProfile");
    QVERIFY(waitFor([]() { return melvox_test::openFileDialog() != nullptr; }));
    melvox_test::chooseFile(profile);
    QVERIFY(waitFor([&]() { return journal().contains("\"group\":\"uploadResult\""); }));
    melvox_test::settle();
    QString const file = recorded_t::ended(r);
    QVERIFY(actionsIn(journal()).contains("chooseFile " + profile));
    QVERIFY(commandsIn(journal()).contains("uploadData"));
    QVERIFY(!journal().contains(secret));
    QCOMPARE(melvox_test::replayed(file).join("\n"), QString());
    // Of another file other bytes are sent; where there is none nothing can be chosen.
    folder->write("profile_1", QByteArray(3000, 'y'));
    QVERIFY(melvox_test::replayed(file).value(0).contains("the command \"uploadData "));
    QFile::remove(profile);
    QVERIFY(melvox_test::replayed(file).value(0).contains("there is no file \"" + profile + "\" on this machine"));
}

void tst_recording::endsBeforeThePagesAreTakenDown()
{
    QString const profile = folder->write("profile_1", QByteArray(300000, 'x'));
    melvox_test::currentDir_t const currentDir;
    std::unique_ptr<recorded_t> r = record("settingsProfiles");
    QVERIFY(r->isReady);
    r->openFromMenu("nav_loadProfile");
    QVERIFY(waitFor([]() { return melvox_test::openFileDialog() != nullptr; }));
    melvox_test::chooseFile(profile);
    // In the midst of the transfer, whose lock a page gives back when it goes.
    QVERIFY(waitFor([&]() { return commandsIn(journal()).contains("uploadData"); }));
    QString const file = recorded_t::ended(r);
    QCOMPARE(commandsIn(journal()).count("portLock"), 1);
    QVERIFY(journal().endsWith("\"end\":\"closed\"}\n"));
    QCOMPARE(melvox_test::replayed(file).join("\n"), QString());
}

void tst_recording::answersByKeyboardAgain_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Space") << int(Qt::Key_Space);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
}

void tst_recording::answersByKeyboardAgain()
{
    QFETCH(int, key);
    std::unique_ptr<recorded_t> r = record("solutionControl");
    QVERIFY(r->isReady);
    r->tap(find<QLineEdit>(r->page(), "elevationMaskLineEdit"));
    r->press("9 9 done");
    r->tapIn("buttonBox", "Apply");
    QVERIFY(waitFor([]() { return melvox_test::openBox() != nullptr; }));
    QTest::keyClick(melvox_test::openBox()->button(QMessageBox::Ok), Qt::Key(key));
    melvox_test::settle();
    QVERIFY(!melvox_test::openBox());
    QString const file = recorded_t::ended(r);
    QCOMPARE(actionsIn(journal()).last(), QString("answer errorReport Elevation mask must be 4 - 60 Ok"));
    QCOMPARE(actionsIn(journal()).count(actionsIn(journal()).last()), 1);
    QCOMPARE(melvox_test::replayed(file).join("\n"), QString());
}

void tst_recording::tellsNotOfAButtonThatTheFingerLeft()
{
    std::unique_ptr<recorded_t> r = record("solutionControl");
    QVERIFY(r->isReady);
    QAbstractButton* const apply = melvox_test::button(find<QDialogButtonBox>(r->page(), "buttonBox"), "Apply");
    QWindow* const window = r->window->windowHandle();
    QPoint const place = r->reach(apply, apply->rect().center());
    QPoint const away(20, 20);
    QTest::mousePress(window, Qt::LeftButton, Qt::NoModifier, place);
    QVERIFY(waitFor([&]() { return apply->isDown(); }));
    QTest::mouseMove(window, away);
    QVERIFY(waitFor([&]() { return !apply->isDown(); }));
    QTest::mouseRelease(window, Qt::LeftButton, Qt::NoModifier, away);
    QTest::keyClick(apply, Qt::Key_Space);
    recorded_t::ended(r);
    // But of the key that presses it afterwards.
    QCOMPARE(actionsIn(journal()), QStringList() << "page solutionControl"
                                                 << "tap buttonBox/Apply");
}

void tst_recording::showsPositionsInTheUnitsOfThatTime()
{
    std::unique_ptr<recorded_t> r = record("displaySettings");
    QVERIFY(r->isReady);
    r->tap(find<QPushButton>(r->page(), "feetButton"));
    r->tap(find<QPushButton>(r->page(), "secondsButton"));
    recorded_t::ended(r);
    folder->write("a.jsonl");
    QFile::remove(folder->path("a.jsonl"));
    // What was set by then is what the next run starts with.
    r = record("displaySettings");
    QVERIFY(r->isReady);
    r->tap(find<QPushButton>(r->page(), "metersButton"));
    r->tap(find<QPushButton>(r->page(), "degreesButton"));
    QString const file = recorded_t::ended(r);
    options_t options;
    options.replayFile = file;
    replay_t replay;
    QString fault;
    QVERIFY2(replay.load(options, allPages(), fault), qPrintable(fault));
    QVERIFY(options.units == DISTANCE_UNIT_US_SURVEY_FOOT);
    QVERIFY(options.format == LATLON_FORMAT_DEGMINSEC);
    QCOMPARE(options.size, QSize(800, 480));
    QCOMPARE(options.page, QString("displaySettings"));
    QCOMPARE(melvox_test::replayed(file).join("\n"), QString());
}

void tst_recording::tellsAPressBeforeWhatItSets()
{
    std::unique_ptr<recorded_t> r = record("solutionControl");
    QVERIFY(r->isReady);
    r->tapIn("buttonBox", "Apply");
    recorded_t::ended(r);
    int const press = journal().indexOf("\"widget\":\"buttonBox/Apply\"");
    QVERIFY(press > 0);
    QVERIFY(press < journal().indexOf("\"kind\":\"command\""));
    QCOMPARE(actionsIn(journal()).count("tap buttonBox/Apply"), 1);
}

void tst_recording::neverWritesThePasskey()
{
    std::unique_ptr<recorded_t> r = record("outputMessages");
    QVERIFY(r->isReady);
    QVERIFY(r->window->screen()->showPage("wiFiPasskey"));
    melvox_test::settle();
    melvoxUiWiFiPasskeyDialog_t* const dialog = r->window->findChild<melvoxUiWiFiPasskeyDialog_t*>();
    QLineEdit* const edit = find<QLineEdit>(dialog, "passkeyEdit");
    r->tap(edit);
    r->press("h u s h");
    QTest::keyClicks(edit, "qzxv");
    QCOMPARE(dialog->passkey(), QString("hushqzxv"));
    // As a host may offer it to its operator.
    edit->setEchoMode(QLineEdit::Normal);
    QTest::keyClicks(edit, "w");
    r->press("done");
    r->tap(melvox_test::button(dialog, "OK"));
    QVERIFY(!dialog->isVisible());
    QString const file = recorded_t::ended(r);
    for (char const* part : {"hus", "qzx", "xvw", "key_"})
        QVERIFY2(!journal().contains(part), part);
    for (QJsonObject const& action : linesWith(journal(), "action"))
        QVERIFY(!action.contains("text"));
    QCOMPARE(actionsIn(journal()).count("type melvoxUiWiFiPasskeyDialog passkeyEdit"), 9);
    // What stands in its place lets the dialog be accepted again.
    QByteArray text = journal();
    text.replace("\"action\":\"type\"", "\"action\":\"type\",\"later\":1");
    int const first = text.indexOf("{\"action\":\"type\"");
    QVERIFY(first > 0);
    QByteArray const at = "\"at\":" + QByteArray::number(linesWith(text, "action").at(1).value("at").toInt());
    text.insert(first, "{\"action\":\"page\"," + at + ",\"page\":\"wiFiPasskey\"}\n");
    QCOMPARE(melvox_test::replayed(folder->write("c.jsonl", text)), QStringList());
}

void tst_recording::tellsWhatTheKeypadChangesAndNotItsKeys()
{
    std::unique_ptr<recorded_t> r = record("solutionControl");
    QVERIFY(r->isReady);
    QLineEdit* const edit = find<QLineEdit>(r->page(), "elevationMaskLineEdit");
    QString const before = edit->displayText();
    r->tap(edit);
    r->press("3");
    r->press("cancel");
    recorded_t::ended(r);
    QStringList const actions = actionsIn(journal());
    QVERIFY2(actions.size() > 3, qPrintable(actions.join("\n")));
    QVERIFY2(actions.at(1).startsWith("type elevationMaskLineEdit 3"), qPrintable(actions.join("\n")));
    QCOMPARE(linesWith(journal(), "action").at(actions.size() - 2).value("text").toString(), before);
    QCOMPARE(actions.last(), QString("leave elevationMaskLineEdit"));
    QVERIFY(!journal().contains("key_"));
}

void tst_recording::tellsNotWhatThePagesDoThemselves()
{
    std::unique_ptr<recorded_t> r = record("solutionControl");
    QVERIFY(r->isReady);
    QVERIFY(r->unit.receiver()->set("elevationMask", 33.0));
    QVERIFY(waitFor([&]() { return labelText(r->page(), "elevationMaskLabel") == "33.0"; }));
    QMetaObject::invokeMethod(r->page(), "reset");
    QVERIFY(r->window->screen()->showPage("portConfiguration"));
    r->window->toggleMonitor();
    recorded_t::ended(r);
    QCOMPARE(actionsIn(journal()), QStringList("page solutionControl"));
}

void tst_recording::namesTheLineOfAnActionThatCannotBeDone_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<QString>("reason");
    QTest::newRow("no widget") << QByteArray(
                                      "\"action\":\"tap\",\"page\":\"solutionControl\",\"widget\":\"buttonBox/Aply\"")
                               << "there is no \"buttonBox/Aply\" on the page \"solutionControl\"; there are: ";
    QTest::newRow("other page") << QByteArray("\"action\":\"tap\",\"page\":\"restart\",\"widget\":\"x\"")
                                << "the page \"restart\" is not shown, but \"solutionControl\"";
    QTest::newRow("no dialog")
        << QByteArray("\"action\":\"tap\",\"page\":\"solutionControl\",\"dialog\":\"other\",\"widget\":\"x\"")
        << "the dialog \"other\" is not shown";
    QTest::newRow("no button") << QByteArray("\"action\":\"tap\",\"page\":\"solutionControl\",\"widget\":"
                                             "\"elevationMaskLabel\"")
                               << "\"elevationMaskLabel\" is no button";
    QTest::newRow("disabled") << QByteArray("\"action\":\"type\",\"page\":\"solutionControl\",\"widget\":"
                                            "\"elevationMaskLineEdit\",\"text\":\"5\"")
                              << "\"elevationMaskLineEdit\" on the page \"solutionControl\" is disabled";
    QTest::newRow("no box") << QByteArray(
                                   "\"action\":\"answer\",\"page\":\"restart\",\"text\":\"Sure?\",\"button\":\"Yes\"")
                            << "there is no message box that says \"Sure?\"";
    QTest::newRow("no way back") << QByteArray("\"action\":\"back\",\"page\":\"restart\"")
                                 << "no dialog is shown to go back from";
    QTest::newRow("not to be closed") << QByteArray("\"action\":\"close\",\"page\":\"restart\",\"dialog\":\"x\"")
                                      << "the dialog \"x\" is not shown";
    QTest::newRow("no file dialog") << QByteArray("\"action\":\"chooseFile\",\"page\":\"restart\",\"text\":\"/a\"")
                                    << "no file dialog is open";
}

void tst_recording::namesTheLineOfAnActionThatCannotBeDone()
{
    QFETCH(QByteArray, action);
    QFETCH(QString, reason);
    QString const file =
        folder->write("d.jsonl", "{\"journal\":\"melvox\",\"version\":1,\"size\":\"800x480\",\"units\":\"m\","
                                 "\"format\":\"deg\"}\n"
                                 "{\"at\":0,\"action\":\"page\",\"page\":\"solutionControl\"}\n"
                                 "{\"at\":1," +
                                     action + "}\n");
    QStringList const found = melvox_test::replayed(file);
    QCOMPARE(found.size(), 1);
    QVERIFY2(found.first().startsWith(file + ":3: " + reason), qPrintable(found.first()));
}

void tst_recording::refusesAnActionThatIsNone_data()
{
    QTest::addColumn<QByteArray>("action");
    QTest::addColumn<QString>("reason");
    QTest::newRow("kind") << QByteArray("\"action\":\"tapp\",\"page\":\"restart\",\"widget\":\"x\"")
                          << "there is no action \"tapp\"; the actions are: page, tap,";
    QTest::newRow("page") << QByteArray("\"action\":\"page\",\"page\":\"restat\"")
                          << "there is no page \"restat\"; the pages are: solutionControl,";
    QTest::newRow("no widget") << QByteArray("\"action\":\"tap\",\"page\":\"restart\"") << "\"widget\" must be a text";
    QTest::newRow("text") << QByteArray("\"action\":\"type\",\"page\":\"restart\",\"widget\":\"x\",\"text\":5")
                          << "\"text\" must be a text";
    QTest::newRow("row")
        << QByteArray("\"action\":\"select\",\"page\":\"restart\",\"widget\":\"x\",\"text\":\"\",\"row\":[-1]")
        << "\"row\" must be a list of row numbers";
}

void tst_recording::refusesAnActionThatIsNone()
{
    QFETCH(QByteArray, action);
    QFETCH(QString, reason);
    options_t options;
    options.replayFile = folder->write("d.jsonl", "{\"journal\":\"melvox\",\"version\":1,\"size\":\"800x480\","
                                                  "\"units\":\"m\",\"format\":\"deg\"}\n{\"at\":0," +
                                                      action + "}\n");
    replay_t replay;
    QString fault;
    QVERIFY(!replay.load(options, allPages(), fault));
    QVERIFY2(fault.startsWith(options.replayFile + ":2: " + reason), qPrintable(fault));
}

void tst_recording::refusesAHeaderThatCannotBe()
{
    options_t options;
    options.replayFile = folder->write("d.jsonl", "{\"journal\":\"melvox\",\"version\":1,\"size\":\"big\"}\n");
    replay_t replay;
    QString fault;
    QVERIFY(!replay.load(options, allPages(), fault));
    QVERIFY2(fault.startsWith(options.replayFile + ":1: --size takes"), qPrintable(fault));
}

void tst_recording::keepsItsHandsOffTheSettingsOfWhoReplays()
{
    folder->write("display.conf", "[pages]\noutputMessages\\show_dtm_warning=false\npsk=hush\n");
    std::unique_ptr<recorded_t> r = record("restart");
    QVERIFY(r->isReady);
    options_t options;
    options.replayFile = recorded_t::ended(r);
    QVERIFY(!journal().contains("hush"));
    replay_t replay;
    QString fault;
    QVERIFY2(replay.load(options, allPages(), fault), qPrintable(fault));
    QVERIFY(options.settingsFile != folder->path("display.conf"));
    QVERIFY(uiSettings_t(options.settingsFile).contents().contains("outputMessages\\show_dtm_warning=false"));
}

void tst_recording::playsTheReceiverAloneToAnyOperator()
{
    std::unique_ptr<recorded_t> r = record("solutionControl");
    QVERIFY(r->isReady);
    double const mask = r->unit.device()->elevationMask();
    r->tapIn("buttonBox", "Apply");
    options_t options;
    options.replayFile = recorded_t::ended(r);
    options.connection.replaySpeed = 100.0;
    replay_t replay;
    QString fault;
    QVERIFY2(replay.load(options, allPages(), fault), qPrintable(fault));
    unit_t unit(options.connection);
    uiSettings_t settings(options.settingsFile);
    displayWindow_t window(allPages(), &unit, &settings, options.size);
    replay.play(window, unit);
    unit.start();
    window.showFirstPage(options.page);
    window.show();
    QVERIFY(waitFor([&]() { return replay.isOver(); }));
    QCOMPARE(unit.device()->elevationMask(), mask);
    QCOMPARE(replay.differences(), QStringList());
    QVERIFY(unit.description().startsWith("journal "));
    for (melvox_link::message_t const& message : unit.replay()->sent())
        QVERIFY(message.kind != melvox_link::message_t::COMMAND);
}

QTEST_MAIN(tst_recording)
#include "tst_recording.moc"
