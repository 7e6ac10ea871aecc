#include "inspect/OwnComputer.h"

#include <sys/resource.h>

#include "platform/macos/MacPlatform.h"

namespace quindle {

struct OwnComputer::Services
{
    MacPlatform platform{MacPlatform::Program::Helper};
};

OwnComputer::OwnComputer(const QString& /*sysfsDirectory*/)
    : m_services(std::make_unique<Services>())
{
}

OwnComputer::~OwnComputer() = default;

Bundle& OwnComputer::bundle()
{
    return m_services->platform.bundle();
}

RunLoop& OwnComputer::runLoop()
{
    return m_services->platform.runLoop();
}

UserDefaultsDatabases& OwnComputer::userDefaults()
{
    return m_services->platform.userDefaults();
}

Platform OwnComputer::services(StatusBar& statusBar)
{
    return m_services->platform.services(statusBar);
}

IORegistry* OwnComputer::registryAsItIs()
{
    return &m_services->platform.registryAsItIs();
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
