// Mirrors the macOS SDK's CGBitmapContext declarations used by src/platform/macos, for a syntax
// check only (scripts/check-macos-compile). Declarations only; nothing here is linked.
#pragma once

#include <CoreGraphics/CGBase.h>
#include <CoreGraphics/CGColorSpace.h>
#include <CoreGraphics/CGContext.h>
#include <CoreGraphics/CGImage.h>

#pragma clang assume_nonnull begin

// Create rule: release the result with CGContextRelease. `bitmapInfo` takes CGImageAlphaInfo and
// CGBitmapInfo values or'ed together. With `data`, the context draws into that memory, which must
// outlive it.
CG_EXTERN CGContextRef _Nullable CGBitmapContextCreate(void* _Nullable data, size_t width,
                                                       size_t height, size_t bitsPerComponent,
                                                       size_t bytesPerRow,
                                                       CGColorSpaceRef _Nullable space,
                                                       uint32_t bitmapInfo);

#pragma clang assume_nonnull end
