#ifndef MELVOX_DISPLAY_MONITOR_MODEL_H
#define MELVOX_DISPLAY_MONITOR_MODEL_H

#include "link/message.h"

#include <QAbstractTableModel>
#include <QDateTime>
#include <QTimer>

#include <deque>

namespace melvox_display
{

/** The last messages that passed over a link, oldest first. Takes them in at once and shows them in batches, so that
 *  a thousand a second do not keep the screen from working; texts are made only for rows that somebody looks at. */
class monitorModel_t : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum column_t
    {
        COLUMN_TIME,
        COLUMN_AGE, //!< as it is when it is asked for; nobody is told that it goes on
        COLUMN_DIRECTION,
        COLUMN_KIND,
        COLUMN_GROUP,
        COLUMN_VALUE,
        NUM_COLUMNS
    };

    /** At least one row. */
    explicit monitorModel_t(int maximumRows, QObject* parent = nullptr);

    /** While paused the rows stay as they are; what comes meanwhile is shown, as far as it is kept, on going on. */
    void setPaused(bool paused);
    bool isPaused() const { return m_paused; }
    /** How many came since the pause began. */
    int waiting() const { return m_arrived; }

    /** The whole message. */
    QString textOf(QModelIndex const& index) const;
    /** The same with time and direction, for whoever wants to take it elsewhere. */
    QString lineOf(QModelIndex const& index) const;

    int rowCount(QModelIndex const& parent = QModelIndex()) const override;
    int columnCount(QModelIndex const& parent = QModelIndex()) const override;
    QVariant data(QModelIndex const& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

public slots:
    void add(melvox_link::message_t const& message, bool fromDisplay);
    /** Also forgets what waits. */
    void clear();

signals:
    /** Rows were added or taken away, or messages wait for the end of the pause. */
    void changed();

private slots:
    void flush();

private:
    struct row_t
    {
        qint64 time;
        bool fromDisplay;
        melvox_link::message_t message;
    };

    void dropOldest(int count);
    qint64 now() const;

    int m_maximum;
    std::deque<row_t> m_rows;
    std::deque<row_t> m_pending;
    int m_arrived;
    bool m_paused;
    qint64 m_pausedAt; //!< ages stand still from then on
    QTimer m_timer;
};

/** "3.2 s", "4 min 05 s", "2 h 07 min". */
QString ageText(qint64 milliseconds);

} // namespace melvox_display

#endif
