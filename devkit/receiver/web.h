#ifndef MELVOX_RECEIVER_WEB_H
#define MELVOX_RECEIVER_WEB_H

#include "receiver/behaviour.h"
#include "receiver/fileFetch.h"

namespace melvox_receiver
{

/** Takes a new package for the web interface in: draws it, restarts, installs it and restarts again. A display that was
 *  not there at the end is told when it asks for the web interface. */
class web_t : public behaviour_t
{
public:
    explicit web_t(receiver_t& receiver);

    answer_t request(link_t* from, QString const& group) override;
    answer_t command(link_t* from, QString const& group, QVariant const& value) override;
    void linkClosed(link_t* link) override;
    void restarted() override;
    void advance(int milliseconds) override;

private:
    answer_t start(link_t* from, QVariant const& value);
    bool isRunning() const;
    void cancel(link_t* from);
    answer_t go(fileFetch_t::progress_t progress);
    void end(int state, QString const& description);
    void enter(int phase);

    fileFetch_t m_fetch;
    link_t* m_from; //!< null: the display is gone, or nothing goes on
    qint64 m_size;
    int m_phase;          //!< index of what goes on after the package was drawn; negative: nothing
    int m_left;           //!< milliseconds of it
    bool m_restarting;    //!< a restart that is part of the upload
    QVariantMap m_untold; //!< an outcome that the display was not there to hear
};

} // namespace melvox_receiver

#endif
