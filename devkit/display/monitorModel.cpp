#include "display/monitorModel.h"

#include <QLocale>

namespace melvox_display
{

namespace
{

int const BATCH_MS = 100;
/** What a cell can show at all; file blocks and lists are far longer. */
int const CELL_LENGTH = 200;

QString valueText(melvox_link::message_t const& message)
{
    return melvox_link::toText(message).mid(message.group.size()).trimmed();
}

QString timeText(qint64 time)
{
    return QDateTime::fromMSecsSinceEpoch(time).toString("hh:mm:ss.zzz");
}

QString directionText(bool fromDisplay)
{
    return fromDisplay ? monitorModel_t::tr("to receiver") : monitorModel_t::tr("to display");
}

} // namespace

QString ageText(qint64 milliseconds)
{
    // A clock that is set back must not make what has come lie in the future.
    qint64 const age = qMax<qint64>(0, milliseconds);
    qint64 const seconds = age / 1000;
    if (seconds < 60)
    {
        qint64 const tenths = age / 100;
        return monitorModel_t::tr("%1 s").arg(double(tenths) / 10.0, 0, 'f', 1);
    }
    if (seconds < 3600)
        return monitorModel_t::tr("%1 min %2 s").arg(seconds / 60).arg(seconds % 60, 2, 10, QChar('0'));
    return monitorModel_t::tr("%1 h %2 min").arg(seconds / 3600).arg(seconds / 60 % 60, 2, 10, QChar('0'));
}

monitorModel_t::monitorModel_t(int maximumRows, QObject* parent)
    : QAbstractTableModel(parent), m_maximum(qMax(1, maximumRows)), m_arrived(0), m_paused(false), m_pausedAt(0),
      m_timer(this)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(BATCH_MS);
    connect(&m_timer, &QTimer::timeout, this, &monitorModel_t::flush);
}

void monitorModel_t::add(melvox_link::message_t const& message, bool fromDisplay)
{
    m_pending.push_back({QDateTime::currentMSecsSinceEpoch(), fromDisplay, message});
    if (int(m_pending.size()) > m_maximum)
        m_pending.pop_front();
    ++m_arrived;
    if (!m_timer.isActive())
        m_timer.start();
}

void monitorModel_t::flush()
{
    if (!m_paused && !m_pending.empty())
    {
        int const coming = int(m_pending.size());
        dropOldest(int(m_rows.size()) + coming - m_maximum);
        int const first = int(m_rows.size());
        beginInsertRows(QModelIndex(), first, first + coming - 1);
        m_rows.insert(m_rows.end(), m_pending.begin(), m_pending.end());
        m_pending.clear();
        m_arrived = 0;
        endInsertRows();
    }
    emit changed();
}

void monitorModel_t::dropOldest(int count)
{
    if (count <= 0)
        return;
    beginRemoveRows(QModelIndex(), 0, count - 1);
    m_rows.erase(m_rows.begin(), m_rows.begin() + count);
    endRemoveRows();
}

void monitorModel_t::setPaused(bool paused)
{
    if (paused == m_paused)
        return;
    // What came before the pause belongs to what one wanted to look at.
    if (paused)
        flush();
    m_paused = paused;
    m_pausedAt = QDateTime::currentMSecsSinceEpoch();
    m_timer.stop();
    flush();
}

void monitorModel_t::clear()
{
    m_timer.stop();
    beginResetModel();
    m_rows.clear();
    m_pending.clear();
    m_arrived = 0;
    endResetModel();
    emit changed();
}

int monitorModel_t::rowCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int monitorModel_t::columnCount(QModelIndex const& parent) const
{
    return parent.isValid() ? 0 : NUM_COLUMNS;
}

QVariant monitorModel_t::data(QModelIndex const& index, int role) const
{
    if (!index.isValid() || index.row() >= int(m_rows.size()) || role != Qt::DisplayRole)
        return QVariant();
    row_t const& row = m_rows[size_t(index.row())];
    switch (index.column())
    {
    case COLUMN_TIME:
        return timeText(row.time);
    case COLUMN_AGE:
        return ageText(now() - row.time);
    case COLUMN_DIRECTION:
        return directionText(row.fromDisplay);
    case COLUMN_KIND:
        return melvox_link::kindName(row.message.kind);
    case COLUMN_GROUP:
        return row.message.group;
    case COLUMN_VALUE:
        return valueText(row.message).left(CELL_LENGTH);
    default:
        return QVariant();
    }
}

QVariant monitorModel_t::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    QStringList const titles = {tr("Time"), tr("Age"), tr("Direction"), tr("Kind"), tr("Group"), tr("Value")};
    return titles.value(section);
}

qint64 monitorModel_t::now() const
{
    return m_paused ? m_pausedAt : QDateTime::currentMSecsSinceEpoch();
}

QString monitorModel_t::lineOf(QModelIndex const& index) const
{
    if (!index.isValid() || index.row() >= int(m_rows.size()))
        return QString();
    row_t const& row = m_rows[size_t(index.row())];
    return timeText(row.time) + " " + directionText(row.fromDisplay) + " " + textOf(index);
}

QString monitorModel_t::textOf(QModelIndex const& index) const
{
    if (!index.isValid() || index.row() >= int(m_rows.size()))
        return QString();
    row_t const& row = m_rows[size_t(index.row())];
    return melvox_link::kindName(row.message.kind) + " " + melvox_link::toText(row.message);
}

} // namespace melvox_display
