#ifndef MELVOX_RECEIVER_FILE_FETCH_H
#define MELVOX_RECEIVER_FILE_FETCH_H

#include "receiver/receiver.h"

namespace melvox_receiver
{

/** Draws a file from a display, block by block: only one block is under way at a time. */
class fileFetch_t
{
public:
    explicit fileFetch_t(receiver_t& receiver);

    /** `size` in bytes, above 0. */
    void start(link_t* from, QString const& path, qint64 size);
    void stop();
    bool isRunning() const;

    enum progress_t
    {
        NOT_MINE, //!< a block of no file that is being drawn
        UNREADABLE,
        GOING_ON,
        FINISHED,
        FAILED //!< error() tells why
    };

    /** A fileBlock has come in. */
    progress_t take(link_t* from, QVariant const& block);

    /** Fails when the display is silent for too long. */
    progress_t advance(int milliseconds);

    qint64 received() const;
    /** What came with the last block; nothing when it was no new one. */
    QByteArray takeData();
    QString const& error() const;

private:
    void wantNext();
    progress_t fail(QString const& error);
    progress_t takeNew(QByteArray const& data);

    receiver_t& m_receiver;
    link_t* m_from;
    QString m_path;
    qint64 m_size;
    qint64 m_received;
    int m_silent; //!< milliseconds since the last block
    QByteArray m_data;
    QString m_error;
};

} // namespace melvox_receiver

#endif
