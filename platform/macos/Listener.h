#pragma once

#include <functional>

#include <Foundation/Foundation.h>

/// What a notification center calls: an object with a function.
@interface QDListener : NSObject
- (instancetype)initWithFunction:(std::function<void(NSNotification*)>)heard;
- (void)hear:(NSNotification*)notification;
@end
