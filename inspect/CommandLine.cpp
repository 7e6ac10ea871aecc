#include "inspect/CommandLine.h"

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
    std::optional<QString> capture;
    std::optional<QString> format;
    std::optional<QString> machine;
    std::optional<QString> sysfs;
};

struct Flag
{
    const char* name;
    bool Given::*member;
};

// clang-format off
constexpr Flag flags[] = {
    {"--help", &Given::help},
    {"-h", &Given::help},
    {"--version", &Given::version},
    {"--json", &Given::json},
    {"--metrics", &Given::metrics},
    {"--with-serials", &Given::withSerials},
    {"--demo", &Given::demo},
    {"--follow", &Given::follow},
};
// clang-format on

struct Option
{
    const char* name;
    std::optional<QString> Given::*member;
};

constexpr Option options[] = {
    {"--capture", &Given::capture},
    {"--format", &Given::format},
    {"--machine", &Given::machine},
    {"--sysfs", &Given::sysfs},
};

bool takeFlag(const QString& argument, Given& given)
{
    for (const Flag& flag : flags) {
        if (argument != QLatin1String(flag.name))
            continue;
        given.*flag.member = true;
        return true;
    }
    return false;
}

/// Takes "--name value" or "--name=value". True when the argument is such an option; `fault` names a missing
/// value.
bool takeOption(const QStringList& arguments, qsizetype& index, Given& given, QString& fault)
{
    const QString& argument = arguments[index];
    for (const Option& option : options) {
        const QLatin1String name(option.name);
        // "--capture --json" lacks the file's name; one that begins with a dash is given as
        // "--capture=-name".
        if (argument == name && index + 1 < arguments.size() && !arguments[index + 1].startsWith(u'-'))
            given.*option.member = arguments[++index];
        else if (argument.startsWith(name + QStringLiteral("=")))
            given.*option.member = argument.mid(name.size() + 1);
        else if (argument != name)
            continue;
        // An empty value too: "--machine=" would look at this computer without a word.
        if (!(given.*option.member) || (given.*option.member)->isEmpty())
            fault = QStringLiteral("%1 needs a value").arg(name);
        return true;
    }
    return false;
}

QString readArguments(const QStringList& arguments, Given& given)
{
    QString fault;
    for (qsizetype index = 0; index < arguments.size() && fault.isEmpty(); ++index) {
        if (takeFlag(arguments[index], given) || takeOption(arguments, index, given, fault))
            continue;
        fault = QStringLiteral("unknown argument \"%1\"").arg(arguments[index]);
    }
    return fault;
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
    chooseComputer(given, environment, commandLine);
    return commandLine;
}

QString helpText()
{
    return QStringLiteral(
        "Usage: quindle-inspect [--json | --metrics | --capture FILE [--with-serials] | --follow [--format "
        "FORMAT]]\n"
        "                       [--demo] [--machine FILE | --sysfs DIR]\n"
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
