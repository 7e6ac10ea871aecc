#include "inspect/OwnComputer.h"

#include "platform/linux/LinuxPlatform.h"
#include "platform/linux/os/CoreDumps.h"
#include "platform/linux/os/EndOfProcess.h"

namespace quindle {

struct OwnComputer::Services
{
    explicit Services(const QString& sysfsDirectory)
        : platform(sysfsDirectory, SettingsAccess::ReadOnly)
    {
    }

    LinuxPlatform platform;
};

OwnComputer::OwnComputer(const QString& sysfsDirectory)
    : m_services(std::make_unique<Services>(sysfsDirectory))
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
    return nullptr;
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
