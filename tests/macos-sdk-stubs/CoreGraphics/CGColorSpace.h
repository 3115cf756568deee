// Mirrors the macOS SDK's CGColorSpace declarations used by src/platform/macos, for a syntax
// check only (scripts/check-macos-compile). Declarations only; nothing here is linked.
#pragma once

#include <CoreGraphics/CGBase.h>

#pragma clang assume_nonnull begin

typedef struct CF_BRIDGED_TYPE(id) CGColorSpace* CGColorSpaceRef;

CG_EXTERN const CFStringRef kCGColorSpaceSRGB;  // macOS 10.5
// Create rule: release the result with CGColorSpaceRelease.
CG_EXTERN CGColorSpaceRef _Nullable CGColorSpaceCreateWithName(CFStringRef _Nullable name);
CG_EXTERN void CGColorSpaceRelease(CGColorSpaceRef _Nullable space);

#pragma clang assume_nonnull end
