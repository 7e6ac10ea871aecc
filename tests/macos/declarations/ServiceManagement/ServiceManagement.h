#pragma once

// See CoreFoundation/CoreFoundation.h.

#include <Foundation/Foundation.h>

enum SMAppServiceStatus : NSInteger { SMAppServiceStatusEnabled = 1 };

@interface SMAppService : NSObject
+ (SMAppService*)mainAppService;
+ (instancetype)loginItemServiceWithIdentifier:(NSString*)identifier;
@property(readonly) SMAppServiceStatus status;
- (BOOL)registerAndReturnError:(NSError**)error;
- (BOOL)unregisterAndReturnError:(NSError**)error;
@end
