#pragma once

// See CoreFoundation/CoreFoundation.h.

#include <Foundation/Foundation.h>

@class UNNotification;
@class UNUserNotificationCenter;

using UNAuthorizationOptions = NSUInteger;
enum : UNAuthorizationOptions { UNAuthorizationOptionAlert = 4 };

using UNNotificationPresentationOptions = NSUInteger;
enum : UNNotificationPresentationOptions {
    UNNotificationPresentationOptionList = 8,
    UNNotificationPresentationOptionBanner = 16,
};

enum UNNotificationInterruptionLevel : NSUInteger {
    UNNotificationInterruptionLevelPassive = 0,
    UNNotificationInterruptionLevelActive = 1,
    UNNotificationInterruptionLevelTimeSensitive = 2,
};

@protocol UNUserNotificationCenterDelegate
@optional
- (void)userNotificationCenter:(UNUserNotificationCenter*)center
       willPresentNotification:(UNNotification*)notification
         withCompletionHandler:(void (^)(UNNotificationPresentationOptions options))handler;
@end

@interface UNNotificationContent : NSObject
@end

@interface UNMutableNotificationContent : UNNotificationContent
@property(copy) NSString* title;
@property(copy) NSString* body;
@property UNNotificationInterruptionLevel interruptionLevel;
@end

@interface UNNotificationRequest : NSObject
+ (instancetype)requestWithIdentifier:(NSString*)identifier
                              content:(UNNotificationContent*)content
                              trigger:(id)trigger;
@end

@interface UNUserNotificationCenter : NSObject
+ (UNUserNotificationCenter*)currentNotificationCenter;
@property(weak) id<UNUserNotificationCenterDelegate> delegate;
- (void)requestAuthorizationWithOptions:(UNAuthorizationOptions)options
                      completionHandler:(void (^)(BOOL isGranted, NSError* error))handler;
- (void)addNotificationRequest:(UNNotificationRequest*)request
         withCompletionHandler:(void (^)(NSError* error))handler;
- (void)removePendingNotificationRequestsWithIdentifiers:(NSArray*)identifiers;
- (void)removeDeliveredNotificationsWithIdentifiers:(NSArray*)identifiers;
@end
