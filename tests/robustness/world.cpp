#include "world.h"

#include "brel_common_qt/kitPort.h"
#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/usbDriveManager.h"
#include "display/dialogHost.h"
#include "display/keypad.h"
#include "display/screen.h"
#include "melvox_ui/melvoxUiProfileLoader.h"
#include "melvox_ui/melvoxUiSettingsProfiles.h"
#include "operatorHands.h"
#include "support/operator.h"
#include "support/test.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QPixmapCache>
#include <QPushButton>

#include <malloc.h>

/** Only there with the address sanitizer. */
extern "C" std::size_t __sanitizer_get_current_allocated_bytes() __attribute__((weak));

using namespace melvox_display;

namespace melvox_robustness
{

namespace
{

int const USB_PERCENT = 75;
/** Lists within widgets are made when they are first used; more than this over a whole round is something that grows. */
int const MORE_OBJECTS = 150;
int const ROUNDS_TO_WARM_UP = 3;
/** The toolkit keeps a little for each scrolled view for ever: some 30 KB for all of them. */
qint64 const HEAP_PER_ROUND = 64 * 1024;
qint64 const HEAP_ALWAYS = 1024 * 1024;

qint64 heapInUse()
{
    if (__sanitizer_get_current_allocated_bytes)
        return qint64(__sanitizer_get_current_allocated_bytes());
    return qint64(mallinfo2().uordblks);
}

} // namespace

world_t::world_t(pageRegistry_t const& pages, quint64 seed, int round)
    : m_pages(pages), m_seed(seed), m_round(round), m_rounds(0), m_heapAtFirst(0)
{
    QDir::setCurrent(m_home.path());
    begin(0);
}

world_t::~world_t()
{
    end();
}

void world_t::begin(int number)
{
    dice_t dice(m_seed, quint64(number));
    m_link.reset(new melvox_link::scriptedLink_t);
    m_filter.reset(new melvox_link::faultFilter_t(m_link.get()));
    m_filter->setDelay(1);
    m_tap.reset(new melvox_link::linkTap_t(m_filter.get()));
    m_watch.reset(new watch_t);
    m_receiver.reset(new hostileReceiver_t(m_link.get()));
    m_receiver->drawMuted(dice);
    QObject::connect(m_tap.get(), &melvox_link::linkTap_t::passed, m_watch.get(), &watch_t::take);
    QObject::connect(m_tap.get(), &melvox_link::linkTap_t::openChanged, m_watch.get(), &watch_t::takeOpen);
    melvox_kit::linkKind_t const kind = melvox_kit::linkKind_t(dice.choice(3));
    if (kind == melvox_kit::LINK_SERIAL)
        m_link->makeSerial({9600, 8, 'N', 1});
    m_device.reset(new brel_common_qt::remoteMelvoxDevice_t(melvox_kit::createPort(m_tap.get(), kind)));
    m_watch->setDevice(m_device.get());
    if (dice.chance(USB_PERCENT))
        m_manager.reset(new brel_common_qt::usbDriveManager_t);
    m_settings.reset(new uiSettings_t(m_home.path("display.conf")));
    m_screen.reset(new screen_t(m_pages, m_device.get(), m_settings.get()));
    m_screen->resize(dice.chance(50) ? QSize(1024, 600) : QSize(800, 480));
    m_screen->show();
    visitAllPages();
    m_atFirst = count();
}

/** So that all of them hear what the receiver tells from the first step on. */
void world_t::visitAllPages()
{
    for (pageEntry_t const& page : m_pages)
    {
        if (!page.act)
            m_screen->showPage(page.name);
    }
    comeToRest();
}

void world_t::end()
{
    m_filter->clearFaults();
    m_screen.reset();
    // An update goes on without its page.
    if (m_watch->isUpdating())
        m_link->report("firmwareUpdateState", melvox_test::map("state", 0, "description", ""));
    checkLock();
    if (m_fault.isEmpty())
        m_fault = m_watch->fault();
    m_settings.reset();
    m_manager.reset();
    m_device.reset();
    m_receiver.reset();
    m_watch.reset();
    m_tap.reset();
    m_filter.reset();
    m_link.reset();
    melvox_test::settle();
}

/** The host takes everything down, whatever is under way, and builds it up again. */
QString world_t::beginAnew(int number)
{
    // The screen goes as it stands; only then can something be left that was under way.
    bool const asItStands = dice_t(m_seed, quint64(number)).chance(50);
    if (!asItStands)
    {
        comeToRest();
        checkGrowth();
    }
    end();
    checkHeap();
    qint64 const heap = heapInUse();
    QString const fault = m_fault;
    begin(number);
    m_watch->setFault(fault);
    return QString("everything is taken down %1 and made anew; %2 bytes were in use")
        .arg(asItStands ? "as it stands" : "at rest")
        .arg(heap);
}

/** Until nothing is open: what is closed may open the next. */
void world_t::comeToRest()
{
    displayDialogHost_t* const dialogs = m_screen->dialogs();
    melvox_test::settle();
    while (fileDialog() || dialogs->currentCard() || dialogs->currentDialog())
    {
        if (QFileDialog* dialog = fileDialog())
            dialog->reject();
        else if (QDialog* card = dialogs->currentCard())
            card->done(0);
        else
            dialogs->back();
        melvox_test::settle();
    }
    m_screen->keypad()->cancel();
    melvox_test::settle();
}

world_t::census_t world_t::count() const
{
    census_t census;
    QWidgetList const windows = QApplication::topLevelWidgets();
    for (QWidget const* window : windows)
        census.objects += 1 + window->findChildren<QObject*>().size();
    QWidgetList const widgets = QApplication::allWidgets();
    for (QWidget const* widget : widgets)
    {
        if (qobject_cast<QDialog const*>(widget))
            census.dialogs << widget->windowTitle();
    }
    census.objects += m_device->findChildren<QObject*>().size();
    return census;
}

void world_t::checkGrowth()
{
    census_t const now = count();
    QStringList more = now.dialogs;
    for (QString const& title : qAsConst(m_atFirst.dialogs))
        more.removeOne(title);
    // Made when they are needed for the first time, and kept.
    more.removeOne("Invalid MELVOX Baud Rate");
    more.removeOne("Invalid Firmware Package");
    if (!more.isEmpty())
        m_watch->setFault("growth: dialogs that were not there before: " + more.join(", "));
    if (now.objects > m_atFirst.objects + MORE_OBJECTS)
        m_watch->setFault(QString("growth: %1 objects have become %2").arg(m_atFirst.objects).arg(now.objects));
}

void world_t::checkHeap()
{
    QPixmapCache::clear();
    qint64 const now = heapInUse();
    if (++m_rounds == ROUNDS_TO_WARM_UP)
        m_heapAtFirst = now;
    if (m_rounds <= ROUNDS_TO_WARM_UP)
        return;
    qint64 const allowed = HEAP_ALWAYS + (m_rounds - ROUNDS_TO_WARM_UP) * HEAP_PER_ROUND;
    if (now > m_heapAtFirst + allowed && m_fault.isEmpty())
        m_fault = QString("growth: %1 bytes in use have become %2").arg(m_heapAtFirst).arg(now);
}

bool world_t::isTransferRunning() const
{
    if (!m_screen)
        return false;
    auto const* const profiles =
        static_cast<brel_common_qt_gui::melvoxUiSettingsProfiles_t*>(m_screen->page("settingsProfiles"));
    if (profiles && profiles->profileLoader()->isLoading())
        return true;
    QWidget const* const update = m_screen->page("firmwareUpdate");
    if (!update)
        return false;
    QString const told = update->findChild<QLabel*>("instructionsLabel")->text();
    QAbstractButton const* const ok =
        update->findChild<QDialogButtonBox*>("progressButtonBox")->button(QDialogButtonBox::Ok);
    return told.startsWith("Firmware update in progress") && !ok->isEnabled();
}

void world_t::checkLock()
{
    if (m_watch->wantsLock() && !isTransferRunning())
        m_watch->setFault("lock: the lock is held while nothing is transferred");
}

void world_t::checkDialogs()
{
    for (int tries = 0; tries < 2; ++tries)
    {
        QDialog const* const dialog = m_screen->dialogs()->currentDialog();
        QDialog const* const card = m_screen->dialogs()->currentCard();
        QWidget const* const page = m_screen->dialogs()->page();
        bool const dead =
            (dialog && dialog->isHidden()) || (card && card->isHidden()) || (!dialog && page && page->isHidden());
        if (!dead)
            return;
        // One that its owner hid is taken away with the next events.
        melvox_test::settle();
    }
    m_watch->setFault("dialog: a page is shown whose dialog is gone");
}

QString world_t::fault()
{
    checkLock();
    checkDialogs();
    return m_watch->fault();
}

QString world_t::step(int number)
{
    if (number % m_round == m_round - 1)
        return beginAnew(number);
    dice_t dice(m_seed, quint64(number));
    m_filter->setSeed(unsigned(dice.roll()));
    QString const done = act(dice);
    for (melvox_link::message_t const& message : m_link->messages())
        m_receiver->take(message);
    m_link->clear();
    return done;
}

QString world_t::act(dice_t& dice)
{
    int const what = dice.choice(1000);
    if (what < 420)
        return m_receiver->tell(dice);
    if (what < 540)
        return m_receiver->answer(dice);
    if (what < 880)
        return operate(dice);
    if (what < 915)
        return turnPage(dice);
    if (what < 940)
        return m_drives.comeAndGo(dice);
    if (what < 950)
        return disturbLink(dice);
    return letTimePass();
}

QString world_t::operate(dice_t& dice)
{
    if (QFileDialog* dialog = fileDialog())
        return chooseFile(dice, dialog, m_drives.anyFile(dice));
    displayDialogHost_t* const dialogs = m_screen->dialogs();
    QDialog* const card = dialogs->currentCard();
    if (card && dice.chance(10))
    {
        card->done(0);
        return "closes a box without a button";
    }
    if (card)
        return touchSomething(dice, card);
    if (dice.chance(8))
        return touchSomething(dice, m_screen.get());
    return touchSomething(dice, m_screen->pageArea());
}

QString world_t::turnPage(dice_t& dice)
{
    if (dice.chance(20))
    {
        m_screen->dialogs()->back();
        return "goes back";
    }
    pageEntry_t const& page = m_pages.at(size_t(dice.choice(int(m_pages.size()))));
    m_screen->showPage(page.name);
    return QString("shows ") + page.name;
}

QString world_t::disturbLink(dice_t& dice)
{
    switch (dice.choice(4))
    {
    case 0:
        m_link->setOpen(false);
        m_link->setOpen(true);
        return "the link is cut and joined again";
    case 1:
        m_filter->clearFaults();
        return "the line is clean";
    default:
        // Delays too would make a run depend on the clock.
        static melvox_link::fault_t const faults[] = {melvox_link::FAULT_DROP, melvox_link::FAULT_DUPLICATE,
                                                      melvox_link::FAULT_REORDER, melvox_link::FAULT_GARBLE};
        melvox_link::fault_t const fault = dice.oneOf(faults);
        m_filter->setFault(QString(), fault, 0.2);
        return "messages suffer from " + melvox_link::faultName(fault);
    }
}

QString world_t::letTimePass()
{
    melvox_test::settle();
    return "time passes";
}

QFileDialog* world_t::fileDialog() const
{
    QWidgetList const windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows)
    {
        QFileDialog* const dialog = qobject_cast<QFileDialog*>(window);
        if (dialog && dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

} // namespace melvox_robustness
