#ifndef MELVOX_RECEIVER_PROFILES_H
#define MELVOX_RECEIVER_PROFILES_H

#include "receiver/behaviour.h"

#include <QHash>
#include <QMap>

namespace melvox_receiver
{

/** Settings that the receiver keeps under names, gives out as a file's bytes and takes in as such.
 *
 *  Situation: "profileFolder" is the folder in which the profiles outlive the program, one file for each; what lies in it
 *  is there at once. Empty: they are forgotten in the end. */
class profiles_t : public behaviour_t
{
public:
    explicit profiles_t(receiver_t& receiver);

    answer_t request(link_t* from, QString const& group) override;
    answer_t command(link_t* from, QString const& group, QVariant const& value) override;
    QStringList situations() const override;
    answer_t situation(QString const& name, QVariant const& value) override;
    void linkClosed(link_t* link) override;
    void lockChanged() override;
    void restarted() override;

private:
    struct profile_t
    {
        settings_t settings;
        unsigned int modified; //!< seconds since 1970-01-01 00:00 UTC
    };

    void list(link_t* to);
    void tell(QString const& name);
    void use(link_t* from, QString const& name);
    void save(QString const& name);
    void remove(QString const& name);
    void activate(QString const& name);
    void dump(link_t* to, QString const& path);
    int load(link_t* from, QByteArray const& data);
    QString fileOf(QString const& name) const;
    void readFolder();
    void write(QString const& name) const;
    void writeActive() const;

    QMap<QString, profile_t> m_profiles;
    QString m_active;                      //!< empty: none
    QString m_folder;                      //!< empty: none
    QHash<link_t*, QByteArray> m_incoming; //!< a profile that has come in so far
};

} // namespace melvox_receiver

#endif
