#pragma once

namespace quindle {

class Application;
class Bundle;
class Clock;
class DistributedNotificationCenter;
class Host;
class IORegistry;
class LoginItems;
class NotificationCenter;
class PowerEvents;
class PowerSources;
class RunLoop;
class StatusBar;
class SystemFiles;
class UrlSession;
class UserDefaultsDatabases;
class UserDirectories;
class Workspace;
class WorkspaceNotifications;

/// Every service the program asks of the computer, whichever back end gives it. The composition roots
/// (app/main.cpp, inspect/main.cpp and tests) fill it in; all others only pass it on or take from it.
struct Platform
{
    IORegistry& registry;
    PowerSources& powerSources;
    UserDefaultsDatabases& userDefaults;
    NotificationCenter& notificationCenter;
    DistributedNotificationCenter& distributedNotificationCenter;
    WorkspaceNotifications& workspaceNotifications;
    Workspace& workspace;
    Bundle& bundle;
    Clock& clock;
    Host& host;
    SystemFiles& systemFiles;
    RunLoop& runLoop;
    StatusBar& statusBar;
    Application& application;
    UrlSession& urlSession;
    UserDirectories& userDirectories;
    LoginItems& loginItems;
    PowerEvents& powerEvents;
};

} // namespace quindle
