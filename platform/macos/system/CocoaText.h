#pragma once

#include <Foundation/Foundation.h>

#include "platform/macos/system/CfValues.h"

namespace quindle {

inline NSString* cocoaText(const QString& text)
{
    return (__bridge_transfer NSString*)cfFromText(text).release();
}

inline QString plainText(NSString* text)
{
    return textFromCf((__bridge CFTypeRef)text);
}

} // namespace quindle
