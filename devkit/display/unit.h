#ifndef MELVOX_DISPLAY_UNIT_H
#define MELVOX_DISPLAY_UNIT_H

#include "display/options.h"
#include "display/statusStrip.h"
#include "link/link.h"

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
class linkTap_t;
class localLinkPair_t;
class replayLink_t;
} // namespace melvox_link

namespace melvox_receiver
{
class receiver_t;
class simClock_t;
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
    explicit unit_t(connection_t const& connection, QObject* parent = nullptr);
    ~unit_t() override;

    /** Opens the link; nothing is sent before. */
    void start();

    brel_common_qt::remoteMelvoxDevice_t* device() const { return m_device.get(); }
    melvox_link::linkTap_t* tap() const { return m_tap.get(); }
    /** Null when the receiver is somewhere else. */
    melvox_receiver::receiver_t* receiver() const { return m_receiver.get(); }
    /** Null when the receiver is somewhere else. */
    melvox_link::localLinkPair_t* localLink() const { return m_pair.get(); }

    /** Null when the receiver is not a journal. */
    melvox_link::replayLink_t* replay() const { return m_replay; }

    /** Also of a receiver at the far end of a line. */
    bool isSimulated() const;
    QString description() const;
    linkState_t linkState() const;

signals:
    void linkStateChanged();

private slots:
    void takeOpen(bool open);

private:
    void askForEverything();
    melvox_link::link_t* createLink(connection_t const& connection);
    template <typename link_t> melvox_link::link_t* keepStream(std::unique_ptr<link_t> link);
    melvox_link::link_t* createSimulated();
    melvox_link::link_t* createReplay(connection_t const& connection);

    std::unique_ptr<melvox_receiver::simClock_t> m_clock;
    std::unique_ptr<melvox_link::localLinkPair_t> m_pair;
    std::unique_ptr<melvox_receiver::receiver_t> m_receiver;
    std::unique_ptr<melvox_link::link_t> m_stream;
    std::function<void()> m_startStream;
    melvox_link::replayLink_t* m_replay;
    std::unique_ptr<melvox_link::linkTap_t> m_tap;
    std::unique_ptr<brel_common_qt::remoteMelvoxDevice_t> m_device;
    bool m_started;
    bool m_wasOpen;
};

} // namespace melvox_display

#endif
