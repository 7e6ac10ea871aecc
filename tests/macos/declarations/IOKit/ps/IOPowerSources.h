#pragma once

// See CoreFoundation/CoreFoundation.h.

#include <CoreFoundation/CoreFoundation.h>

using IOPowerSourceCallbackType = void (*)(void* context);

extern "C" {
CFTypeRef IOPSCopyPowerSourcesInfo();
CFArrayRef IOPSCopyPowerSourcesList(CFTypeRef blob);
CFDictionaryRef IOPSGetPowerSourceDescription(CFTypeRef blob, CFTypeRef source);
CFDictionaryRef IOPSCopyExternalPowerAdapterDetails();
CFRunLoopSourceRef IOPSNotificationCreateRunLoopSource(IOPowerSourceCallbackType callback, void* context);
}
