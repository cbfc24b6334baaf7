#include "allPages.h"
#include "brel_common_qt/kitPort.h"
#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt_gui/guiSettings.h"
#include "contrast.h"
#include "display/dialogHost.h"
#include "display/displayStyle.h"
#include "display/keypad.h"
#include "display/screen.h"
#include "display/statusStrip.h"
#include "display/uiSettings.h"
#include "finger.h"
#include "link/scriptedLink.h"
#include "support/dialogs.h"
#include "support/everything.h"
#include "support/pageChecks.h"
#include "support/test.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <functional>

using namespace brel_common_qt;
using namespace melvox_display;
using melvox_test::nameOf;

namespace
{

QSize const SMALL(800, 480);
QSize const WIDE(1024, 600);

/** Where pictures of all that is looked at are to go; none are made when it is not set. */
char const* const PICTURES = "MELVOX_PROOF_PICTURES";
/** One of the sizes; both when it is not set. */
char const* const ONE_SIZE = "MELVOX_PROOF_SIZE";

/** One row does not look like a list. */
int const ROWS_IN_SIGHT = 2;

/** Longer than anything takes on a busy machine. */
int const SLOW_MS = 10000;

/** How often what hides behind a choice is looked for. */
int const PASSES = 4;

enum fill_t
{
    SILENT,
    FILLED,
    LONGEST
};
QStringList const FILL_NAMES = {"silent", "filled", "longest"};

struct preferences_t
{
    char const* name;
    distanceUnit_t unit;
    latLonFormat_t format;
};

preferences_t const PREFERENCES[] = {
    {"m deg", DISTANCE_UNIT_METER, LATLON_FORMAT_DEGREE},
    {"m dm", DISTANCE_UNIT_METER, LATLON_FORMAT_DEGMIN},
    {"m dms", DISTANCE_UNIT_METER, LATLON_FORMAT_DEGMINSEC},
    {"ft deg", DISTANCE_UNIT_US_SURVEY_FOOT, LATLON_FORMAT_DEGREE},
    {"ft dm", DISTANCE_UNIT_US_SURVEY_FOOT, LATLON_FORMAT_DEGMIN},
    {"ft dms", DISTANCE_UNIT_US_SURVEY_FOOT, LATLON_FORMAT_DEGMINSEC},
};

/** Dialogs that show what was chosen on their page: how an operator gets there. */
struct way_t
{
    char const* page;
    char const* firstButton; //!< empty: none
    char const* tree;
    int row;
    char const* button;
};

way_t const WAYS[] = {
    {"portConfiguration", "", "physicalTreeWidget", 1, "Configure Port"},
    {"portConfiguration", "Virtual", "virtualTreeWidget", 0, "Configure Port"},
    {"antennaIdentification", "", "antennaTree", 0, "Configure"},
    {"correctionsReceiver", "", "", 0, "selectSatButton"},
    {"differentialConfiguration", "", "", 0, "configureBasePositionButton"},
};

QString sizeName(QSize const& size)
{
    return QString("%1x%2").arg(size.width()).arg(size.height());
}

QList<QSize> sizes()
{
    QString const only = QString::fromLocal8Bit(qgetenv(ONE_SIZE));
    QList<QSize> chosen;
    for (QSize const& size : {SMALL, WIDE})
    {
        if (only.isEmpty() || only == sizeName(size))
            chosen << size;
    }
    return chosen;
}

void call(QObject* object, char const* slot)
{
    if (object->metaObject()->indexOfSlot(QByteArray(slot) + "()") >= 0)
        QMetaObject::invokeMethod(object, slot);
}

/** A page or dialog as its class is called, a message box as it calls itself. */
QString nameOfDialog(QDialog const* dialog)
{
    return dialog->objectName().isEmpty() ? dialog->windowTitle() : dialog->objectName();
}

/** What is looked at: what it is called, the page or dialog itself, and what can be seen now. */
struct sight_t
{
    QString name;
    QWidget* content;
    QWidget* root;
};

typedef std::function<void(sight_t const&)> look_t;

/** The screen of a display on a receiver that the test plays. */
class stage_t
{
public:
    explicit stage_t(QSize const& size)
        : device(melvox_kit::createPort(&link, melvox_kit::LINK_OTHER)), settings(folder.filePath("display.conf")),
          screen(allPages(), &device, &settings)
    {
        usb.plugIn("A drive with a rather long name");
        usb.plugIn("STICK");
        screen.strip()->setSimulated(true);
        screen.strip()->setLink("Simulated receiver", linkState_t::CONNECTED);
        screen.resize(size);
        // Lists open within the platform's screen, which may be the smaller one; pages are at the right.
        screen.move(qMin(0, QGuiApplication::primaryScreen()->geometry().width() - size.width()), 0);
        screen.show();
        screen.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&screen));
    }

    void prefer(preferences_t const& preferences)
    {
        brel_common_qt_gui::guiSettings_t::get().setDistanceUnit(preferences.unit);
        brel_common_qt_gui::guiSettings_t::get().setLatLonFormat(preferences.format);
    }

    void fill(QString const& page, fill_t fill)
    {
        screen.showPage(page);
        if (fill == FILLED)
            melvox_test::reportEverything(&link);
        if (fill == LONGEST)
            melvox_test::reportTheLongest(&link);
        call(screen.page(page), "reset");
        melvox_test::settle();
    }

    /** The page, each of its parts, and each of its dialogs in turn. */
    void visit(QString const& page, look_t const& look);

    QTemporaryDir folder;
    melvox_test::usb_t usb;
    melvox_link::scriptedLink_t link;
    remoteMelvoxDevice_t device;
    uiSettings_t settings;
    screen_t screen;

private:
    QWidget* current() const;
    void visitParts(QString const& name, look_t const& look);
    void visitDialog(QString const& page, QDialog* dialog, look_t const& look);
    bool go(way_t const& way);
    QList<QPointer<QDialog>> hiddenDialogs() const;
    void closeAll();
};

QWidget* stage_t::current() const
{
    if (QDialog* card = screen.dialogs()->currentCard())
        return card;
    if (QDialog* dialog = screen.dialogs()->currentDialog())
        return dialog;
    return screen.page(screen.currentPage());
}

/** A page may have its groups behind one another. */
void stage_t::visitParts(QString const& name, look_t const& look)
{
    QWidget* const content = current();
    QDialog* const card = screen.dialogs()->currentCard();
    QWidget* root = &screen;
    for (QWidget* above = card; above; above = above->parentWidget())
        root = above->objectName() == "card" ? above : root;
    QList<QStackedWidget*> const stacks = content->findChildren<QStackedWidget*>();
    if (stacks.isEmpty())
        look({name, content, root});
    for (QStackedWidget* stack : stacks)
    {
        int const before = stack->currentIndex();
        for (int i = 0; i < stack->count(); ++i)
        {
            stack->setCurrentIndex(i);
            melvox_test::settle();
            look({name + ", " + stack->widget(i)->objectName(), content, root});
        }
        stack->setCurrentIndex(before);
    }
}

void stage_t::closeAll()
{
    while (QDialog* card = screen.dialogs()->currentCard())
        card->hide(), melvox_test::settle();
    while (QDialog* dialog = screen.dialogs()->currentDialog())
        dialog->hide(), melvox_test::settle();
}

QList<QPointer<QDialog>> stage_t::hiddenDialogs() const
{
    QList<QPointer<QDialog>> dialogs;
    for (QWidget* widget : QApplication::allWidgets())
    {
        QDialog* const dialog = qobject_cast<QDialog*>(widget);
        if (dialog && dialog->isHidden() && !qobject_cast<QFileDialog*>(dialog))
            dialogs << dialog;
    }
    return dialogs;
}

void stage_t::visitDialog(QString const& page, QDialog* dialog, look_t const& look)
{
    call(dialog, "reset");
    call(dialog, "setStateFromDevice");
    if (!dialog->isVisible())
        screen.dialogs()->showDialog(dialog);
    melvox_test::settle();
    visitParts(page + ", " + nameOfDialog(dialog), look);
    closeAll();
}

/** False when there is nothing to choose: the receiver was silent. */
bool stage_t::go(way_t const& way)
{
    QWidget* const page = screen.page(way.page);
    if (*way.firstButton)
        melvox_test::tap(page, way.firstButton);
    QTreeWidget* const tree = *way.tree ? melvox_test::find<QTreeWidget>(page, way.tree) : nullptr;
    if (tree && tree->topLevelItemCount() <= way.row)
        return false;
    if (tree)
        tree->setCurrentItem(tree->topLevelItem(way.row));
    QAbstractButton* const button = melvox_test::button(page, way.button);
    button->click();
    melvox_test::settle();
    return screen.dialogs()->currentDialog() != nullptr;
}

void stage_t::visit(QString const& page, look_t const& look)
{
    screen.showPage(page);
    melvox_test::settle();
    QList<QPointer<QDialog>> seen;
    seen << screen.dialogs()->currentDialog();
    visitParts(page, look);
    closeAll();
    for (way_t const& way : WAYS)
    {
        if (page != way.page || !go(way))
            continue;
        seen << screen.dialogs()->currentDialog();
        visitDialog(page, screen.dialogs()->currentDialog(), look);
    }
    for (QPointer<QDialog> const& dialog : hiddenDialogs())
    {
        if (dialog && !seen.contains(dialog))
            visitDialog(page, dialog, look);
    }
}

/** An operator with nothing but a finger, who tries all that can be changed. */
class operator_t
{
public:
    operator_t(stage_t& stage, sight_t const& sight) : m_screen(stage.screen), m_content(sight.content) {}

    /** What he could not do. */
    QStringList tryAll();

private:
    void tryOnce();
    QString tryWidget(QWidget* widget);
    QString enter(QLineEdit* edit);
    QString enterInto(QLineEdit* edit);
    QString choose(QComboBox* combo);
    QString toggle(QAbstractButton* box);
    QString select(QTreeWidget* tree);

    screen_t& m_screen;
    QPointer<QWidget> m_content;
    QSet<QWidget*> m_done;
    QStringList m_faults;
};

/** What one key makes of a text. */
QString otherKey(QString const& text)
{
    return text.startsWith('1') ? "2" : "1";
}

QString operator_t::enterInto(QLineEdit* edit)
{
    QString const before = edit->text();
    int const length = edit->displayText().size();
    QString const mask = edit->inputMask();
    QWidget* const numericPad = m_screen.keypad()->findChild<QWidget*>("numericPad");
    bool const numeric = numericPad && numericPad->isVisible();
    QString const keys = numeric ? otherKey(before) + " done" : "clear a b done";
    QString const fault = melvox_test::pressKeys(m_screen.keypad(), keys);
    if (!fault.isEmpty())
        return fault;
    if (m_screen.keypad()->isOpen())
        return "the keypad does not close";
    if (edit->text() == before)
        return "the text stays \"" + before + "\"";
    if (edit->inputMask() != mask || (!mask.isEmpty() && edit->displayText().size() != length))
        return "the text no longer fits its mask: \"" + edit->displayText() + "\"";
    return QString();
}

QString operator_t::enter(QLineEdit* edit)
{
    QString fault = melvox_test::touch(edit);
    if (!fault.isEmpty())
        return fault;
    if (m_screen.keypad()->edit() != edit)
        return nameOf(edit) + ": no keypad comes";
    melvox_test::settle();
    if (edit->visibleRegion().boundingRect().height() < edit->height())
        return nameOf(edit) + " is not in sight above the keypad";
    fault = enterInto(edit);
    return fault.isEmpty() ? fault : nameOf(edit) + ": " + fault;
}

QString operator_t::choose(QComboBox* combo)
{
    if (combo->count() < 2)
        return QString();
    int const wanted = (combo->currentIndex() + 1) % combo->count();
    // A list that is longer in opening than a double click would take the finger's rising for a choice.
    int const interval = QApplication::doubleClickInterval();
    QApplication::setDoubleClickInterval(SLOW_MS);
    QString const fault = melvox_test::touch(combo);
    QApplication::setDoubleClickInterval(interval);
    QAbstractItemView* const list = combo->view();
    if (!fault.isEmpty() || !list->isVisible())
        return nameOf(combo) + ": no list opens " + fault;
    list->scrollTo(list->model()->index(wanted, 0));
    QRect const item = list->visualRect(list->model()->index(wanted, 0));
    QPoint const place = list->viewport()->mapTo(list->window(), item.center());
    QTest::mouseMove(list->window()->windowHandle(), place);
    QTest::mouseClick(list->window()->windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
    if (item.height() < melvox_test::TOUCH_HEIGHT)
        return nameOf(combo) + ": a line of its list is too low for a finger";
    if (!melvox_test::waitFor([&]() { return !list->isVisible(); }) || combo->currentIndex() != wanted)
        return nameOf(combo) + " does not take what is chosen";
    return QString();
}

QString operator_t::toggle(QAbstractButton* box)
{
    bool const before = box->isChecked();
    QString const fault = melvox_test::touch(box, QPoint(melvox_test::TOUCH_HEIGHT / 2, box->height() / 2));
    if (!fault.isEmpty())
        return fault;
    bool const isRadio = qobject_cast<QRadioButton*>(box);
    bool const changed = isRadio ? box->isChecked() : box->isChecked() != before;
    return changed ? QString() : nameOf(box) + " does not change when it is touched";
}

QString operator_t::select(QTreeWidget* tree)
{
    QTreeWidgetItem* const first = tree->topLevelItem(0);
    if (!first || tree->selectionMode() == QAbstractItemView::NoSelection)
        return QString();
    tree->scrollToItem(first);
    QPoint const place = tree->viewport()->mapTo(tree, tree->visualItemRect(first).center());
    QString const fault = melvox_test::touch(tree, QPoint(melvox_test::TOUCH_HEIGHT, place.y()));
    if (!fault.isEmpty())
        return fault;
    return melvox_test::waitFor([&]() { return first->isSelected(); }) ? QString() : nameOf(tree) + " selects no row";
}

QString operator_t::tryWidget(QWidget* widget)
{
    if (QLineEdit* edit = qobject_cast<QLineEdit*>(widget))
        return edit->isReadOnly() ? QString() : enter(edit);
    if (QComboBox* combo = qobject_cast<QComboBox*>(widget))
        return choose(combo);
    if (qobject_cast<QCheckBox*>(widget) || qobject_cast<QRadioButton*>(widget))
        return toggle(static_cast<QAbstractButton*>(widget));
    if (QTreeWidget* tree = qobject_cast<QTreeWidget*>(widget))
        return select(tree);
    return melvox_test::bringInSight(widget, widget->rect().center());
}

void operator_t::tryOnce()
{
    QList<QPointer<QWidget>> widgets;
    for (QWidget* widget : m_content->findChildren<QWidget*>())
    {
        if (!melvox_test::isInner(widget) && (melvox_test::isEditor(widget) || qobject_cast<QTreeWidget*>(widget)))
            widgets << widget;
    }
    for (QPointer<QWidget> const& widget : widgets)
    {
        bool const isChoice = qobject_cast<QComboBox*>(widget) || qobject_cast<QCheckBox*>(widget);
        if (!widget || !widget->isVisible() || !widget->isEnabled() || (m_done.contains(widget) && !isChoice))
            continue;
        m_done << widget;
        QString const fault = tryWidget(widget);
        if (!fault.isEmpty())
            m_faults << fault;
        if (melvox_test::openBox())
            melvox_test::closeBox();
    }
}

/** What is disabled may be waiting for a choice, so all are gone through several times. */
QStringList operator_t::tryAll()
{
    for (int pass = 0; pass < PASSES && m_faults.isEmpty() && m_content; ++pass)
        tryOnce();
    for (QLineEdit* edit : m_content->findChildren<QLineEdit*>())
    {
        if (edit->isVisible() && !edit->isReadOnly() && !melvox_test::isInner(edit) && !m_done.contains(edit))
            m_faults << nameOf(edit) + " can never be edited";
    }
    return m_faults;
}

/** Everything that Tab comes by, in its order. */
QList<QWidget*> tabbed(QWidget* start)
{
    QList<QWidget*> widgets;
    start->setFocus(Qt::TabFocusReason);
    for (QWidget* now = QApplication::focusWidget(); now && !widgets.contains(now); now = QApplication::focusWidget())
    {
        widgets << now;
        QTest::keyClick(now, Qt::Key_Tab);
    }
    return widgets;
}

QStringList wrongPlaces(QWidget* root)
{
    return melvox_test::cutOff(root) + melvox_test::tooShort(root, ROWS_IN_SIGHT) + melvox_test::overlapping(root) +
           melvox_test::tooWide(root);
}

/** Of buttons that exclude one another Tab comes by one only. */
bool isReachedByArrows(QWidget* editor)
{
    QAbstractButton const* const button = qobject_cast<QAbstractButton*>(editor);
    bool const excludes = button && (button->autoExclusive() || (button->group() && button->group()->exclusive()));
    return excludes && !button->isChecked();
}

QStringList notReachedByTab(QWidget* content)
{
    QList<QWidget*> editors;
    for (QWidget* widget : content->findChildren<QWidget*>())
    {
        if (melvox_test::isEditor(widget) && !melvox_test::isInner(widget) && widget->isVisible() &&
            widget->isEnabled())
            editors << widget;
    }
    QList<QWidget*> const reached = editors.isEmpty() ? editors : tabbed(editors.first());
    QStringList faults;
    for (QWidget* editor : editors)
    {
        if (!reached.contains(editor) && !isReachedByArrows(editor))
            faults << nameOf(editor) + " is not reached";
    }
    return faults;
}

} // namespace

/** Every page and dialog as the operator has it before him: styled, on both screens, silent, filled and with the longest
 *  values, in each unit and position format. */
class tst_proof : public melvox_test::test_t
{
    Q_OBJECT

private:
    static void rows();
    void lookAtAll(std::vector<preferences_t> const& preferences,
                   std::function<QStringList(sight_t const&)> const& faultsOf);
    void lookAtFilled(QSize const& size, std::function<QStringList(stage_t&, sight_t const&)> const& faultsOf);
    static void takePicture(screen_t& screen, QString const& name);
    void note(sight_t const& sight, QString const& look, QStringList const& faults);
    QString told() const;

    QStringList m_faults; //!< where and what
    QStringList m_looks;  //!< for each, when it was seen first

protected:
    void setUp() override;

private slots:
    void initTestCase() { applyDisplayStyle(*qApp); }

    void leavesNothingOut();
    void cutsNothingOff_data() { rows(); }
    void cutsNothingOff();
    void followsTheSizeOfTheWindow_data() { rows(); }
    void followsTheSizeOfTheWindow();
    void isLargeEnoughForFingers_data() { rows(); }
    void isLargeEnoughForFingers();
    void namesEverything_data() { rows(); }
    void namesEverything();
    void isEasyToRead_data() { rows(); }
    void isEasyToRead();
    void isChangedByAFingerAlone_data() { rows(); }
    void isChangedByAFingerAlone();
    void isReachedByTheTabKeyAlone_data() { rows(); }
    void isReachedByTheTabKeyAlone();
    void holdsForTheFrameAroundThePages_data();
    void holdsForTheFrameAroundThePages();
};

void tst_proof::rows()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("page");
    for (QSize const& size : sizes())
    {
        for (pageEntry_t const& entry : allPages())
        {
            // What only does something on another page shows nothing of its own.
            if (!entry.act)
                QTest::newRow(qPrintable(sizeName(size) + " " + entry.name)) << size << QString(entry.name);
        }
    }
}

void tst_proof::setUp()
{
    // What the offscreen platform cannot do when lists open, and when a dialog comes to the screen again.
    melvox_test::allowWarnings("does not support raise()");
    melvox_test::allowWarnings("does not support grabbing the keyboard");
    melvox_test::allowWarnings("does not support setParent");
    m_faults.clear();
    m_looks.clear();
}

void tst_proof::note(sight_t const& sight, QString const& look, QStringList const& faults)
{
    for (QString const& fault : faults)
    {
        QString const whole = sight.name + ": " + fault;
        if (m_faults.contains(whole))
            continue;
        m_faults << whole;
        m_looks << look;
    }
}

QString tst_proof::told() const
{
    QString text;
    for (int i = 0; i < m_faults.size(); ++i)
        text += "\n" + m_faults.at(i) + (m_looks.at(i).isEmpty() ? QString() : " (" + m_looks.at(i) + ")");
    return text;
}

void tst_proof::takePicture(screen_t& screen, QString const& name)
{
    QDir const folder(QString::fromLocal8Bit(qgetenv(PICTURES)) + "/" + sizeName(screen.size()));
    QVERIFY2(folder.mkpath("."), qPrintable("cannot make " + folder.path()));
    QString const file = folder.filePath(QString(name).replace(", ", "-").replace(' ', '_') + ".png");
    QVERIFY2(screen.grab().save(file), qPrintable("cannot write " + file));
}

void tst_proof::lookAtAll(std::vector<preferences_t> const& preferences,
                          std::function<QStringList(sight_t const&)> const& faultsOf)
{
    QFETCH(QSize, size);
    QFETCH(QString, page);
    for (fill_t fill : {SILENT, FILLED, LONGEST})
    {
        stage_t stage(size);
        stage.fill(page, fill);
        for (preferences_t const& preference : preferences)
        {
            stage.prefer(preference);
            auto const look = [&](sight_t const& sight)
            {
                QString const how = FILL_NAMES.at(fill) + ", " + preference.name;
                note(sight, how, faultsOf(sight));
                if (qEnvironmentVariableIsSet(PICTURES))
                    takePicture(stage.screen, sight.name + ", " + how);
            };
            stage.visit(page, look);
        }
    }
    QVERIFY2(m_faults.isEmpty(), qPrintable(told()));
}

void tst_proof::lookAtFilled(QSize const& size, std::function<QStringList(stage_t&, sight_t const&)> const& faultsOf)
{
    QFETCH(QString, page);
    stage_t stage(size);
    stage.prefer(PREFERENCES[0]);
    stage.fill(page, FILLED);
    stage.visit(page, [&](sight_t const& sight) { note(sight, QString(), faultsOf(stage, sight)); });
    QVERIFY2(m_faults.isEmpty(), qPrintable(told()));
}

void tst_proof::leavesNothingOut()
{
    QStringList seen;
    for (pageEntry_t const& entry : allPages())
    {
        if (entry.act)
            continue;
        stage_t stage(SMALL);
        stage.visit(entry.name, [&](sight_t const& sight) { seen << sight.content->metaObject()->className(); });
    }
#define MELVOX_PAGE(name)                                                                                              \
    if (std::is_base_of<QWidget, brel_common_qt_gui::name##_t>::value)                                                 \
        QVERIFY2(seen.contains("brel_common_qt_gui::" #name "_t"), "nobody looks at " #name);
    MELVOX_ALL_PAGES(MELVOX_PAGE)
#undef MELVOX_PAGE
}

void tst_proof::cutsNothingOff()
{
    lookAtAll({std::begin(PREFERENCES), std::end(PREFERENCES)},
              [](sight_t const& sight) { return wrongPlaces(sight.root); });
}

void tst_proof::followsTheSizeOfTheWindow()
{
    QFETCH(QSize, size);
    QFETCH(QString, page);
    stage_t stage(size == SMALL ? WIDE : SMALL);
    stage.fill(page, LONGEST);
    stage.screen.resize(size);
    melvox_test::settle();
    QStringList const faults = wrongPlaces(&stage.screen);
    QVERIFY2(faults.isEmpty(), qPrintable("\n" + faults.join("\n")));
}

void tst_proof::isLargeEnoughForFingers()
{
    QFETCH(QSize, size);
    lookAtFilled(size, [](stage_t&, sight_t const& sight) { return melvox_test::tooLowForFingers(sight.root); });
}

void tst_proof::namesEverything()
{
    QFETCH(QSize, size);
    lookAtFilled(size, [](stage_t&, sight_t const& sight) { return melvox_test::namelessWidgets(sight.root); });
}

void tst_proof::isEasyToRead()
{
    QFETCH(QSize, size);
    // So high that nothing is scrolled out of sight.
    lookAtFilled(QSize(size.width(), 3 * size.height()),
                 [](stage_t&, sight_t const& sight)
                 {
                     for (QTreeWidget* tree : sight.content->findChildren<QTreeWidget*>())
                         tree->setCurrentItem(tree->topLevelItem(0));
                     return melvox_test::hardToRead(sight.root);
                 });
}

void tst_proof::isChangedByAFingerAlone()
{
    QFETCH(QSize, size);
    lookAtFilled(size, [](stage_t& stage, sight_t const& sight) { return operator_t(stage, sight).tryAll(); });
}

void tst_proof::isReachedByTheTabKeyAlone()
{
    QFETCH(QSize, size);
    lookAtFilled(size, [](stage_t&, sight_t const& sight) { return notReachedByTab(sight.content); });
}

void tst_proof::holdsForTheFrameAroundThePages_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("state");
    for (QSize const& size : sizes())
    {
        for (char const* state : {"menu", "numbers", "letters", "no link"})
            QTest::newRow(qPrintable(sizeName(size) + " " + state)) << size << QString(state);
    }
}

void tst_proof::holdsForTheFrameAroundThePages()
{
    QFETCH(QSize, size);
    QFETCH(QString, state);
    stage_t stage(size);
    stage.fill("differentialConfiguration", FILLED);
    if (state == "menu" && stage.screen.isNarrow())
        stage.screen.toggleMenu();
    if (state == "numbers")
        QCOMPARE(melvox_test::touch(stage.screen.findChild<QLineEdit*>("stationIdLineEdit")), QString());
    if (state == "letters")
        QCOMPARE(melvox_test::touch(stage.screen.findChild<QLineEdit*>("stationNameLineEdit")), QString());
    if (state == "no link")
        stage.screen.strip()->setLink("192.168.178.100:65535", linkState_t::RECONNECTING);
    melvox_test::settle();
    QStringList const faults = wrongPlaces(&stage.screen) + melvox_test::tooLowForFingers(&stage.screen) +
                               melvox_test::namelessWidgets(&stage.screen) + melvox_test::hardToRead(&stage.screen);
    if (qEnvironmentVariableIsSet(PICTURES))
        takePicture(stage.screen, state);
    QVERIFY2(faults.isEmpty(), qPrintable("\n" + faults.join("\n")));
}

QTEST_MAIN(tst_proof)
#include "tst_proof.moc"
