#ifndef MELVOX_DISPLAY_UNIT_H
#define MELVOX_DISPLAY_UNIT_H

#include "brel_common_qt/kitPort.h"
#include "display/options.h"
#include "display/statusStrip.h"
#include "link/link.h"
#include "receiver/simClock.h"

#include <QObject>
#include <QString>

#include <functional>
#include <memory>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace melvox_link
{
class faultFilter_t;
class linkTap_t;
class localLinkPair_t;
class replayLink_t;
} // namespace melvox_link

namespace melvox_receiver
{
class receiver_t;
} // namespace melvox_receiver

namespace melvox_display
{

/** Everything behind the screens: the link to the receiver, somebody listening on it, the receiver when it is a simulated
 *  one of this process, and the proxy that the pages stand on. Asks the receiver for everything whenever the link
 *  opens. */
class unit_t : public QObject
{
    Q_OBJECT

public:
    /** A clock that a test turns counts for the simulated receiver. */
    explicit unit_t(connection_t const& connection,
                    melvox_receiver::simClock_t::mode_t clock = melvox_receiver::simClock_t::REAL_TIME);
    ~unit_t() override;

    /** Opens the link; nothing is sent before. */
    void start();

    brel_common_qt::remoteMelvoxDevice_t* device() const { return m_device.get(); }
    /** Between the link and the tap: what it spoils the monitor shows as the pages see it. */
    melvox_link::faultFilter_t* faultFilter() const { return m_filter.get(); }
    melvox_link::linkTap_t* tap() const { return m_tap.get(); }
    /** Null when the receiver is somewhere else. */
    melvox_receiver::receiver_t* receiver() const { return m_receiver.get(); }
    /** Null when the receiver is somewhere else. */
    melvox_link::localLinkPair_t* localLink() const { return m_pair.get(); }

    /** Null when the receiver is not a journal. */
    melvox_link::replayLink_t* replay() const { return m_replay; }

    /** Another simulated receiver, as it is delivered, takes the place of the one that is there. */
    void renewReceiver();
    /** Its profiles outlive the program in this folder. False when the folder cannot be used. */
    bool keepProfiles(QString const& folder);

    /** What is at the end of the cable, of a simulated receiver only. A port of another kind needs another proxy: all
     *  that stands on the old one must go with deviceAboutToGo(). */
    void setLinkKind(melvox_kit::linkKind_t kind);
    melvox_kit::linkKind_t linkKind() const { return m_kind; }
    /** Of a simulated serial line, at both of its ends. */
    void setBaud(unsigned int baud);

    static int const USUAL_LATENCY = 30; //!< milliseconds, as a serial line at a usual rate feels
    static unsigned int const USUAL_BAUD = 115200;

    /** Also of a receiver at the far end of a line. */
    bool isSimulated() const;
    QString description() const;
    linkState_t linkState() const;

signals:
    void linkStateChanged();
    void deviceAboutToGo();
    void deviceReplaced();

private slots:
    void takeOpen(bool open);

private:
    void askForEverything();
    melvox_link::link_t* createLink(connection_t const& connection);
    template <typename link_t> melvox_link::link_t* keepStream(std::unique_ptr<link_t> link);
    melvox_link::link_t* createSimulated();
    melvox_link::link_t* createReplay(connection_t const& connection);
    void createDevice();
    void arrangeLine();

    melvox_kit::linkKind_t m_kind;
    unsigned int m_baud;
    QString m_profileFolder;
    std::unique_ptr<melvox_receiver::simClock_t> m_clock;
    std::unique_ptr<melvox_link::localLinkPair_t> m_pair;
    std::unique_ptr<melvox_receiver::receiver_t> m_receiver;
    std::unique_ptr<melvox_link::link_t> m_stream;
    std::function<void()> m_startStream;
    melvox_link::replayLink_t* m_replay;
    std::unique_ptr<melvox_link::faultFilter_t> m_filter;
    std::unique_ptr<melvox_link::linkTap_t> m_tap;
    std::unique_ptr<brel_common_qt::remoteMelvoxDevice_t> m_device;
    bool m_started;
    bool m_wasOpen;
};

} // namespace melvox_display

#endif
