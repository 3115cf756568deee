// Mirrors the macOS SDK's CoreText declarations used by src/platform/macos, for a syntax check only
// (scripts/check-macos-compile). Declarations without definitions; nothing here is linked.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

// <CoreText/CTFont.h>, <CoreText/CTFontDescriptor.h>
typedef const struct __CTFont* CTFontRef;
CFTypeRef CTFontCopyAttribute(CTFontRef font, CFStringRef attribute);  // Copy rule; may be NULL
extern const CFStringRef kCTFontURLAttribute;  // a CFURLRef: the file the font comes from
