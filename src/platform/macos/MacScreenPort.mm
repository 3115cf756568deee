#include "platform/macos/MacScreenPort.h"

#import <AppKit/AppKit.h>

#include "platform/macos/MacReadingRules.h"

namespace brimly {
namespace {

Rect rectFrom(NSRect rect) {
  return Rect{rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

// Frames and the strips beside the camera housing share one global space, origin at the
// bottom-left of the menu-bar screen.
ScreenDescription describe(NSScreen* screen) {
  const NSEdgeInsets insets = screen.safeAreaInsets;
  return ScreenDescription{
      .frame = rectFrom(screen.frame),
      .safeAreaInsets = EdgeInsets{insets.top, insets.left, insets.bottom, insets.right},
      .auxiliaryTopLeftArea = presentArea(rectFrom(screen.auxiliaryTopLeftArea)),
      .auxiliaryTopRightArea = presentArea(rectFrom(screen.auxiliaryTopRightArea))};
}

class MacScreenPort final : public ScreenPort {
 public:
  std::vector<ScreenDescription> screens() const override {
    std::vector<ScreenDescription> descriptions;
    @autoreleasepool {
      for (NSScreen* screen in NSScreen.screens)
        descriptions.push_back(describe(screen));
    }
    return descriptions;
  }

  // The screen of the window with keyboard focus, which for an accessory application may be any.
  std::optional<ScreenDescription> mainScreen() const override {
    @autoreleasepool {
      NSScreen* screen = NSScreen.mainScreen;
      if (screen == nil) return std::nullopt;
      return describe(screen);
    }
  }

  double statusBarThickness() const override {
    @autoreleasepool {
      return NSStatusBar.systemStatusBar.thickness;
    }
  }
};

}  // namespace

std::unique_ptr<ScreenPort> makeMacScreenPort() {
  return std::make_unique<MacScreenPort>();
}

}  // namespace brimly
