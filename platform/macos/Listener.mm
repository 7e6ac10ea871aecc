#include "platform/macos/Listener.h"

#include <utility>

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
