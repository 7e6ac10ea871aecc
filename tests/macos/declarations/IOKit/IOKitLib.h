#pragma once

// See CoreFoundation/CoreFoundation.h.

#include <CoreFoundation/CoreFoundation.h>
#include <mach/mach.h>

using io_object_t = mach_port_t;
using io_service_t = io_object_t;
using io_registry_entry_t = io_object_t;
using IOOptionBits = std::uint32_t;

extern "C" {
extern const mach_port_t kIOMainPortDefault;

CFMutableDictionaryRef IOServiceMatching(const char* name);
CFMutableDictionaryRef IOServiceNameMatching(const char* name);
io_service_t IOServiceGetMatchingService(mach_port_t mainPort, CFDictionaryRef matching);
CFTypeRef IORegistryEntryCreateCFProperty(io_registry_entry_t entry, CFStringRef key,
                                          CFAllocatorRef allocator, IOOptionBits options);
kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t entry, CFMutableDictionaryRef* properties,
                                                CFAllocatorRef allocator, IOOptionBits options);
kern_return_t IOObjectRelease(io_object_t object);
}
