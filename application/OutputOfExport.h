#pragma once

#include "application/commands/CommandReport.h"

namespace quindle {

struct ApplicationCommandLine;
struct Platform;

/// `quindle --export` onto standard output, as the command line wants it. Gives the exit code: that of
/// `exportHistory`, or EX_IOERR when there is no standard output.
int exportToStandardOutput(const Platform& platform, const ApplicationCommandLine& commandLine,
                           const CommandReport& report);

} // namespace quindle
