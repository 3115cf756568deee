#include "platform/SystemFonts.h"

#import <AppKit/AppKit.h>
#include <CoreText/CoreText.h>

#include <climits>

#include "platform/macos/OwnedHandles.h"

namespace brimly {

std::optional<std::string> roundedSystemFontFile() {
  @autoreleasepool {
    // The system font's own descriptor, redrawn in the rounded design (macOS 10.15): the design,
    // not a family name, since the system's families are hidden and named differently from one
    // release to the next.
    NSFontDescriptor* rounded = [[NSFont systemFontOfSize:0].fontDescriptor
        fontDescriptorWithDesign:NSFontDescriptorSystemDesignRounded];
    if (rounded == nil) return std::nullopt;
    NSFont* font = [NSFont fontWithDescriptor:rounded size:0];
    if (font == nil) return std::nullopt;
    // NSFont is toll-free bridged to CTFont; the URL attribute names the file it comes from.
    const CFOwned<CFTypeRef> url(
        CTFontCopyAttribute((__bridge CTFontRef)font, kCTFontURLAttribute));
    if (!url || CFGetTypeID(url.get()) != CFURLGetTypeID()) return std::nullopt;
    UInt8 path[PATH_MAX];
    if (!CFURLGetFileSystemRepresentation(static_cast<CFURLRef>(url.get()), true, path,
                                          sizeof path)) {
      return std::nullopt;
    }
    return std::string(reinterpret_cast<const char*>(path));
  }
}

// The system font is the windows' face.
std::vector<std::string> windowFamilies() {
  return {};
}

}  // namespace brimly
