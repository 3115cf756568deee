#include "platform/SystemSymbols.h"

#import <AppKit/AppKit.h>
#include <CoreGraphics/CoreGraphics.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <type_traits>

#include "platform/macos/MacReadingRules.h"

namespace brimly {
namespace {

struct ContextRelease {
  void operator()(CGContextRef context) const { CGContextRelease(context); }
};
struct ColorSpaceRelease {
  void operator()(CGColorSpaceRef space) const { CGColorSpaceRelease(space); }
};
using OwnedContext = std::unique_ptr<std::remove_pointer_t<CGContextRef>, ContextRelease>;
using OwnedColorSpace = std::unique_ptr<std::remove_pointer_t<CGColorSpaceRef>, ColorSpaceRelease>;

// Four bytes a pixel in the order R, G, B, A whatever the processor's byte order, colour
// premultiplied by alpha.
constexpr std::uint32_t kPremultipliedRgba =
    static_cast<std::uint32_t>(kCGImageAlphaPremultipliedLast) |
    static_cast<std::uint32_t>(kCGBitmapByteOrder32Big);

}  // namespace

std::optional<SymbolBitmap> renderSystemSymbol(const std::string& name, int pixelSize) {
  @autoreleasepool {
    NSString* symbolName = [NSString stringWithUTF8String:name.c_str()];
    if (symbolName == nil) return std::nullopt;
    NSImage* image = [NSImage imageWithSystemSymbolName:symbolName accessibilityDescription:nil];
    if (image == nil) return std::nullopt;
    const NSSize natural = image.size;
    const std::optional<Rect> placed =
        symbolPlacement(Size{natural.width, natural.height}, pixelSize);
    if (!placed) return std::nullopt;

    const auto side = static_cast<std::size_t>(pixelSize);
    SymbolBitmap bitmap;
    bitmap.pixelSize = pixelSize;
    bitmap.rgba.assign(side * side * 4, 0);  // transparent where the symbol leaves it

    const OwnedColorSpace space(CGColorSpaceCreateWithName(kCGColorSpaceSRGB));
    if (!space) return std::nullopt;
    // The context draws straight into the bitmap's bytes.
    OwnedContext context(CGBitmapContextCreate(bitmap.rgba.data(), side, side, 8, side * 4,
                                               space.get(), kPremultipliedRgba));
    if (!context) return std::nullopt;

    // Rows: a bitmap context keeps its first row in memory at the top of the picture, while its
    // coordinates grow upwards from the bottom-left corner. Drawn into an unflipped AppKit context
    // the symbol stands upright in those coordinates, so the bytes come out in rows from the top
    // with no flip of our own.
    [NSGraphicsContext saveGraphicsState];
    NSGraphicsContext.currentContext = [NSGraphicsContext graphicsContextWithCGContext:context.get()
                                                                               flipped:NO];
    [image drawInRect:NSRect{NSPoint{placed->x, placed->y}, NSSize{placed->width, placed->height}}];
    [NSGraphicsContext restoreGraphicsState];
    context.reset();  // drawing is done before the bytes leave
    return bitmap;
  }
}

}  // namespace brimly
