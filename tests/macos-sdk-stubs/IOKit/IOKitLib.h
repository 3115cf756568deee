// Mirrors the macOS SDK's <IOKit/IOKitLib.h> declarations used by src/platform/macos, for a
// syntax check only (scripts/check-macos-compile). Declarations only; nothing is linked.
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <mach/mach.h>

#ifdef __cplusplus
extern "C" {
#endif

// <IOKit/IOTypes.h>
typedef UInt32 IOOptionBits;
typedef mach_port_t io_object_t;
typedef io_object_t io_iterator_t;
typedef io_object_t io_registry_entry_t;
typedef io_object_t io_service_t;
#define IO_OBJECT_NULL ((io_object_t)0)

// <device/device_types.h>
typedef char io_name_t[128];

extern const mach_port_t kIOMainPortDefault;  // macOS 12.0

kern_return_t IOObjectRelease(io_object_t object);
kern_return_t IOObjectGetClass(io_object_t object, io_name_t className);
io_object_t IOIteratorNext(io_iterator_t iterator);

CFMutableDictionaryRef IOServiceMatching(const char* name) CF_RETURNS_RETAINED;
io_service_t IOServiceGetMatchingService(mach_port_t mainPort,
                                         CFDictionaryRef matching CF_RELEASES_ARGUMENT);
kern_return_t IOServiceGetMatchingServices(mach_port_t mainPort,
                                           CFDictionaryRef matching CF_RELEASES_ARGUMENT,
                                           io_iterator_t* existing);

kern_return_t IORegistryEntryCreateCFProperties(io_registry_entry_t entry,
                                                CFMutableDictionaryRef* properties,
                                                CFAllocatorRef allocator, IOOptionBits options);
CFTypeRef IORegistryEntryCreateCFProperty(io_registry_entry_t entry, CFStringRef key,
                                          CFAllocatorRef allocator, IOOptionBits options);

#ifdef __cplusplus
}
#endif
