#include "application/OutputOfExport.h"

#include <sysexits.h>
#include <unistd.h>

#include <QFile>

#include "application/ApplicationCommandLine.h"
#include "application/commands/ExportCommand.h"

namespace quindle {

int exportToStandardOutput(const Platform& platform, const ApplicationCommandLine& commandLine,
                           const CommandReport& report)
{
    ExportOptions options;
    options.format = commandLine.format;
    options.identity = commandLine.withSerials ? ExportedIdentity::Included : ExportedIdentity::LeftOut;
    if (commandLine.since)
        options.since = commandLine.since->startOfDay();
    QFile output;
    if (!output.open(STDOUT_FILENO, QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        report(QStringLiteral("cannot write to standard output: ") + output.errorString());
        return EX_IOERR;
    }
    return commandLine.samples ? exportSamples(platform, options, output, report)
                               : exportHistory(platform, options, output, report);
}

} // namespace quindle
