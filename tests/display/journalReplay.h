#ifndef MELVOX_TEST_JOURNAL_REPLAY_H
#define MELVOX_TEST_JOURNAL_REPLAY_H

#include "brel_common_qt/usbDriveManager.h"
#include "display/displayWindow.h"
#include "display/options.h"
#include "display/replay.h"
#include "display/uiSettings.h"
#include "display/unit.h"
#include "support/dialogs.h"
#include "support/operator.h"
#include "support/test.h"

#include <memory>

namespace melvox_test
{

/** Plays a journal, the operator's side too, to a display of its own, as fast as that follows. Returns what went another
 *  way, with file and line. */
inline QStringList replayed(QString const& file)
{
    using namespace melvox_display;
    int const LONGEST_MS = 60000;
    options_t options;
    options.replayFile = file;
    options.replayActions = true;
    options.connection.replaySpeed = 0.0;
    replay_t replay;
    QString fault;
    if (!replay.load(options, allPages(), fault))
        return {fault};
    std::unique_ptr<brel_common_qt::usbDriveManager_t> drives;
    if (options.hasDrives)
        drives.reset(new brel_common_qt::usbDriveManager_t);
    unit_t unit(options.connection);
    uiSettings_t settings(options.settingsFile);
    settings.applyPreferences(options);
    displayWindow_t window(allPages(), &unit, &settings, options.size);
    replay.play(window, unit);
    unit.start();
    window.showFirstPage(options.page);
    window.show();
    bool const isOver = waitFor([&]() { return replay.isOver(); }, LONGEST_MS);
    // What nobody answered belongs to nobody.
    if (openBox())
        closeBox();
    if (openFileDialog())
        cancelFileDialog();
    if (!isOver)
        return {"the journal does not come to its end"};
    return replay.differences();
}

} // namespace melvox_test

#endif
