#include "platform/linux/LinuxPlatform.h"

#include "platform/NotificationCenter.h"
#include "platform/linux/LinuxApplication.h"
#include "platform/linux/LinuxBundle.h"
#include "platform/linux/LinuxHost.h"
#include "platform/linux/LinuxNotifications.h"
#include "platform/linux/LinuxPowerSources.h"
#include "platform/linux/LinuxRegistry.h"
#include "platform/linux/LinuxRunLoop.h"
#include "platform/linux/LinuxUserDefaults.h"
#include "platform/linux/LinuxWorkspace.h"

namespace quindle {

struct LinuxPlatform::Services
{
    explicit Services(const QString& systemRoot)
        : registry(systemRoot)
        , powerSources(systemRoot)
        , userDefaults(settingsFolder())
    {
    }

    LinuxRegistry registry;
    LinuxPowerSources powerSources;
    LinuxUserDefaultsDatabases userDefaults;
    NotificationCenter notificationCenter;
    LinuxDistributedNotificationCenter distributedNotificationCenter;
    LinuxWorkspaceNotifications workspaceNotifications;
    LinuxWorkspace workspace;
    LinuxBundle bundle;
    LinuxClock clock;
    LinuxHost host;
    LinuxSystemFiles systemFiles;
    LinuxRunLoop runLoop;
    LinuxApplication application;
};

LinuxPlatform::LinuxPlatform(const QString& systemRoot)
    : m_services(std::make_unique<Services>(systemRoot))
{
}

LinuxPlatform::~LinuxPlatform() = default;

Bundle& LinuxPlatform::bundle()
{
    return m_services->bundle;
}

UserDefaultsDatabases& LinuxPlatform::userDefaults()
{
    return m_services->userDefaults;
}

Platform LinuxPlatform::services(StatusBar& statusBar)
{
    Services& own = *m_services;
    return {.registry = own.registry,
            .powerSources = own.powerSources,
            .userDefaults = own.userDefaults,
            .notificationCenter = own.notificationCenter,
            .distributedNotificationCenter = own.distributedNotificationCenter,
            .workspaceNotifications = own.workspaceNotifications,
            .workspace = own.workspace,
            .bundle = own.bundle,
            .clock = own.clock,
            .host = own.host,
            .systemFiles = own.systemFiles,
            .runLoop = own.runLoop,
            .statusBar = statusBar,
            .application = own.application};
}

} // namespace quindle
