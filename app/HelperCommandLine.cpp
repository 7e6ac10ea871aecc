#include "app/HelperCommandLine.h"

#include <algorithm>
#include <iterator>

namespace quindle {

namespace {

struct NamedCall
{
    QStringView name;
    HelperCommandLine::Call call;
};

constexpr NamedCall namedCalls[] = {
    {u"--help", HelperCommandLine::Call::Help},
    {u"-h", HelperCommandLine::Call::Help},
    {u"--version", HelperCommandLine::Call::Version},
};

const NamedCall* callNamed(const QString& argument)
{
    const auto* found = std::find_if(std::begin(namedCalls), std::end(namedCalls),
                                     [&](const NamedCall& named) { return argument == named.name; });
    return found == std::end(namedCalls) ? nullptr : found;
}

} // namespace

HelperCommandLine parseHelperCommandLine(const QStringList& arguments)
{
    HelperCommandLine commandLine;
    for (const QString& argument : arguments) {
        const NamedCall* named = callNamed(argument);
        if (!named)
            return {commandLine.call, QStringLiteral("unknown argument \"%1\"").arg(argument)};
        if (commandLine.call == HelperCommandLine::Call::Run)
            commandLine.call = named->call;
    }
    return commandLine;
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
