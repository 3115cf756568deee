// Mirrors the macOS SDK's <IOKit/ps/IOPowerSources.h> declarations used by src/platform/macos,
// for a syntax check only (scripts/check-macos-compile). Declarations only; nothing is linked.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

#ifdef __cplusplus
extern "C" {
#endif

CFTypeRef IOPSCopyPowerSourcesInfo(void);
CFArrayRef IOPSCopyPowerSourcesList(CFTypeRef blob);
CFDictionaryRef IOPSGetPowerSourceDescription(CFTypeRef blob, CFTypeRef ps);

#ifdef __cplusplus
}
#endif
