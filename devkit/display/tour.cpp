#include "display/tour.h"

#include "brel_common_qt/textHelpers.h"
#include "brel_common_qt/usbDriveManager.h"
#include "display/dialogHost.h"
#include "display/displayWindow.h"
#include "display/keypad.h"
#include "display/lineEntry.h"
#include "display/screen.h"
#include "display/tourScenes.h"
#include "display/unit.h"
#include "link/linkTap.h"
#include "link/localLink.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>

#include <cstdio>
#include <functional>

namespace melvox_display
{

namespace
{

int const ANSWER_MS = 5000;
int const REACTION_MS = 1500;
int const SCENE_MS = 60000; // a scan of a drive, half a firmware update, on a busy machine
int const REPORT_MS = 3000; // of what the receiver tells by itself, once a second

bool waitUntil(std::function<bool()> const& condition, int milliseconds)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition())
    {
        if (timer.elapsed() > milliseconds)
            return false;
        QApplication::processEvents(QEventLoop::AllEvents, 20);
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

/** Which group tells that a request was answered. */
QString answerTo(QString const& group)
{
    if (group == "antennaList")
        return "antennaListReset";
    if (group == "outputs")
        return "outputsCleared";
    if (group == "profiles")
        return "profilesCleared";
    if (group == "firmwareVersions")
        return "firmwareVersion";
    return group;
}

QString withSmallStart(QString name)
{
    if (!name.isEmpty())
        name[0] = name.at(0).toLower();
    return name;
}

/** "Confirm Delete" gives "confirmDelete". */
QString titleAsName(QString const& title)
{
    static QRegularExpression const noLetter("\\W");
    QString name;
    for (QString word : title.split(' ', Qt::SkipEmptyParts))
    {
        word[0] = word.at(0).toUpper();
        name += word.remove(noLetter);
    }
    return withSmallStart(name);
}

/** Of its class, or its title where many are of one class. */
QString shortName(QDialog const* object)
{
    QString name = QString(object->metaObject()->className()).section("::", -1);
    if (name.startsWith('Q') && !object->windowTitle().isEmpty())
        return titleAsName(object->windowTitle());
    if (name.startsWith("melvoxUi"))
        name.remove(0, 8);
    if (name.endsWith("_t"))
        name.chop(2);
    return withSmallStart(name);
}

/** Whether all that a page has to tell is missing still. */
bool tellsNothing(QWidget const* page)
{
    int missing = 0;
    for (QLabel const* label : page->findChildren<QLabel*>())
    {
        if (!label->isVisible() || label->text().isEmpty() || label->objectName().endsWith("TitleLabel"))
            continue;
        if (label->text() != brel_common_qt::NoDataString)
            return false;
        ++missing;
    }
    return missing > 0;
}

class tour_t
{
public:
    tour_t(displayWindow_t& window, unit_t& unit, QString const& folder);
    ~tour_t() { QObject::disconnect(m_listening); }

    int walk();

private:
    void note(melvox_link::message_t const& message, bool fromDisplay);
    void waitForAnswers();
    void shoot(QString const& name);
    void fail(QString const& text);

    void visitPage(pageEntry_t const& entry);
    void shootScrolled(QString const& name);
    void checkWidth(QString const& name);
    void playScenes(QString const& pageName);
    void playScene(scene_t const& scene);
    void playLastScenes();
    void visitNewDialogs(QString const& pageName);
    void visitKeypads(pageEntry_t const& entry);
    void visitErrorBox(QLineEdit* edit, QWidget* page);
    void visitMenu();
    void visitMonitor();
    void visitPanel();
    void visitInterruption();

    QScrollArea* view() const;
    void press(QString const& key);

    displayWindow_t& m_window;
    unit_t& m_unit;
    screen_t& m_screen;
    tourHands_t m_hands;
    QDir m_folder;
    QMetaObject::Connection m_listening;
    QSet<QString> m_open; //!< groups whose answer has not come
    QList<QPointer<QDialog>> m_seen;
    bool m_numericShown;
    bool m_fullShown;
    int m_count;
    int m_faults;
};

tour_t::tour_t(displayWindow_t& window, unit_t& unit, QString const& folder)
    : m_window(window), m_unit(unit), m_screen(*window.screen()), m_hands(m_screen, unit), m_folder(folder),
      m_numericShown(false), m_fullShown(false), m_count(0), m_faults(0)
{
    m_listening = QObject::connect(m_unit.tap(), &melvox_link::linkTap_t::passed, m_unit.tap(),
                                   [this](melvox_link::message_t const& message, bool fromDisplay)
                                   { note(message, fromDisplay); });
}

void tour_t::note(melvox_link::message_t const& message, bool fromDisplay)
{
    if (!fromDisplay)
        m_open.remove(message.group);
    else if (message.kind == melvox_link::message_t::REQUEST)
        m_open.insert(answerTo(message.group));
}

void tour_t::waitForAnswers()
{
    // The requests themselves may still be on their way.
    QApplication::processEvents();
    if (!waitUntil([this]() { return m_open.isEmpty(); }, ANSWER_MS))
    {
        QStringList groups = m_open.values();
        groups.sort();
        fail("no answer from the receiver for: " + groups.join(", "));
        m_open.clear();
    }
    QApplication::processEvents();
}

void tour_t::fail(QString const& text)
{
    ++m_faults;
    std::fprintf(stderr, "tour: %s\n", qPrintable(text));
}

void tour_t::shoot(QString const& name)
{
    QApplication::processEvents();
    QString const file = m_folder.filePath(QString("%1-%2.png").arg(++m_count, 2, 10, QChar('0')).arg(name));
    if (m_window.grab().save(file))
        std::printf("%s\n", qPrintable(QDir::toNativeSeparators(file)));
    else
        fail("cannot write " + file);
}

QScrollArea* tour_t::view() const
{
    for (QScrollArea* area : m_screen.pageArea()->findChildren<QScrollArea*>("pageView"))
    {
        if (area->isVisible())
            return area;
    }
    return nullptr;
}

void tour_t::checkWidth(QString const& name)
{
    QScrollArea* area = view();
    if (!area || !area->widget())
        return;
    int const excess = area->widget()->width() - area->viewport()->width();
    if (excess > 0)
        fail(QString("%1 is %2 pixels too wide for the screen").arg(name).arg(excess));
}

void tour_t::shootScrolled(QString const& name)
{
    shoot(name);
    checkWidth(name);
    QScrollArea* area = view();
    if (!area)
        return;
    QScrollBar* bar = area->verticalScrollBar();
    for (int part = 2; bar->value() < bar->maximum(); ++part)
    {
        bar->setValue(bar->value() + area->viewport()->height() * 9 / 10);
        shoot(QString("%1-part%2").arg(name).arg(part));
    }
    bar->setValue(0);
}

void tour_t::visitPage(pageEntry_t const& entry)
{
    QString const name = entry.name;
    // Without drives a file dialog opens, a window of its own that is none of this screen's.
    if (entry.act && !brel_common_qt::usbDriveManager_t::m_instance)
        return;
    if (!m_screen.showPage(name))
    {
        fail("cannot show " + name);
        return;
    }
    waitForAnswers();
    if (QWidget const* page = m_screen.page(name))
        waitUntil([page]() { return !tellsNothing(page); }, REPORT_MS);
    shootScrolled(name);
    m_screen.dialogs()->rejectAll();
    playScenes(name);
    visitNewDialogs(name);
    if (!entry.act)
        visitKeypads(entry);
}

void tour_t::playScenes(QString const& pageName)
{
    for (scene_t const& scene : tourScenes())
    {
        if (scene.page == pageName && scene.need != scene_t::LAST && isMet(scene.need))
            playScene(scene);
    }
}

void tour_t::playScene(scene_t const& scene)
{
    m_screen.showPage(scene.page);
    for (QString const& step : scene.steps)
    {
        if (step.startsWith("shoot "))
        {
            waitForAnswers();
            shoot(scene.page + "-" + step.section(' ', 1));
            m_seen << m_screen.dialogs()->currentDialog();
        }
        else if (!waitUntil([this, step]() { return m_hands.take(step); }, SCENE_MS))
        {
            fail(QString("on %1 it was not possible to: %2").arg(scene.page, step));
            break;
        }
    }
    m_screen.dialogs()->rejectAll();
}

/** Not with a receiver that others may be using: it is left in the middle of something. */
void tour_t::playLastScenes()
{
    for (scene_t const& scene : tourScenes())
    {
        if (scene.need == scene_t::LAST && isMet(scene.need) && m_unit.receiver())
            playScene(scene);
    }
}

void tour_t::visitNewDialogs(QString const& pageName)
{
    // Any of them may go while the others are shown.
    QList<QPointer<QDialog>> dialogs;
    for (QWidget* widget : QApplication::allWidgets())
        dialogs << qobject_cast<QDialog*>(widget);
    for (QPointer<QDialog> const& dialog : dialogs)
    {
        if (!dialog || m_seen.contains(dialog) || qobject_cast<QFileDialog*>(dialog.data()) || dialog->isVisible())
            continue;
        m_seen << dialog;
        if (dialog->metaObject()->indexOfSlot("reset()") >= 0)
            QMetaObject::invokeMethod(dialog, "reset");
        m_screen.dialogs()->showDialog(dialog);
        waitForAnswers();
        shootScrolled(pageName + "-" + shortName(dialog));
        // Without a result: nobody answered.
        if (dialog)
            dialog->hide();
        displayDialogHost_t const* host = m_screen.dialogs();
        waitUntil([host]() { return !host->currentDialog() && !host->currentCard(); }, REACTION_MS);
    }
}

void tour_t::press(QString const& key)
{
    for (QAbstractButton* button : m_screen.keypad()->findChildren<QAbstractButton*>("key_" + key))
    {
        if (button->isVisible() && button->isEnabled())
            return button->click();
    }
    fail("the keypad has no key " + key);
}

void tour_t::visitKeypads(pageEntry_t const& entry)
{
    QWidget* page = m_screen.page(entry.name);
    for (QLineEdit* edit : page->findChildren<QLineEdit*>())
    {
        bool const numeric = lineEntry_t::isNumeric(edit);
        if (!edit->isVisible() || !edit->isEnabled() || edit->isReadOnly() || (numeric ? m_numericShown : m_fullShown))
            continue;
        (numeric ? m_numericShown : m_fullShown) = true;
        m_screen.keypad()->open(edit);
        QApplication::processEvents();
        for (QChar key : QString(numeric ? "12" : "ab"))
            press(QString(key));
        shoot(numeric ? "keypad-numeric" : "keypad-full");
        press("cancel");
        if (numeric)
            visitErrorBox(edit, page);
    }
}

void tour_t::visitErrorBox(QLineEdit* edit, QWidget* page)
{
    QDialogButtonBox* box = page->findChild<QDialogButtonBox*>();
    QPushButton* apply = box ? box->button(QDialogButtonBox::Apply) : nullptr;
    if (!apply)
        return;
    m_screen.keypad()->open(edit);
    press("clear");
    press("done");
    apply->click();
    if (!waitUntil([this]() { return m_screen.dialogs()->currentCard() != nullptr; }, REACTION_MS))
        fail("no error box for an empty " + edit->objectName());
    shoot("error-box");
    QPointer<QDialog> const card = m_screen.dialogs()->currentCard();
    m_seen << card;
    if (card)
        card->reject();
    QMetaObject::invokeMethod(page, "reset");
    waitForAnswers();
}

void tour_t::visitMenu()
{
    if (!m_screen.isNarrow())
        return;
    m_screen.toggleMenu();
    shoot("menu");
    m_screen.toggleMenu();
}

void tour_t::visitMonitor()
{
    m_window.toggleMonitor();
    // Messages come into the monitor in batches.
    QElapsedTimer timer;
    timer.start();
    waitUntil([&timer]() { return timer.elapsed() > 300; }, REACTION_MS);
    shoot("link-monitor");
    m_window.toggleMonitor();
}

void tour_t::visitPanel()
{
    if (!m_window.panel())
        return;
    m_window.togglePanel();
    shoot("receiver-panel");
    m_window.togglePanel();
}

void tour_t::visitInterruption()
{
    if (!m_unit.localLink())
        return;
    m_unit.localLink()->setOpen(false);
    shoot("link-interrupted");
    m_unit.localLink()->setOpen(true);
    waitForAnswers();
}

int tour_t::walk()
{
    if (!m_folder.mkpath("."))
    {
        fail("cannot make the folder " + m_folder.path());
        return 1;
    }
    if (!waitUntil([this]() { return m_unit.linkState() == linkState_t::CONNECTED; }, ANSWER_MS))
        fail("the receiver is not connected: " + m_unit.description());
    for (pageEntry_t const& entry : m_window.pages())
        visitPage(entry);
    if (!m_window.pages().empty())
        m_screen.showPage(m_window.pages().front().name);
    visitMenu();
    visitMonitor();
    visitPanel();
    visitInterruption();
    playLastScenes();
    std::printf("%d pictures, %d faults\n", m_count, m_faults);
    std::fflush(stdout);
    return m_faults == 0 ? 0 : 1;
}

} // namespace

int walkTour(displayWindow_t& window, unit_t& unit, QString const& folder)
{
    return tour_t(window, unit, folder).walk();
}

} // namespace melvox_display
