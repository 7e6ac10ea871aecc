#pragma once

#include <functional>
#include <memory>

#include <QString>

#include "platform/Platform.h"

namespace quindle {

/// The computer that the program runs on, and its process. One source file for each system.
struct OwnComputer
{
    Bundle& bundle;
    RunLoop& runLoop;
    UserDefaultsDatabases& userDefaults;

    /// The registry as it is, for captures; null where the services' own is unchanged.
    IORegistry* registryAsItIs = nullptr;

    /// All services, with a status bar of the caller's choice. Keeps them alive.
    std::function<Platform(StatusBar&)> services;
};

/// Settings are only read: a damaged file is reported, and left for the helper to set aside.
/// `sysfsDirectory` replaces /sys where there is one. Needs a QCoreApplication.
OwnComputer ownComputer(const QString& sysfsDirectory);

/// Keeps the memory of this process, in which serial numbers are, out of core dumps.
void keepOutOfCoreDumps();

/// Calls `ended` from the main loop when the process is to end, or nobody reads its output any more, as long
/// as the returned object exists.
std::shared_ptr<void> whenToEnd(const std::function<void()>& ended);

} // namespace quindle
