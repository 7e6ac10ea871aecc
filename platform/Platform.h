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

struct ServiceOverrides;

/// Every service the program asks of the computer, whichever back end gives it. The composition roots
/// (app/main.cpp, inspect/main.cpp and tests) fill it in; all others only pass it on or take from it.
struct Platform
{
    IORegistry& registry;                                         ///< battery, model and serial number
    PowerSources& powerSources;                                   ///< sources, adapter, limit, devices
    UserDefaultsDatabases& userDefaults;                          ///< both settings databases
    NotificationCenter& notificationCenter;                       ///< within the process
    DistributedNotificationCenter& distributedNotificationCenter; ///< from and to other processes
    WorkspaceNotifications& workspaceNotifications;               ///< sleep and wake
    Workspace& workspace;                                         ///< starts programs, opens folders
    Bundle& bundle;                                               ///< where the program lies; its Info.plist
    Clock& clock;                                                 ///< the date, for ages and the daily upload
    Host& host;                                                   ///< the computer's name
    SystemFiles& systemFiles;                                     ///< property lists of the system
    RunLoop& runLoop;                                             ///< timers
    StatusBar& statusBar;                                         ///< the item in the panel
    Application& application;                                     ///< the process: its end, its windows
    UrlSession& urlSession;                                       ///< model names, and the daily upload
    UserDirectories& userDirectories;                             ///< where the saved history lies
    LoginItems& loginItems;                                       ///< what the session starts
    PowerEvents& powerEvents;                                     ///< plugs and swaps, as they happen

    /// The same services, except those that `overrides` names.
    Platform with(const ServiceOverrides& overrides) const;
};

/// Services that replace a platform's own: a composition root names those in which it differs. Null leaves a
/// service as it is; the others must outlive the platform made with them.
struct ServiceOverrides
{
    IORegistry* registry = nullptr;
    PowerSources* powerSources = nullptr;
    UserDefaultsDatabases* userDefaults = nullptr;
    NotificationCenter* notificationCenter = nullptr;
    DistributedNotificationCenter* distributedNotificationCenter = nullptr;
    WorkspaceNotifications* workspaceNotifications = nullptr;
    Workspace* workspace = nullptr;
    Bundle* bundle = nullptr;
    Clock* clock = nullptr;
    Host* host = nullptr;
    SystemFiles* systemFiles = nullptr;
    RunLoop* runLoop = nullptr;
    StatusBar* statusBar = nullptr;
    Application* application = nullptr;
    UrlSession* urlSession = nullptr;
    UserDirectories* userDirectories = nullptr;
    LoginItems* loginItems = nullptr;
    PowerEvents* powerEvents = nullptr;
};

} // namespace quindle
