#pragma once

#include <optional>

#include <QIODevice>

#include "application/commands/CommandReport.h"
#include "platform/Platform.h"
#include "records/SnapshotExport.h"

namespace quindle {

/// The format of that name ("csv", "json"); nothing for any other.
std::optional<ExportFormat> exportFormatNamed(const QString& name);

/// `quindle --export`: writes the snapshots of the archive to `output`, which should not buffer: only then is
/// a full disk noticed.
///
/// Gives the exit code: 0; EX_NOINPUT when there is no archive, EX_DATAERR when it is damaged, EX_IOERR when
/// `output` does not take all.
int exportHistory(const Platform& platform, const ExportOptions& options, QIODevice& output,
                  const CommandReport& report);

/// The same for the recorded samples of charge and power, from `options.since` on.
int exportSamples(const Platform& platform, const ExportOptions& options, QIODevice& output,
                  const CommandReport& report);

} // namespace quindle
