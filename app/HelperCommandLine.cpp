#include "app/HelperCommandLine.h"

#include "common/CommandLineOptions.h"

namespace quindle {

HelperCommandLine parseHelperCommandLine(const QStringList& arguments)
{
    using Call = HelperCommandLine::Call;
    bool help = false;
    bool version = false;
    const CommandLineOption options[] = {{"--help", &help}, {"-h", &help}, {"--version", &version}};
    const QString fault = readCommandLine(arguments, options, OptionValues::Any);
    // If anything was noted, the first argument was.
    if (version && arguments.constFirst() == QStringLiteral("--version"))
        return {Call::Version, fault};
    return {help ? Call::Help : Call::Run, fault};
}

QString helperHelpText()
{
    return QStringLiteral(
        "Usage: quindle-helper\n"
        "\n"
        "Shows the battery in the tray of the desktop's panel. One runs in a session: a second start opens\n"
        "the battery view of the first and ends.\n"
        "\n"
        "  -h, --help        this text\n"
        "  --version         the version\n"
        "\n"
        "Environment: QUINDLE_MACHINE, a recorded computer instead of this one; QUINDLE_SYSFS, a folder to "
        "read\n"
        "in place of /sys.\n"
        "Exit status: 0; 1 when it cannot run here; 2 for wrong usage or a refused machine file.\n"
        "In a terminal: quindle-inspect.\n");
}

} // namespace quindle
