// Mirrors the macOS SDK's CGContext declarations used by src/platform/macos, for a syntax check
// only (scripts/check-macos-compile). Declarations only; nothing here is linked.
#pragma once

#include <CoreGraphics/CGBase.h>

#pragma clang assume_nonnull begin

typedef struct CF_BRIDGED_TYPE(id) CGContext* CGContextRef;

CG_EXTERN void CGContextRelease(CGContextRef _Nullable c);

#pragma clang assume_nonnull end
