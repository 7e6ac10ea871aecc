#include <functional>
#include <utility>
#include <vector>

#include <AppKit/AppKit.h>

#include "platform/macos/MacCalls.h"
#include "platform/macos/system/CocoaText.h"

/// The object that a notification center calls, with a function.
@interface QDListener : NSObject
- (instancetype)initWithFunction:(std::function<void(NSNotification*)>)heard;
- (void)hear:(NSNotification*)notification;
@end

@implementation QDListener {
    std::function<void(NSNotification*)> _heard;
}

- (instancetype)initWithFunction:(std::function<void(NSNotification*)>)heard
{
    self = [super init];
    _heard = std::move(heard);
    return self;
}

- (void)hear:(NSNotification*)notification
{
    _heard(notification);
}

@end

namespace quindle {

namespace {

class SystemNotifications : public NotificationCalls
{
public:
    ~SystemNotifications() override
    {
        for (QDListener* const& listener : m_listeners)
            [[NSDistributedNotificationCenter defaultCenter] removeObserver:listener];
    }

    void observe(const QString& name, std::function<void(const QString& sender)> heard) override
    {
        m_listeners.push_back([[QDListener alloc]
            initWithFunction:[heard](NSNotification* note) { heard(plainText((NSString*)note.object)); }]);
        // Also while the process is in the background.
        [[NSDistributedNotificationCenter defaultCenter]
                   addObserver:m_listeners.back()
                      selector:@selector(hear:)
                          name:cocoaText(name)
                        object:nil
            suspensionBehavior:NSNotificationSuspensionBehaviorDeliverImmediately];
    }

    void post(const QString& name, const QString& sender) override
    {
        [[NSDistributedNotificationCenter defaultCenter] postNotificationName:cocoaText(name)
                                                                       object:cocoaText(sender)
                                                                     userInfo:nil
                                                           deliverImmediately:YES];
    }

private:
    std::vector<QDListener*> m_listeners;
};

class SystemSleep : public WorkspaceNotifications
{
public:
    ~SystemSleep() override
    {
        for (QDListener* const& listener : m_listeners)
            [[NSWorkspace sharedWorkspace].notificationCenter removeObserver:listener];
    }

    void addWillSleepObserver(NotificationCenter::Observer observer) override
    {
        add(NSWorkspaceWillSleepNotification, std::move(observer));
    }

    void addDidWakeObserver(NotificationCenter::Observer observer) override
    {
        add(NSWorkspaceDidWakeNotification, std::move(observer));
    }

private:
    void add(NSString* name, NotificationCenter::Observer observer)
    {
        m_listeners.push_back(
            [[QDListener alloc] initWithFunction:[observer](NSNotification*) { observer(); }]);
        [[NSWorkspace sharedWorkspace].notificationCenter addObserver:m_listeners.back()
                                                             selector:@selector(hear:)
                                                                 name:name
                                                               object:nil];
    }

    std::vector<QDListener*> m_listeners;
};

} // namespace

std::unique_ptr<NotificationCalls> systemNotifications()
{
    return std::make_unique<SystemNotifications>();
}

std::unique_ptr<WorkspaceNotifications> systemSleepNotifications()
{
    return std::make_unique<SystemSleep>();
}

} // namespace quindle
