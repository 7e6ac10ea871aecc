#include "windows/WindowsCommandLine.h"

namespace quindle {

namespace {

/// The number after "NAME="; nothing in any other argument.
std::optional<int> numberOf(const QString& argument, QStringView name)
{
    if (!argument.startsWith(name))
        return std::nullopt;
    bool isNumber = false;
    const int number = QStringView(argument).sliced(name.size()).toInt(&isNumber);
    return isNumber && number >= 0 ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<WindowsCommandLine> parseWindowsCommandLine(const QStringList& arguments)
{
    if (arguments == QStringList(QStringLiteral("--tray")))
        return WindowsCommandLine{.holdsTray = true};
    WindowsCommandLine commandLine;
    for (const QString& argument : arguments) {
        if (const auto link = numberOf(argument, u"--link="))
            commandLine.link = *link;
        else if (const auto patience = numberOf(argument, u"--patience="))
            commandLine.patience = std::chrono::milliseconds(*patience);
        else
            return std::nullopt;
    }
    return commandLine.link < 0 ? std::nullopt : std::optional(commandLine);
}

} // namespace quindle
