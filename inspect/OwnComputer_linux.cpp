#include "inspect/OwnComputer.h"

#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/os/CoreDumps.h"
#include "platform/linux/os/EndOfProcess.h"

namespace quindle {

OwnComputer ownComputer(const QString& sysfsDirectory)
{
    const auto platform = std::make_shared<LinuxPlatform>(sysfsDirectory, SettingsAccess::ReadOnly);
    return {.bundle = platform->bundle(),
            .runLoop = platform->runLoop(),
            .userDefaults = platform->userDefaults(),
            .services = [platform](StatusBar& statusBar) { return platform->services(statusBar); }};
}

void keepOutOfCoreDumps()
{
    keepMemoryOutOfCoreDumps();
}

std::shared_ptr<void> whenToEnd(const std::function<void()>& ended)
{
    return std::make_shared<EndOfProcess>(ended);
}

} // namespace quindle
