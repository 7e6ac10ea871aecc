#pragma once

#include <QBuffer>
#include <QStringList>

#include "application/commands/CommandReport.h"
#include "tests/records/TemporaryHistory.h"
#include "tests/support/FakePlatform.h"
#include "tests/support/ScopedTimeZone.h"

namespace quindle {

/// A computer with a folder for its history, and what a command reports.
struct CommandCase : TemporaryHistory
{
    CommandCase() { computer.userDirectories.applicationSupport = {folder()}; }

    CommandReport report()
    {
        return [this](const QString& line) { lines.append(line); };
    }

    ScopedTimeZone zone{"UTC"};
    FakePlatform computer;
    QStringList lines;
};

} // namespace quindle
