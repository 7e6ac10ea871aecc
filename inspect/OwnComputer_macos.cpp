#include "inspect/OwnComputer.h"

#include <sys/resource.h>

#include "platform/macos/MacPlatform.h"

namespace quindle {

OwnComputer ownComputer(const QString& /*sysfsDirectory*/)
{
    const auto platform = std::make_shared<MacPlatform>(MacPlatform::Program::Helper);
    return {.bundle = platform->bundle(),
            .runLoop = platform->runLoop(),
            .userDefaults = platform->userDefaults(),
            .registryAsItIs = &platform->registryAsItIs(),
            .services = [platform](StatusBar& statusBar) { return platform->services(statusBar); }};
}

void keepOutOfCoreDumps()
{
    const rlimit none{0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
}

/// A signal ends the process at once there; it has nothing to clean up.
std::shared_ptr<void> whenToEnd(const std::function<void()>& /*ended*/)
{
    return nullptr;
}

} // namespace quindle
