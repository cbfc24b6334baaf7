#ifndef MELVOX_SCENARIOS_DRIVE_FILES_H
#define MELVOX_SCENARIOS_DRIVE_FILES_H

#include <QByteArray>
#include <QStringList>

namespace melvox_scenarios
{

/** A firmware package of small components, each given as "NAV=1.15.2". Empty, and `why` for people, when a component is
 *  unknown or has no version. */
QByteArray firmwarePackage(QStringList const& components, QString& why);

/** Whether a file of that path stays on its drive. */
bool isDrivePath(QString const& path);

/** Whether a folder of that name can stand for a drive. */
bool isDriveName(QString const& name);

} // namespace melvox_scenarios

#endif
