#ifndef MELVOX_ROBUSTNESS_WATCH_H
#define MELVOX_ROBUSTNESS_WATCH_H

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "link/message.h"

#include <QObject>
#include <QSet>
#include <QString>

namespace melvox_robustness
{

/** Sees every message at the display's end and says when one should not have been sent. The first fault stays. */
class watch_t : public QObject
{
    Q_OBJECT

public:
    explicit watch_t(QObject* parent = nullptr);

    void setDevice(brel_common_qt::remoteMelvoxDevice_t const* device);

    /** Empty while all is well. Begins with the name of the rule and a colon. */
    QString const& fault() const { return m_fault; }
    void setFault(QString const& fault);

    /** The lock that the display asked for last and has not given back, as far as the receiver told it. */
    bool wantsLock() const { return m_wantedLock != 0; }

    /** A firmware update was started and its outcome has not come. */
    bool isUpdating() const { return m_updating; }

public slots:
    void take(melvox_link::message_t const& message, bool fromDisplay);
    void takeOpen(bool open);

private:
    void takeReport(melvox_link::message_t const& message);
    void takeCommand(melvox_link::message_t const& message);
    void countBlocks(melvox_link::message_t const& message);
    bool isAllowed(melvox_link::message_t const& message) const;
    bool isAllowedAmongPorts(QString const& group, QVariantMap const& value, bool& known) const;
    bool isAllowedAmongFiles(QString const& group, QVariant const& value, bool& known) const;

    brel_common_qt::remoteMelvoxDevice_t const* m_device;
    QString m_fault;
    int m_wantedLock;
    int m_blocksInFlight;
    int m_partsWanted;
    int m_lockGranted;
    bool m_updateEnded;
    bool m_webUploadSeen;
    bool m_modemSeen;
    bool m_updating;
    QSet<int> m_serialPorts;
    QSet<int> m_virtualPorts;
    QSet<unsigned int> m_satellites;
    QSet<QString> m_profiles;
};

} // namespace melvox_robustness

#endif
