#pragma once

// Declarations written for this project of what it uses of a Mac's frameworks, so that the back end can be
// compiled where there is none. scripts/check-macos compares them with others'. On a Mac the system's own are
// used.

#include <cstdint>

using Boolean = unsigned char;
using UniChar = std::uint16_t;
using UInt8 = std::uint8_t;
using CFIndex = long;
using CFTypeID = unsigned long;
using CFHashCode = unsigned long;
using CFOptionFlags = unsigned long;
using CFTimeInterval = double;
using CFAbsoluteTime = double;

using CFTypeRef = const void*;
using CFAllocatorRef = const struct __CFAllocator*;
using CFStringRef = const struct __CFString*;
using CFNumberRef = const struct __CFNumber*;
using CFBooleanRef = const struct __CFBoolean*;
using CFDataRef = const struct __CFData*;
using CFDateRef = const struct __CFDate*;
using CFArrayRef = const struct __CFArray*;
using CFMutableArrayRef = struct __CFArray*;
using CFSetRef = const struct __CFSet*;
using CFDictionaryRef = const struct __CFDictionary*;
using CFMutableDictionaryRef = struct __CFDictionary*;
using CFRunLoopRef = struct __CFRunLoop*;
using CFRunLoopSourceRef = struct __CFRunLoopSource*;
using CFRunLoopTimerRef = struct __CFRunLoopTimer*;
using CFRunLoopMode = CFStringRef;

struct CFRange
{
    CFIndex location;
    CFIndex length;
};

struct CFArrayCallBacks;
struct CFDictionaryKeyCallBacks;
struct CFDictionaryValueCallBacks;

struct CFRunLoopTimerContext
{
    CFIndex version;
    void* info;
    const void* (*retain)(const void* info);
    void (*release)(const void* info);
    CFStringRef (*copyDescription)(const void* info);
};

using CFRunLoopTimerCallBack = void (*)(CFRunLoopTimerRef timer, void* info);

enum CFNumberType : CFIndex {
    kCFNumberSInt64Type = 4,
    kCFNumberDoubleType = 13,
};

extern "C" {
extern const CFAllocatorRef kCFAllocatorDefault;
extern const CFBooleanRef kCFBooleanTrue;
extern const CFBooleanRef kCFBooleanFalse;
extern const CFArrayCallBacks kCFTypeArrayCallBacks;
extern const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks;
extern const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks;
extern const CFRunLoopMode kCFRunLoopCommonModes;

CFTypeRef CFRetain(CFTypeRef value);
void CFRelease(CFTypeRef value);
CFTypeID CFGetTypeID(CFTypeRef value);

CFTypeID CFStringGetTypeID();
CFIndex CFStringGetLength(CFStringRef text);
void CFStringGetCharacters(CFStringRef text, CFRange range, UniChar* buffer);
CFStringRef CFStringCreateWithCharacters(CFAllocatorRef allocator, const UniChar* characters, CFIndex count);

CFTypeID CFNumberGetTypeID();
Boolean CFNumberIsFloatType(CFNumberRef number);
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType type, void* value);
CFNumberRef CFNumberCreate(CFAllocatorRef allocator, CFNumberType type, const void* value);

CFTypeID CFBooleanGetTypeID();
Boolean CFBooleanGetValue(CFBooleanRef boolean);

CFTypeID CFDataGetTypeID();
CFIndex CFDataGetLength(CFDataRef data);
const UInt8* CFDataGetBytePtr(CFDataRef data);
CFDataRef CFDataCreate(CFAllocatorRef allocator, const UInt8* bytes, CFIndex length);

CFTypeID CFDateGetTypeID();
CFAbsoluteTime CFDateGetAbsoluteTime(CFDateRef date);
CFDateRef CFDateCreate(CFAllocatorRef allocator, CFAbsoluteTime time);

CFTypeID CFArrayGetTypeID();
CFIndex CFArrayGetCount(CFArrayRef array);
const void* CFArrayGetValueAtIndex(CFArrayRef array, CFIndex index);
CFMutableArrayRef CFArrayCreateMutable(CFAllocatorRef allocator, CFIndex capacity,
                                       const CFArrayCallBacks* callBacks);
void CFArrayAppendValue(CFMutableArrayRef array, const void* value);

CFTypeID CFSetGetTypeID();
CFIndex CFSetGetCount(CFSetRef set);
void CFSetGetValues(CFSetRef set, const void** values);

CFTypeID CFDictionaryGetTypeID();
CFIndex CFDictionaryGetCount(CFDictionaryRef dictionary);
void CFDictionaryGetKeysAndValues(CFDictionaryRef dictionary, const void** keys, const void** values);
CFMutableDictionaryRef CFDictionaryCreateMutable(CFAllocatorRef allocator, CFIndex capacity,
                                                 const CFDictionaryKeyCallBacks* keyCallBacks,
                                                 const CFDictionaryValueCallBacks* valueCallBacks);
void CFDictionarySetValue(CFMutableDictionaryRef dictionary, const void* key, const void* value);

CFAbsoluteTime CFAbsoluteTimeGetCurrent();
CFRunLoopRef CFRunLoopGetMain();
void CFRunLoopAddSource(CFRunLoopRef loop, CFRunLoopSourceRef source, CFRunLoopMode mode);
void CFRunLoopSourceInvalidate(CFRunLoopSourceRef source);
void CFRunLoopAddTimer(CFRunLoopRef loop, CFRunLoopTimerRef timer, CFRunLoopMode mode);
CFRunLoopTimerRef CFRunLoopTimerCreate(CFAllocatorRef allocator, CFAbsoluteTime fireDate,
                                       CFTimeInterval interval, CFOptionFlags flags, CFIndex order,
                                       CFRunLoopTimerCallBack callout, CFRunLoopTimerContext* context);
void CFRunLoopTimerSetTolerance(CFRunLoopTimerRef timer, CFTimeInterval tolerance);
CFAbsoluteTime CFRunLoopTimerGetNextFireDate(CFRunLoopTimerRef timer);
void CFRunLoopTimerSetNextFireDate(CFRunLoopTimerRef timer, CFAbsoluteTime fireDate);
void CFRunLoopTimerInvalidate(CFRunLoopTimerRef timer);
}
