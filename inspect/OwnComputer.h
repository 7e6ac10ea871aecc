#pragma once

#include <functional>
#include <memory>

#include <QString>

#include "platform/Platform.h"

namespace quindle {

/// The computer that the program runs on, and its process. One source file for each system.
class OwnComputer
{
public:
    /// Settings are only read: a damaged file is reported, and left for the helper to set aside.
    /// `sysfsDirectory` replaces /sys where there is one. Needs a QCoreApplication.
    explicit OwnComputer(const QString& sysfsDirectory);
    ~OwnComputer();

    Bundle& bundle();
    RunLoop& runLoop();
    UserDefaultsDatabases& userDefaults();

    /// All services, with a status bar of the caller's choice.
    Platform services(StatusBar& statusBar);

    /// The registry as it is, for captures; null where the services' own is unchanged.
    IORegistry* registryAsItIs();

private:
    struct Services;
    std::unique_ptr<Services> m_services;
};

/// Keeps the memory of this process, in which serial numbers are, out of core dumps.
void keepOutOfCoreDumps();

/// Has `ended` called from the main loop when the process is to end, or nobody reads its output any more, as
/// long as the returned object exists.
std::shared_ptr<void> whenToEnd(const std::function<void()>& ended);

} // namespace quindle
