// Mirrors the macOS SDK's CGImage pixel-format declarations used by src/platform/macos, for a
// syntax check only (scripts/check-macos-compile). Declarations only; nothing here is linked.
#pragma once

#include <CoreGraphics/CGBase.h>

typedef CF_ENUM(uint32_t, CGImageAlphaInfo) {
  kCGImageAlphaNone,                // RGB
  kCGImageAlphaPremultipliedLast,   // premultiplied RGBA
  kCGImageAlphaPremultipliedFirst,  // premultiplied ARGB
  kCGImageAlphaLast,                // RGBA
  kCGImageAlphaFirst,               // ARGB
  kCGImageAlphaNoneSkipLast,        // RGBX
  kCGImageAlphaNoneSkipFirst,       // XRGB
  kCGImageAlphaOnly,                // alpha only
};

typedef CF_ENUM(uint32_t, CGImageByteOrderInfo) {
  kCGImageByteOrderMask = 0x7000,
  kCGImageByteOrderDefault = (0 << 12),
  kCGImageByteOrder16Little = (1 << 12),
  kCGImageByteOrder32Little = (2 << 12),
  kCGImageByteOrder16Big = (3 << 12),
  kCGImageByteOrder32Big = (4 << 12),
};  // macOS 10.12

typedef CF_OPTIONS(uint32_t, CGBitmapInfo) {
  kCGBitmapAlphaInfoMask = 0x1F,
  kCGBitmapFloatInfoMask = 0xF00,
  kCGBitmapFloatComponents = (1 << 8),
  kCGBitmapByteOrderMask = kCGImageByteOrderMask,
  kCGBitmapByteOrderDefault = kCGImageByteOrderDefault,
  kCGBitmapByteOrder16Little = kCGImageByteOrder16Little,
  kCGBitmapByteOrder32Little = kCGImageByteOrder32Little,
  kCGBitmapByteOrder16Big = kCGImageByteOrder16Big,
  kCGBitmapByteOrder32Big = kCGImageByteOrder32Big,
};
