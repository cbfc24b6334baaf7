#ifndef MELVOX_RECEIVER_FIRMWARE_H
#define MELVOX_RECEIVER_FIRMWARE_H

#include "receiver/behaviour.h"
#include "receiver/fileFetch.h"

#include <QList>

namespace melvox_receiver
{

/** The versions of the receiver's firmware, and the intake of new files for it. */
class firmware_t : public behaviour_t
{
public:
    explicit firmware_t(receiver_t& receiver);

    answer_t request(link_t* from, QString const& group) override;
    answer_t command(link_t* from, QString const& group, QVariant const& value) override;
    void linkClosed(link_t* link) override;
    void restarted() override;
    void advance(int milliseconds) override;

private:
    struct component_t
    {
        int component;
        QString path;
        qint64 size;
        int status;
    };

    answer_t start(link_t* from, QVariant const& value);
    void fetchNext();
    answer_t go(fileFetch_t::progress_t progress);
    void finishFile();
    void fail(QString const& error);
    void reportState(int state, QString const& description);
    void reportProgress();

    fileFetch_t m_fetch;
    link_t* m_from;
    QList<component_t> m_components;
    bool m_combined;
    int m_current;
    qint64 m_done;  //!< bytes of the files that are complete
    qint64 m_total; //!< bytes
};

} // namespace melvox_receiver

#endif
