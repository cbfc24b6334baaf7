#ifndef MELVOX_DISPLAY_RECORDING_H
#define MELVOX_DISPLAY_RECORDING_H

#include "link/journalWriter.h"

#include <QSize>
#include <QString>

#include <memory>

namespace melvox_display
{

class actionRecorder_t;
class displayWindow_t;
class uiSettings_t;
class unit_t;
struct options_t;

/** Keeps a journal of a run of the display: every message, and all that the operator does. The steps in the order of
 *  these operations. */
class recording_t
{
public:
    recording_t();
    ~recording_t();

    /** False, and `reason` for people, when the file cannot be used. Needs no application object. */
    bool open(QString const& file, QString& reason, qint64 limit = melvox_link::journalWriter_t::LIMIT);
    /** Before the window is made and the unit started. */
    void begin(options_t const& options, unit_t& unit, uiSettings_t const& settings);
    /** Once the first page is shown. */
    void watch(displayWindow_t& window, QString const& firstPage);

    /** Before the window goes: what pages send while they are taken down no operator had them send. */
    void end();

private:
    void writePage(QString const& page);

    melvox_link::journalWriter_t m_writer;
    std::unique_ptr<actionRecorder_t> m_actions;
};

} // namespace melvox_display

#endif
