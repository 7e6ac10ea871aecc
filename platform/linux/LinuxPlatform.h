#pragma once

#include <functional>
#include <memory>

#include <QString>

#include "platform/Platform.h"

namespace quindle {

/// The services of this Linux computer. The ones that a program does not ask for cost nothing.
class LinuxPlatform
{
public:
    /// `systemRoot` stands in place of /sys when it is not empty.
    explicit LinuxPlatform(const QString& systemRoot);
    ~LinuxPlatform();

    IORegistry& registry();
    PowerSources& powerSources();
    UserDefaultsDatabases& userDefaults();
    NotificationCenter& notificationCenter();
    DistributedNotificationCenter& distributedNotificationCenter();
    WorkspaceNotifications& workspaceNotifications();
    Workspace& workspace();
    Bundle& bundle();
    Clock& clock();
    Host& host();
    SystemFiles& systemFiles();
    RunLoop& runLoop();
    Application& application();

    /// All of them, with a status bar of the caller's choice.
    Platform services(StatusBar& statusBar);

private:
    struct Services;
    std::unique_ptr<Services> m_services;
};

} // namespace quindle
