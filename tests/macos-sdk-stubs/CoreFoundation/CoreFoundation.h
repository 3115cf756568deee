// Mirrors the macOS SDK's CoreFoundation declarations used by src/platform/macos, for a syntax
// check only (scripts/check-macos-compile). Declarations without bodies; nothing here is linked.
#pragma once

#include <stdint.h>

#ifdef __cplusplus
#define CF_EXTERN_C_BEGIN extern "C" {
#define CF_EXTERN_C_END }
#else
#define CF_EXTERN_C_BEGIN
#define CF_EXTERN_C_END
#endif

// As the SDK spells them for C++ (the only language that reads these stubs).
#define CF_ENUM(_type, _name) \
  enum __attribute__((enum_extensibility(open))) _name : _type _name; \
  enum __attribute__((enum_extensibility(open))) _name : _type
#define CF_OPTIONS(_type, _name) \
  _type _name;                   \
  enum __attribute__((flag_enum, enum_extensibility(open))) : _type

#define CF_RETURNS_RETAINED __attribute__((cf_returns_retained))
#define CF_RETURNS_NOT_RETAINED __attribute__((cf_returns_not_retained))
#define CF_RELEASES_ARGUMENT __attribute__((cf_consumed))

CF_EXTERN_C_BEGIN

typedef unsigned char Boolean;
typedef uint8_t UInt8;
typedef uint32_t UInt32;
typedef int32_t SInt32;
typedef long CFIndex;
typedef unsigned long CFTypeID;
typedef double CFTimeInterval;

typedef const void* CFTypeRef;
typedef const struct __CFAllocator* CFAllocatorRef;
typedef const struct __CFString* CFStringRef;
typedef const struct __CFArray* CFArrayRef;
typedef const struct __CFDictionary* CFDictionaryRef;
typedef struct __CFDictionary* CFMutableDictionaryRef;
typedef const struct __CFNumber* CFNumberRef;
typedef const struct __CFBoolean* CFBooleanRef;
typedef const struct __CFURL* CFURLRef;
typedef const struct __CFData* CFDataRef;
typedef struct __CFError* CFErrorRef;
typedef CFTypeRef CFPropertyListRef;

extern const CFAllocatorRef kCFAllocatorDefault;

void CFRelease(CFTypeRef cf);
CFTypeID CFGetTypeID(CFTypeRef cf);

// Strings.
typedef UInt32 CFStringEncoding;
typedef CF_ENUM(CFStringEncoding, CFStringBuiltInEncodings){
    kCFStringEncodingUTF8 = 0x08000100,
};
CFTypeID CFStringGetTypeID(void);
CFIndex CFStringGetLength(CFStringRef theString);
const char* CFStringGetCStringPtr(CFStringRef theString, CFStringEncoding encoding);
Boolean CFStringGetCString(CFStringRef theString, char* buffer, CFIndex bufferSize,
                           CFStringEncoding encoding);
CFIndex CFStringGetMaximumSizeForEncoding(CFIndex length, CFStringEncoding encoding);
CFStringRef CFStringCreateWithBytes(CFAllocatorRef alloc, const UInt8* bytes, CFIndex numBytes,
                                    CFStringEncoding encoding, Boolean isExternalRepresentation);
#define CFSTR(cStr) ((CFStringRef)__builtin___CFStringMakeConstantString("" cStr ""))

// Numbers and Booleans.
typedef CF_ENUM(CFIndex, CFNumberType){
    kCFNumberSInt32Type = 3,
    kCFNumberSInt64Type = 4,
    kCFNumberFloat64Type = 6,
};
CFTypeID CFNumberGetTypeID(void);
CFNumberRef CFNumberCreate(CFAllocatorRef allocator, CFNumberType theType, const void* valuePtr);
Boolean CFNumberGetValue(CFNumberRef number, CFNumberType theType, void* valuePtr);
Boolean CFNumberIsFloatType(CFNumberRef number);
CFTypeID CFBooleanGetTypeID(void);
Boolean CFBooleanGetValue(CFBooleanRef boolean);
extern const CFBooleanRef kCFBooleanTrue;
extern const CFBooleanRef kCFBooleanFalse;

// Arrays.
typedef const void* (*CFArrayRetainCallBack)(CFAllocatorRef allocator, const void* value);
typedef void (*CFArrayReleaseCallBack)(CFAllocatorRef allocator, const void* value);
typedef CFStringRef (*CFArrayCopyDescriptionCallBack)(const void* value);
typedef Boolean (*CFArrayEqualCallBack)(const void* value1, const void* value2);
typedef struct {
  CFIndex version;
  CFArrayRetainCallBack retain;
  CFArrayReleaseCallBack release;
  CFArrayCopyDescriptionCallBack copyDescription;
  CFArrayEqualCallBack equal;
} CFArrayCallBacks;
extern const CFArrayCallBacks kCFTypeArrayCallBacks;
CFTypeID CFArrayGetTypeID(void);
CFArrayRef CFArrayCreate(CFAllocatorRef allocator, const void** values, CFIndex numValues,
                         const CFArrayCallBacks* callBacks);
CFIndex CFArrayGetCount(CFArrayRef theArray);
const void* CFArrayGetValueAtIndex(CFArrayRef theArray, CFIndex idx);

// Dictionaries.
typedef const void* (*CFDictionaryRetainCallBack)(CFAllocatorRef allocator, const void* value);
typedef void (*CFDictionaryReleaseCallBack)(CFAllocatorRef allocator, const void* value);
typedef CFStringRef (*CFDictionaryCopyDescriptionCallBack)(const void* value);
typedef Boolean (*CFDictionaryEqualCallBack)(const void* value1, const void* value2);
typedef CFIndex (*CFDictionaryHashCallBack)(const void* value);
typedef struct {
  CFIndex version;
  CFDictionaryRetainCallBack retain;
  CFDictionaryReleaseCallBack release;
  CFDictionaryCopyDescriptionCallBack copyDescription;
  CFDictionaryEqualCallBack equal;
  CFDictionaryHashCallBack hash;
} CFDictionaryKeyCallBacks;
typedef struct {
  CFIndex version;
  CFDictionaryRetainCallBack retain;
  CFDictionaryReleaseCallBack release;
  CFDictionaryCopyDescriptionCallBack copyDescription;
  CFDictionaryEqualCallBack equal;
} CFDictionaryValueCallBacks;
extern const CFDictionaryKeyCallBacks kCFTypeDictionaryKeyCallBacks;
extern const CFDictionaryValueCallBacks kCFTypeDictionaryValueCallBacks;
CFTypeID CFDictionaryGetTypeID(void);
CFDictionaryRef CFDictionaryCreate(CFAllocatorRef allocator, const void** keys,
                                   const void** values, CFIndex numValues,
                                   const CFDictionaryKeyCallBacks* keyCallBacks,
                                   const CFDictionaryValueCallBacks* valueCallBacks);
CFIndex CFDictionaryGetCount(CFDictionaryRef theDict);
void CFDictionaryGetKeysAndValues(CFDictionaryRef theDict, const void** keys,
                                  const void** values);
const void* CFDictionaryGetValue(CFDictionaryRef theDict, const void* key);

// Data.
CFTypeID CFDataGetTypeID(void);
CFDataRef CFDataCreate(CFAllocatorRef allocator, const UInt8* bytes, CFIndex length);

// URLs and their resource values.
CFTypeID CFURLGetTypeID(void);
Boolean CFURLGetFileSystemRepresentation(CFURLRef url, Boolean resolveAgainstBase, UInt8* buffer,
                                         CFIndex maxBufLen);
CFURLRef CFURLCreateFromFileSystemRepresentation(CFAllocatorRef allocator, const UInt8* buffer,
                                                 CFIndex bufLen, Boolean isDirectory);
CFDictionaryRef CFURLCopyResourcePropertiesForKeys(CFURLRef url, CFArrayRef keys,
                                                   CFErrorRef* error);
extern const CFStringRef kCFURLVolumeTotalCapacityKey;
extern const CFStringRef kCFURLVolumeAvailableCapacityKey;
extern const CFStringRef kCFURLVolumeAvailableCapacityForImportantUsageKey;

// Preferences of the current user, in an application's domain.
CFPropertyListRef CFPreferencesCopyAppValue(CFStringRef key, CFStringRef applicationID);
void CFPreferencesSetAppValue(CFStringRef key, CFPropertyListRef value, CFStringRef applicationID);
Boolean CFPreferencesAppSynchronize(CFStringRef applicationID);

CF_EXTERN_C_END
