#ifndef MELVOX_DISPLAY_REPLAY_H
#define MELVOX_DISPLAY_REPLAY_H

#include "display/action.h"
#include "display/actionPlayer.h"
#include "display/pageRegistry.h"
#include "link/journal.h"

#include <QMap>
#include <QObject>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace melvox_display
{

class displayWindow_t;
class unit_t;
struct options_t;

/** Plays a journal to a display: the receiver's side, and the operator's when that is asked for. */
class replay_t : public QObject
{
    Q_OBJECT

public:
    explicit replay_t(QObject* parent = nullptr);
    ~replay_t() override;

    /** Reads the journal that the options name, and sets the options to what the display had that wrote it. False, and
     *  `fault` for people with file, line and reason, when there is an error in it. Needs no application object. */
    bool load(options_t& options, pageRegistry_t const& pages, QString& fault);
    /** What people should know of the journal all the same; mostly empty. */
    QString note() const { return m_journal->note; }

    /** Before the unit is started; both must live as long. */
    void play(displayWindow_t& window, unit_t& unit);

    bool isOver() const { return m_isOver; }
    /** Once it is over: what went another way than in the journal, with file and line. Nothing without actions. */
    QStringList const& differences() const { return m_differences; }

signals:
    void ended();

private:
    bool readHeader(options_t& options, QStringList const& pages, QString& reason);
    bool readActions(QStringList const& pages, QString& fault);
    bool writeSettings(options_t& options, QString& reason);
    void act(int index);
    void finish();

    std::shared_ptr<melvox_link::journal_t> m_journal;
    QMap<int, action_t> m_actions; //!< by their index in the journal
    std::unique_ptr<QTemporaryDir> m_folder;
    unit_t* m_unit;
    std::unique_ptr<actionPlayer_t> m_player;
    bool m_withActions;
    bool m_isOver;
    QStringList m_differences;
};

} // namespace melvox_display

#endif
