#include "platform/recorded/RecordedPlatform.h"

namespace quindle {

RecordedPlatform::RecordedPlatform(const QVariantMap& machineKeys, const Bundle& programBundle,
                                   const QString& machineFile)
    : computer(machineKeys, machineFile)
    , registry(computer)
    , powerSources(computer)
    , userDefaults(computer)
    , bundle(computer, programBundle)
    , clock(computer)
    , host(computer)
    , systemFiles(computer)
    , loginItems(computer, bundle)
    , urlSession(computer)
    , userDirectories(computer)
{
}

Platform RecordedPlatform::platform()
{
    return {
        .registry = registry,
        .powerSources = powerSources,
        .userDefaults = userDefaults,
        .notificationCenter = notificationCenter,
        .distributedNotificationCenter = distributedNotificationCenter,
        .workspaceNotifications = workspaceNotifications,
        .workspace = workspace,
        .bundle = bundle,
        .clock = clock,
        .host = host,
        .systemFiles = systemFiles,
        .runLoop = runLoop,
        .statusBar = statusBar,
        .application = application,
        .urlSession = urlSession,
        .userDirectories = userDirectories,
        .loginItems = loginItems,
        .powerEvents = powerEvents,
    };
}

} // namespace quindle
