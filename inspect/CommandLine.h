#pragma once

#include <optional>

#include <QString>
#include <QStringList>

#include "inspect/BarLines.h"

namespace quindle {

/// What one call of quindle-inspect asks for.
struct CommandLine
{
    enum class Call { Report, Json, Metrics, Capture, Follow, Help, Version };

    Call call = Call::Report;
    BarFormat format = BarFormat::Text; ///< of Follow
    QString captureFile;
    bool withSerials = false;
    bool demo = false;
    bool asMac = false;     ///< the machine file's registry is read as by the back end for Macs
    QString machineFile;    ///< empty: not a recorded computer
    QString sysfsDirectory; ///< empty: /sys
    QString fault;          ///< why the call is wrong usage, one line; empty when it is right
};

/// Values of the environment that stand for options; empty like unset.
struct InspectEnvironment
{
    QString machineFile;    ///< QUINDLE_MACHINE
    QString sysfsDirectory; ///< QUINDLE_SYSFS
};

/// Reads the arguments (without the program's name). `--help` and `--version` win over the other calls; an
/// option beats the environment, and a machine file beats a sysfs folder given in the same way.
CommandLine parseCommandLine(const QStringList& arguments, const InspectEnvironment& environment);

/// What --help prints.
QString helpText();

} // namespace quindle
