#ifndef MELVOX_FIRMWARE_PROGRAM_OPTIONS_H
#define MELVOX_FIRMWARE_PROGRAM_OPTIONS_H

#include <QCommandLineOption>
#include <QCoreApplication>
#include <QStringList>

namespace melvox_firmware
{

/** For a program that was called wrongly: the fault, and the options that would have been understood. */
inline QString misunderstood(QString fault, QList<QCommandLineOption> const& options)
{
    if (fault.endsWith('.'))
        fault.chop(1);
    QStringList names;
    for (QCommandLineOption const& option : options)
        names << "--" + option.names().constLast();
    return QCoreApplication::translate("programs", "%1. The options are: %2.").arg(fault, names.join(", "));
}

} // namespace melvox_firmware

#endif
