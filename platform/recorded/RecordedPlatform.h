#pragma once

#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/recorded/RecordedBundle.h"
#include "platform/recorded/RecordedComputer.h"
#include "platform/recorded/RecordedHost.h"
#include "platform/recorded/RecordedIORegistry.h"
#include "platform/recorded/RecordedLoginItems.h"
#include "platform/recorded/RecordedNotifications.h"
#include "platform/recorded/RecordedPowerSources.h"
#include "platform/recorded/RecordedRunLoop.h"
#include "platform/recorded/RecordedStatusBar.h"
#include "platform/recorded/RecordedUrlSession.h"
#include "platform/recorded/RecordedUserDefaults.h"
#include "platform/recorded/RecordedWorkspace.h"

namespace quindle {

/// Every service of one recorded computer. A composition root that wants some services of another kind (a
/// real tray, a real run loop) takes the others out of `platform()`.
struct RecordedPlatform
{
    /// `programBundle` answers where the machine file has no bundle; it must outlive this. `machineFile` as
    /// for RecordedComputer.
    RecordedPlatform(const QVariantMap& machineKeys, const Bundle& programBundle,
                     const QString& machineFile = {});

    RecordedPlatform(const RecordedPlatform&) = delete;
    RecordedPlatform& operator=(const RecordedPlatform&) = delete;

    Platform platform();

    RecordedComputer computer;
    RecordedIORegistry registry;
    RecordedPowerSources powerSources;
    RecordedUserDefaultsDatabases userDefaults;
    NotificationCenter notificationCenter;
    RecordedDistributedNotificationCenter distributedNotificationCenter;
    RecordedWorkspaceNotifications workspaceNotifications;
    RecordedWorkspace workspace;
    RecordedBundle bundle;
    RecordedClock clock;
    RecordedHost host;
    RecordedSystemFiles systemFiles;
    RecordedRunLoop runLoop;
    RecordedStatusBar statusBar;
    RecordedApplication application;
    RecordedLoginItems loginItems;
    RecordedUrlSession urlSession;
    RecordedUserDirectories userDirectories;
    RecordedPowerEvents powerEvents;
};

} // namespace quindle
