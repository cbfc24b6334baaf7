#ifndef MELVOX_DISPLAY_PROFILE_COMPARISON_H
#define MELVOX_DISPLAY_PROFILE_COMPARISON_H

#include "receiver/settingsTable.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace melvox_display
{

/** A settings profile as it was read from a file. */
struct profileFile_t
{
    bool isGood() const { return problem.isEmpty(); }

    melvox_receiver::settings_t settings;
    QByteArray bytes;
    QString problem; //!< what is wrong with the file and what to do; empty: nothing
};

/** Nothing is taken from a file that is not wholly good. */
profileFile_t readProfileFile(QString const& path);

/** A setting that a profile would change, as the operator reads it. */
struct difference_t
{
    QString name; //!< "Elevation mask", "COM1: Baud rate"
    QString now;
    QString then;
    QString unit;
};

/** What would change if the receiver, which has the settings `now`, took over those of `then`. In the order of the
 *  receiver's table; what both show alike is no difference, and what the profile does not name stays as it is. */
QList<difference_t> differences(melvox_receiver::settings_t const& now, melvox_receiver::settings_t const& then);

} // namespace melvox_display

#endif
