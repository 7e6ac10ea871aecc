#include "inspect/CommandLine.h"

#include "common/CommandLineOptions.h"

namespace quindle {

namespace {

/// The options as they were given, before they are weighed against each other.
struct Given
{
    bool help = false;
    bool version = false;
    bool json = false;
    bool metrics = false;
    bool withSerials = false;
    bool demo = false;
    bool follow = false;
    bool asMac = false;
    std::optional<QString> capture;
    std::optional<QString> format;
    std::optional<QString> machine;
    std::optional<QString> sysfs;
};

QString readArguments(const QStringList& arguments, Given& given)
{
    const CommandLineOption options[] = {
        {"--help", &given.help},     {"-h", &given.help},           {"--version", &given.version},
        {"--json", &given.json},     {"--metrics", &given.metrics}, {"--with-serials", &given.withSerials},
        {"--demo", &given.demo},     {"--follow", &given.follow},   {"--capture", &given.capture},
        {"--format", &given.format}, {"--machine", &given.machine}, {"--sysfs", &given.sysfs},
        {"--as-mac", &given.asMac},
    };
    // "--capture --json" lacks the file's name.
    return readCommandLine(arguments, options, OptionValues::NotEmpty);
}

QString contradiction(const Given& given)
{
    if (given.json && given.capture)
        return QStringLiteral("--json and --capture exclude each other");
    if (given.follow && given.json)
        return QStringLiteral("--follow and --json exclude each other (there is --format json)");
    if (given.follow && given.capture)
        return QStringLiteral("--follow and --capture exclude each other");
    if (given.metrics && (given.json || given.capture || given.follow))
        return QStringLiteral("--metrics excludes --json, --capture and --follow");
    if (given.format && !given.follow)
        return QStringLiteral("--format belongs to --follow");
    if (given.format && !barFormatNamed(*given.format))
        return QStringLiteral("--format is text, json, i3bar or waybar");
    if (given.withSerials && !given.capture)
        return QStringLiteral("--with-serials belongs to --capture");
    return {};
}

CommandLine::Call callOf(const Given& given)
{
    // Before all others, which may be given besides; those exclude each other.
    if (given.help)
        return CommandLine::Call::Help;
    if (given.version)
        return CommandLine::Call::Version;
    if (given.json)
        return CommandLine::Call::Json;
    if (given.metrics)
        return CommandLine::Call::Metrics;
    if (given.follow)
        return CommandLine::Call::Follow;
    return given.capture ? CommandLine::Call::Capture : CommandLine::Call::Report;
}

/// The computer of an option, else of the environment; the machine file first in both.
void chooseComputer(const Given& given, const InspectEnvironment& environment, CommandLine& commandLine)
{
    if (given.machine)
        commandLine.machineFile = *given.machine;
    else if (given.sysfs)
        commandLine.sysfsDirectory = *given.sysfs;
    else if (!environment.machineFile.isEmpty())
        commandLine.machineFile = environment.machineFile;
    else
        commandLine.sysfsDirectory = environment.sysfsDirectory;
}

} // namespace

CommandLine parseCommandLine(const QStringList& arguments, const InspectEnvironment& environment)
{
    Given given;
    CommandLine commandLine;
    commandLine.fault = readArguments(arguments, given);
    if (commandLine.fault.isEmpty())
        commandLine.fault = contradiction(given);
    commandLine.call = callOf(given);
    if (given.format)
        commandLine.format = barFormatNamed(*given.format).value_or(BarFormat::Text);
    commandLine.captureFile = given.capture.value_or(QString());
    commandLine.withSerials = given.withSerials;
    commandLine.demo = given.demo;
    commandLine.asMac = given.asMac;
    chooseComputer(given, environment, commandLine);
    // Another computer's registry has no such layouts, and this one's back end has already handled them.
    if (commandLine.fault.isEmpty() && given.asMac && commandLine.machineFile.isEmpty())
        commandLine.fault = QStringLiteral("--as-mac belongs to --machine");
    return commandLine;
}

QString helpText()
{
    return QStringLiteral(
        "Usage: quindle-inspect [--json | --metrics | --capture FILE [--with-serials] | --follow [--format "
        "FORMAT]]\n"
        "                       [--demo] [--machine FILE [--as-mac] | --sysfs DIR]\n"
        "\n"
        "Prints what Quindle Helper knows of this computer and its battery, and what it would show.\n"
        "Sends nothing over the network, changes no settings and shows no window.\n"
        "\n"
        "  --json            one JSON object on one line; with a machine file one more for each of its "
        "steps\n"
        "  --metrics         the battery in the text format of OpenMetrics and Prometheus, without serial "
        "numbers\n"
        "  --capture FILE    write this computer as a machine file, replacing FILE; serial numbers and the\n"
        "                    computer's name are replaced by invented ones\n"
        "  --with-serials    with --capture: keep the true serial numbers, name and model cache\n"
        "  --follow          the title, and again whenever it changes, a line each, until it is ended or "
        "nobody\n"
        "                    reads: for the bars of window managers\n"
        "  --format FORMAT   with --follow: text, json (an object a line), i3bar or waybar\n"
        "  --demo            the demonstration computer\n"
        "  --machine FILE    a recorded computer instead of this one (environment: QUINDLE_MACHINE)\n"
        "  --as-mac          with --machine: its registry is a Mac's as that Mac has it, such as a Mac's "
        "capture\n"
        "  --sysfs DIR       read DIR in place of /sys (environment: QUINDLE_SYSFS)\n"
        "  -h, --help        this text\n"
        "  --version         the version\n"
        "\n"
        "An option beats the environment; a machine file beats a sysfs folder.\n"
        "Exit status: 0; 2 for wrong usage, a refused machine file, a DIR without class/power_supply or a "
        "file that\n"
        "cannot be written.\n");
}

} // namespace quindle
