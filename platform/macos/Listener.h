#pragma once

#include <functional>

#include <Foundation/Foundation.h>

/// The object that a notification center calls, with a function.
@interface QDListener : NSObject
- (instancetype)initWithFunction:(std::function<void(NSNotification*)>)heard;
- (void)hear:(NSNotification*)notification;
@end
