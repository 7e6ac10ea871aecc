#pragma once

// See CoreFoundation/CoreFoundation.h.

#include <CoreFoundation/CoreFoundation.h>
#include <dispatch/dispatch.h>
#include <objc/NSObject.h>

using NSInteger = long;
using NSUInteger = unsigned long;
using CGFloat = double;
using NSTimeInterval = double;

struct CGSize
{
    CGFloat width;
    CGFloat height;
};
using NSSize = CGSize;

@class NSArray;
@class NSBundle;
@class NSData;
@class NSDictionary;
@class NSError;
@class NSOperationQueue;
@class NSString;
@class NSURL;
@class NSURLResponse;

@interface NSString : NSObject
@end
// What the compiler makes of @"".
@interface NSSimpleCString : NSString
@end
@interface NSConstantString : NSSimpleCString
@end

@interface NSData : NSObject
@end

@interface NSDictionary : NSObject
@end

@interface NSArray : NSObject
+ (instancetype)arrayWithObject:(id)object;
@end

@interface NSError : NSObject
@property(readonly, copy) NSString* localizedDescription;
@end

@interface NSURL : NSObject
+ (instancetype)fileURLWithPath:(NSString*)path;
+ (instancetype)URLWithString:(NSString*)text;
@end

@interface NSNotification : NSObject
@property(readonly, strong) id object;
@end

@interface NSNotificationCenter : NSObject
- (void)addObserver:(id)observer selector:(SEL)selector name:(NSString*)name object:(id)object;
- (void)removeObserver:(id)observer;
@end

enum NSNotificationSuspensionBehavior : NSUInteger { NSNotificationSuspensionBehaviorDeliverImmediately = 4 };

@interface NSDistributedNotificationCenter : NSNotificationCenter
+ (NSDistributedNotificationCenter*)defaultCenter;
- (void)addObserver:(id)observer
              selector:(SEL)selector
                  name:(NSString*)name
                object:(NSString*)object
    suspensionBehavior:(NSNotificationSuspensionBehavior)behavior;
- (void)postNotificationName:(NSString*)name
                      object:(NSString*)object
                    userInfo:(NSDictionary*)userInfo
          deliverImmediately:(BOOL)deliverImmediately;
@end

@interface NSUserDefaults : NSObject
+ (NSUserDefaults*)standardUserDefaults;
- (instancetype)initWithSuiteName:(NSString*)name;
- (id)objectForKey:(NSString*)key;
- (void)setObject:(id)value forKey:(NSString*)key;
- (NSDictionary*)persistentDomainForName:(NSString*)name;
@end

@interface NSBundle : NSObject
+ (NSBundle*)mainBundle;
+ (NSBundle*)bundleWithPath:(NSString*)path;
@property(readonly, copy) NSString* bundlePath;
@property(readonly, copy) NSDictionary* infoDictionary;
@end

@interface NSHost : NSObject
+ (instancetype)currentHost;
@property(readonly, copy) NSString* localizedName;
@end

@interface NSFileManager : NSObject
+ (NSFileManager*)defaultManager;
- (BOOL)fileExistsAtPath:(NSString*)path;
@end

enum NSSearchPathDirectory : NSUInteger { NSApplicationSupportDirectory = 14 };
enum NSSearchPathDomainMask : NSUInteger { NSUserDomainMask = 1 };

@interface NSOperationQueue : NSObject
+ (NSOperationQueue*)mainQueue;
- (void)addOperationWithBlock:(void (^)(void))block;
@end

@interface NSURLResponse : NSObject
@end

@interface NSHTTPURLResponse : NSURLResponse
@property(readonly) NSInteger statusCode;
@end

@interface NSMutableURLRequest : NSObject
- (instancetype)initWithURL:(NSURL*)url;
@property(copy) NSString* HTTPMethod;
@property(copy) NSData* HTTPBody;
@property NSTimeInterval timeoutInterval;
@end

@interface NSURLSessionConfiguration : NSObject
+ (NSURLSessionConfiguration*)ephemeralSessionConfiguration;
@end

@interface NSURLSessionDataTask : NSObject
- (void)resume;
- (void)cancel;
@end

@interface NSURLSession : NSObject
+ (NSURLSession*)sessionWithConfiguration:(NSURLSessionConfiguration*)configuration
                                 delegate:(id)delegate
                            delegateQueue:(NSOperationQueue*)queue;
- (void)finishTasksAndInvalidate;
- (NSURLSessionDataTask*)dataTaskWithRequest:(NSMutableURLRequest*)request
                           completionHandler:
                               (void (^)(NSData* data, NSURLResponse* response, NSError* error))handler;
@end

extern "C" {
NSString* NSHomeDirectory();
NSArray* NSSearchPathForDirectoriesInDomains(NSSearchPathDirectory directory, NSSearchPathDomainMask domains,
                                             BOOL expandTilde);
}
