#include "application/ApplicationCommandLine.h"

#include "application/commands/ExportCommand.h"
#include "common/CommandLineOptions.h"

namespace quindle {

namespace {

using Call = ApplicationCommandLine::Call;

/// The options as they were given, before they are weighed against each other.
struct Given
{
    bool help = false;
    bool version = false;
    bool record = false;
    bool withSerials = false;
    bool samples = false;
    std::optional<QString> format;
    std::optional<QString> since;
};

/// A missing value counts as an empty one, which no option accepts.
QString readArguments(const QStringList& arguments, Given& given)
{
    const CommandLineOption options[] = {
        {"--help", &given.help},
        {"-h", &given.help},
        {"--version", &given.version},
        {"--record", &given.record},
        {"--with-serials", &given.withSerials},
        {"--samples", &given.samples},
        {"--export", &given.format},
        {"--since", &given.since},
    };
    return readCommandLine(arguments, options, OptionValues::Any);
}

QDate dateOf(const QString& text)
{
    return QDate::fromString(text, QStringLiteral("yyyy-MM-dd"));
}

QString contradiction(const Given& given)
{
    if (given.record && given.format)
        return QStringLiteral("--record and --export exclude each other");
    if (given.format && !exportFormatNamed(*given.format))
        return QStringLiteral("--export is csv or json");
    if (!given.format && given.since)
        return QStringLiteral("--since belongs to --export");
    if (!given.format && given.withSerials)
        return QStringLiteral("--with-serials belongs to --export");
    if (!given.format && given.samples)
        return QStringLiteral("--samples belongs to --export");
    if (given.samples && given.withSerials)
        return QStringLiteral("--samples have no serial numbers");
    if (given.since && !dateOf(*given.since).isValid())
        return QStringLiteral("--since is a date, such as 2026-03-31");
    return {};
}

Call callOf(const Given& given)
{
    // Before all others, which may be given besides; those exclude each other.
    if (given.help)
        return Call::Help;
    if (given.version)
        return Call::Version;
    if (given.record)
        return Call::Record;
    return given.format ? Call::Export : Call::Window;
}

} // namespace

ApplicationCommandLine parseApplicationCommandLine(const QStringList& arguments)
{
    Given given;
    ApplicationCommandLine commandLine;
    commandLine.fault = readArguments(arguments, given);
    if (commandLine.fault.isEmpty())
        commandLine.fault = contradiction(given);
    commandLine.call = callOf(given);
    if (given.format)
        commandLine.format = exportFormatNamed(*given.format).value_or(ExportFormat::Csv);
    if (given.since && dateOf(*given.since).isValid())
        commandLine.since = dateOf(*given.since);
    commandLine.withSerials = given.withSerials;
    commandLine.samples = given.samples;
    return commandLine;
}

QString applicationHelpText()
{
    return QStringLiteral(
        "Usage: quindle [--record | --export csv|json [--since DATE] [--samples | --with-serials]]\n"
        "\n"
        "Shows the battery of this computer in a window. One runs in a session: a second start raises the\n"
        "window of the first and ends.\n"
        "\n"
        "  --record          no window: add the samples on standard input to the history, and today's "
        "snapshot if\n"
        "                    there is none yet; the helper calls it\n"
        "  --export FORMAT   no window: the saved snapshots on standard output, as csv or json\n"
        "  --since DATE      with --export: only those of that day (2026-03-31) and later\n"
        "  --samples         with --export: the recorded charge and power in place of the snapshots\n"
        "  --with-serials    with --export: serial numbers too\n"
        "  -h, --help        this text\n"
        "  --version         the version\n"
        "\n"
        "Environment: QUINDLE_MACHINE, a recorded computer instead of this one; QUINDLE_SYSFS, a folder to "
        "read\n"
        "in place of /sys.\n"
        "Exit status: 0; 64 for wrong usage, 65 for damaged input, 66 when there is no history, 69 when it "
        "cannot\n"
        "run here, 73 to 75 when something cannot be written.\n");
}

} // namespace quindle
