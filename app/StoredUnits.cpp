#include "app/StoredUnits.h"

#include "app/HelperAppDelegate.h"
#include "mac/StoredModes.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/UserDefaults.h"

namespace quindle {

void followStoredUnits(const Platform& platform, HelperAppDelegate& delegate)
{
    platform.distributedNotificationCenter.addObserver(
        QStringLiteral("SettingsChangedNotification"), [&platform, &delegate] {
            if (followStoredModes(delegate.myMac(), platform.userDefaults.standard()))
                delegate.updateStatusBarTitle();
        });
}

} // namespace quindle
