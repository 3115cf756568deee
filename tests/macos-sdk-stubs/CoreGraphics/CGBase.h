// Mirrors the macOS SDK's CoreGraphics base declarations used by src/platform/macos, for a syntax
// check only (scripts/check-macos-compile). Declarations only; nothing here is linked.
#pragma once

#include <stddef.h>
#include <stdint.h>

#include <CoreFoundation/CoreFoundation.h>

#ifdef __cplusplus
#define CG_EXTERN extern "C"
#else
#define CG_EXTERN extern
#endif

#define CF_BRIDGED_TYPE(T) __attribute__((objc_bridge(T)))
