#pragma once

#include <optional>

#include <QDate>
#include <QString>
#include <QStringList>

#include "records/SnapshotExport.h"

namespace quindle {

/// What one call of quindle asks for.
struct ApplicationCommandLine
{
    enum class Call { Window, Record, Export, Help, Version };

    Call call = Call::Window;
    ExportFormat format = ExportFormat::Csv; ///< of Export, as the three below
    std::optional<QDate> since;
    bool withSerials = false;
    bool samples = false; ///< and not the snapshots
    QString fault;        ///< why the call is wrong usage, one line; empty when it is right
};

/// Reads the arguments (without the program's name). `--help` and `--version` win over the other calls.
ApplicationCommandLine parseApplicationCommandLine(const QStringList& arguments);

/// What --help prints.
QString applicationHelpText();

} // namespace quindle
