#include "allPages.h"

#include "support/everything.h"
#include "support/pageChecks.h"
#include "support/pageCreator.h"
#include "support/pageTest.h"

#include <QTranslator>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_test::isInner;

namespace
{

#define MELVOX_PAGE(name) {#name, melvox_test::creator<name##_t>()},
melvox_test::page_t const PAGES[] = {MELVOX_ALL_PAGES(MELVOX_PAGE)};
#undef MELVOX_PAGE

melvox_test::create_t creatorOf(QString const& name)
{
    for (melvox_test::page_t const& page : PAGES)
    {
        if (name == page.name)
            return page.create;
    }
    return 0;
}

/** Lays the page out at a size without a window system's help. */
void layOut(QWidget* page, int width, int height)
{
    page->resize(width, height);
    page->show();
    melvox_test::settle();
}

} // namespace

/** What holds for every page and dialog, whatever it is about. */
class tst_allPages : public melvox_test::pageTest_t
{
    Q_OBJECT

private:
    static void rows();
    QWidget* build();
    static void press(QWidget* page, char const* slot);

    QTranslator m_translator;

private slots:
    void initTestCase();
    void livesOnASilentReceiver_data() { rows(); }
    void livesOnASilentReceiver();
    void livesThroughEverythingAReceiverTells_data() { rows(); }
    void livesThroughEverythingAReceiverTells();
    void sendsNothingWhenItIsBuilt_data() { rows(); }
    void sendsNothingWhenItIsBuilt();
    void runsNoTimerWhileIdle_data() { rows(); }
    void runsNoTimerWhileIdle();
    void namesItsWidgetsUniquely_data() { rows(); }
    void namesItsWidgetsUniquely();
    void namesEachEditorForThoseWhoCannotSeeIt_data() { rows(); }
    void namesEachEditorForThoseWhoCannotSeeIt();
    void givesEachNumericEditItsKeypad_data() { rows(); }
    void givesEachNumericEditItsKeypad();
    void tabsFromTopToBottom_data() { rows(); }
    void tabsFromTopToBottom();
    void fitsTheSmallestScreen_data() { rows(); }
    void fitsTheSmallestScreen();
    void isLargeEnoughForFingers_data() { rows(); }
    void isLargeEnoughForFingers();
    void cutsNothingOffWithTheLongestValues_data() { rows(); }
    void cutsNothingOffWithTheLongestValues();
};

/** The same rules hold in another language, whose file this variable names. */
void tst_allPages::initTestCase()
{
    QByteArray const translation = qgetenv("MELVOX_TEST_TRANSLATION");
    if (translation.isEmpty())
        return;
    QVERIFY(m_translator.load(QFile::decodeName(translation)));
    QCoreApplication::installTranslator(&m_translator);
}

void tst_allPages::rows()
{
    QTest::addColumn<QString>("name");
    for (melvox_test::page_t const& page : PAGES)
    {
        if (page.create)
            QTest::newRow(page.name) << QString(page.name);
    }
}

QWidget* tst_allPages::build()
{
    QFETCH(QString, name);
    return creatorOf(name)(device);
}

void tst_allPages::press(QWidget* page, char const* slot)
{
    // Dialogs need not have all of them.
    if (page->metaObject()->indexOfSlot(QByteArray(slot) + "()") >= 0)
        QMetaObject::invokeMethod(page, slot);
}

void tst_allPages::livesOnASilentReceiver()
{
    QScopedPointer<QWidget> const page(build());
    layOut(page.data(), 800, 480);
    press(page.data(), "query");
    press(page.data(), "reset");
    press(page.data(), "submit");
    melvox_test::settle();
    while (melvox_test::openBox())
        melvox_test::closeBox();
}

void tst_allPages::livesThroughEverythingAReceiverTells()
{
    QScopedPointer<QWidget> const page(build());
    layOut(page.data(), 800, 480);
    melvox_test::reportEverything(receiver);
    press(page.data(), "reset");
    press(page.data(), "submit");
    melvox_test::reportTheLongest(receiver);
    press(page.data(), "query");
    melvox_test::settle();
    while (melvox_test::openBox())
        melvox_test::closeBox();
}

void tst_allPages::sendsNothingWhenItIsBuilt()
{
    melvox_test::reportEverything(receiver);
    QScopedPointer<QWidget> const page(build());
    melvox_test::settle();
    QVERIFY2(receiver->sent().isEmpty(), qPrintable(receiver->sent().join("; ")));
}

void tst_allPages::runsNoTimerWhileIdle()
{
    melvox_test::reportEverything(receiver);
    QScopedPointer<QWidget> const page(build());
    layOut(page.data(), 800, 480);
    QList<QTimer*> const timers = page->findChildren<QTimer*>();
    for (QTimer const* timer : timers)
    {
        // A single shot that waits for a report to grow stale is not idle; one that goes on for ever is.
        QVERIFY2(!timer->isActive() || timer->isSingleShot(), qPrintable(timer->objectName()));
    }
}

void tst_allPages::namesItsWidgetsUniquely()
{
    QScopedPointer<QWidget> const page(build());
    QStringList names;
    QList<QWidget*> const widgets = page->findChildren<QWidget*>();
    for (QWidget const* widget : widgets)
    {
        if (widget->objectName().isEmpty() || isInner(widget) || widget->window() != page.data())
            continue;
        QVERIFY2(!names.contains(widget->objectName()), qPrintable(widget->objectName()));
        names << widget->objectName();
    }
    QVERIFY(!names.isEmpty());
}

void tst_allPages::namesEachEditorForThoseWhoCannotSeeIt()
{
    QScopedPointer<QWidget> const page(build());
    QStringList const nameless = melvox_test::namelessWidgets(page.data());
    QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(", ")));
}

void tst_allPages::givesEachNumericEditItsKeypad()
{
    QScopedPointer<QWidget> const page(build());
    QList<QLineEdit*> const edits = page->findChildren<QLineEdit*>();
    for (QLineEdit const* edit : edits)
    {
        if (isInner(edit) || edit->isReadOnly() || edit->window() != page.data())
            continue;
        QString const type = edit->property("keypadType").toString();
        bool const good = type == "numeric" || type == "full" || edit->objectName() == "messageNameLineEdit";
        QVERIFY2(good, qPrintable(edit->objectName()));
    }
}

void tst_allPages::tabsFromTopToBottom()
{
    QScopedPointer<QWidget> const page(build());
    melvox_test::reportEverything(receiver);
    layOut(page.data(), 800, 480);
    // Groups may stand side by side, so the order counts within one group.
    QMap<QWidget*, QPoint> last;
    for (QWidget* widget = page->nextInFocusChain(); widget != page.data(); widget = widget->nextInFocusChain())
    {
        bool const counts = (qobject_cast<QLineEdit*>(widget) || qobject_cast<QComboBox*>(widget)) &&
                            widget->isVisible() && !isInner(widget) && widget->window() == page.data();
        if (!counts)
            continue;
        QWidget* const group = widget->parentWidget();
        if (last.contains(group))
            QVERIFY2(widget->y() >= last[group].y() - 4, qPrintable(widget->objectName()));
        last[group] = widget->pos();
    }
}

void tst_allPages::fitsTheSmallestScreen()
{
    QScopedPointer<QWidget> const page(build());
    melvox_test::reportTheLongest(receiver);
    layOut(page.data(), 800, 480);
    QVERIFY2(page->minimumSizeHint().width() <= 800 && page->minimumSizeHint().height() <= 480,
             qPrintable(QString("%1 x %2").arg(page->minimumSizeHint().width()).arg(page->minimumSizeHint().height())));
}

void tst_allPages::isLargeEnoughForFingers()
{
    QScopedPointer<QWidget> const page(build());
    melvox_test::reportEverything(receiver);
    layOut(page.data(), 800, 480);
    QStringList const faults = melvox_test::tooLowForFingers(page.data());
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(", ")));
}

void tst_allPages::cutsNothingOffWithTheLongestValues()
{
    QScopedPointer<QWidget> const page(build());
    melvox_test::reportTheLongest(receiver);
    layOut(page.data(), 800, 480);
    QStringList const faults = melvox_test::cutOff(page.data()) + melvox_test::tooShort(page.data(), 1) +
                               melvox_test::overlapping(page.data());
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(", ")));
}

QTEST_MAIN(tst_allPages)
#include "tst_allPages.moc"
