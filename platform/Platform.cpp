#include "platform/Platform.h"

namespace quindle {

namespace {

template <typename Service>
Service& chosen(Service* overriding, Service& own)
{
    return overriding ? *overriding : own;
}

} // namespace

Platform Platform::with(const ServiceOverrides& overrides) const
{
    return {
        .registry = chosen(overrides.registry, registry),
        .powerSources = chosen(overrides.powerSources, powerSources),
        .userDefaults = chosen(overrides.userDefaults, userDefaults),
        .notificationCenter = chosen(overrides.notificationCenter, notificationCenter),
        .distributedNotificationCenter =
            chosen(overrides.distributedNotificationCenter, distributedNotificationCenter),
        .workspaceNotifications = chosen(overrides.workspaceNotifications, workspaceNotifications),
        .workspace = chosen(overrides.workspace, workspace),
        .bundle = chosen(overrides.bundle, bundle),
        .clock = chosen(overrides.clock, clock),
        .host = chosen(overrides.host, host),
        .systemFiles = chosen(overrides.systemFiles, systemFiles),
        .runLoop = chosen(overrides.runLoop, runLoop),
        .statusBar = chosen(overrides.statusBar, statusBar),
        .application = chosen(overrides.application, application),
        .urlSession = chosen(overrides.urlSession, urlSession),
        .userDirectories = chosen(overrides.userDirectories, userDirectories),
        .loginItems = chosen(overrides.loginItems, loginItems),
        .powerEvents = chosen(overrides.powerEvents, powerEvents),
    };
}

} // namespace quindle
