#include <utility>

#include <UserNotifications/UserNotifications.h>

#include "platform/macos/MacCalls.h"
#include "platform/macos/system/CocoaText.h"

/// Notifications are shown also while a window of this program is in front.
@interface QDNoticeDelegate : NSObject <UNUserNotificationCenterDelegate>
@end

@implementation QDNoticeDelegate

- (void)userNotificationCenter:(UNUserNotificationCenter*)center
       willPresentNotification:(UNNotification*)notification
         withCompletionHandler:(void (^)(UNNotificationPresentationOptions options))handler
{
    handler(UNNotificationPresentationOptionList | UNNotificationPresentationOptionBanner);
}

@end

namespace quindle {

namespace {

// The system's levels are the urgencies, in their order.
static_assert(static_cast<int>(Notification::Urgency::Low) == UNNotificationInterruptionLevelPassive);
static_assert(static_cast<int>(Notification::Urgency::Normal) == UNNotificationInterruptionLevelActive);
static_assert(static_cast<int>(Notification::Urgency::Critical) ==
              UNNotificationInterruptionLevelTimeSensitive);

/// There is one at a time, so all have one name.
NSString* const noticeName = @"battery-warning";

UNUserNotificationCenter* center()
{
    return [UNUserNotificationCenter currentNotificationCenter];
}

/// The center answers on threads of its own.
void onMainThread(std::function<void()> work)
{
    [[NSOperationQueue mainQueue] addOperationWithBlock:^{
      work();
    }];
}

UNNotificationRequest* requestOf(const Notification& notification)
{
    UNMutableNotificationContent* const content = [[UNMutableNotificationContent alloc] init];
    content.title = cocoaText(notification.title);
    content.body = cocoaText(notification.text);
    content.interruptionLevel = static_cast<UNNotificationInterruptionLevel>(notification.urgency);
    return [UNNotificationRequest requestWithIdentifier:noticeName content:content trigger:nil];
}

class SystemNotices : public NoticeCalls
{
public:
    SystemNotices() { center().delegate = m_delegate; }

    void askPermission(PermissionAnswered answered) override
    {
        [center() requestAuthorizationWithOptions:UNAuthorizationOptionAlert
                                completionHandler:^(BOOL isGranted, NSError* error) {
                                  const QString fault = plainText(error.localizedDescription);
                                  onMainThread([=] { answered(isGranted, fault); });
                                }];
    }

    void show(const Notification& notification, Answered answered) override
    {
        [center() addNotificationRequest:requestOf(notification)
                   withCompletionHandler:^(NSError* error) {
                     const QString fault = plainText(error.localizedDescription);
                     onMainThread([=] { answered(fault); });
                   }];
    }

    void withdraw() override
    {
        NSArray* const names = [NSArray arrayWithObject:noticeName];
        [center() removePendingNotificationRequestsWithIdentifiers:names];
        [center() removeDeliveredNotificationsWithIdentifiers:names];
    }

private:
    QDNoticeDelegate* m_delegate = [[QDNoticeDelegate alloc] init]; ///< the center does not keep it
};

} // namespace

std::unique_ptr<NoticeCalls> systemNotices()
{
    return std::make_unique<SystemNotices>();
}

} // namespace quindle
