#pragma once

#include <chrono>
#include <optional>

#include <QStringList>

namespace quindle {

/// What the helper starts its windows with.
struct WindowsCommandLine
{
    bool holdsTray = false; ///< --tray, alone: for the icon in an X11 tray, not for windows
    int link = -1;          ///< --link=N, the number of the inherited socket
    std::chrono::milliseconds patience{60'000}; ///< --patience=MS, without a window before it may end
};

/// Reads the arguments (without the program's name); nothing when they are wrong.
std::optional<WindowsCommandLine> parseWindowsCommandLine(const QStringList& arguments);

} // namespace quindle
