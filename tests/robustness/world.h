#ifndef MELVOX_ROBUSTNESS_WORLD_H
#define MELVOX_ROBUSTNESS_WORLD_H

#include "display/pageRegistry.h"
#include "display/uiSettings.h"
#include "drives.h"
#include "hostileReceiver.h"
#include "link/faultFilter.h"
#include "link/linkTap.h"
#include "link/scriptedLink.h"
#include "watch.h"

#include <memory>

class QFileDialog;

namespace brel_common_qt
{
class usbDriveManager_t;
}
namespace melvox_display
{
class screen_t;
}

namespace melvox_robustness
{

/** A display with all its pages, a receiver that means it no good, drives, and an operator who does what comes. */
class world_t
{
public:
    world_t(melvox_display::pageRegistry_t const& pages, quint64 seed, int round);
    ~world_t();

    /** Does the step of this number. Returns what was done, for people. */
    QString step(int number);

    /** Empty while every rule holds; looked up after each step. */
    QString fault();
    /** Something that a step made known, such as a warning. */
    void setFault(QString const& fault) { m_watch->setFault(fault); }

private:
    struct census_t
    {
        int objects = 0;
        QStringList dialogs; //!< what they are called
    };

    void begin(int number);
    QString beginAnew(int number);
    void end();
    void visitAllPages();
    void comeToRest();
    census_t count() const;
    void checkGrowth();
    void checkHeap();
    void checkLock();
    void checkDialogs();
    bool isTransferRunning() const;

    QString act(dice_t& dice);
    QString operate(dice_t& dice);
    QString turnPage(dice_t& dice);
    QString disturbLink(dice_t& dice);
    QString letTimePass();
    QFileDialog* fileDialog() const;

    melvox_display::pageRegistry_t const& m_pages;
    quint64 m_seed;
    int m_round;
    drives_t m_drives;
    melvox_test::folder_t m_home;
    std::unique_ptr<melvox_link::scriptedLink_t> m_link;
    std::unique_ptr<melvox_link::faultFilter_t> m_filter;
    std::unique_ptr<melvox_link::linkTap_t> m_tap;
    std::unique_ptr<watch_t> m_watch;
    std::unique_ptr<hostileReceiver_t> m_receiver;
    std::unique_ptr<brel_common_qt::remoteMelvoxDevice_t> m_device;
    std::unique_ptr<brel_common_qt::usbDriveManager_t> m_manager;
    std::unique_ptr<melvox_display::uiSettings_t> m_settings;
    std::unique_ptr<melvox_display::screen_t> m_screen;
    QString m_fault;
    census_t m_atFirst;
    int m_rounds;
    qint64 m_heapAtFirst;
};

} // namespace melvox_robustness

#endif
