#include "platform/macos/MacStatusItem.h"

#import <AppKit/AppKit.h>

#include <functional>
#include <string>
#include <utility>

// The button's target: AppKit does not retain targets, so the status item object keeps this one
// alive and forwards its action to the C++ click handler.
@interface BrimlyStatusItemTarget : NSObject
- (void)setOnClick:(std::function<void()>)onClick;
- (void)clicked:(id)sender;
@end

@implementation BrimlyStatusItemTarget {
  std::function<void()> _onClick;
}

- (void)setOnClick:(std::function<void()>)onClick {
  _onClick = std::move(onClick);
}

- (void)clicked:(id)sender {
  (void)sender;
  // A copy, so that the handler survives being replaced while it runs.
  const std::function<void()> onClick = _onClick;
  if (onClick) onClick();
}
@end

namespace brimly {
namespace {

// Left and right mouse-up: a right click toggles the card just as a left one does.
constexpr NSEventMask kClickMask = NSEventMaskLeftMouseUp | NSEventMaskRightMouseUp;
static_assert(kClickMask == 20);

Rect rectFrom(NSRect rect) {
  return Rect{rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

// Nil for text that is not valid UTF-8.
NSString* stringFrom(const std::string& text) {
  return [NSString stringWithUTF8String:text.c_str()];
}

NSImage* _Nullable firstSymbol(const StatusItemAppearance& appearance) {
  NSString* description = stringFrom(appearance.accessibilityDescription);
  for (const std::string& name : appearance.symbolNames) {
    NSString* symbolName = stringFrom(name);
    if (symbolName == nil) continue;
    NSImage* image = [NSImage imageWithSystemSymbolName:symbolName
                               accessibilityDescription:description];
    if (image != nil) return image;
  }
  return nil;
}

class MacStatusItem final : public StatusItemPort {
 public:
  ~MacStatusItem() override {
    @autoreleasepool {
      [target_ setOnClick:nullptr];
      if (item_ != nil) [NSStatusBar.systemStatusBar removeStatusItem:item_];
    }
  }

  bool install(const StatusItemAppearance& appearance, std::function<void()> onClick) override {
    @autoreleasepool {
      // The status bar does not keep its items alive: this object holds the item until it goes.
      if (item_ == nil) {
        item_ = [NSStatusBar.systemStatusBar statusItemWithLength:NSVariableStatusItemLength];
      }
      if (target_ == nil) target_ = [[BrimlyStatusItemTarget alloc] init];
      [target_ setOnClick:std::move(onClick)];

      // Without a button the item shows nothing and cannot be clicked; it is kept all the same.
      NSStatusBarButton* button = item_.button;
      if (button != nil) {
        NSImage* image = firstSymbol(appearance);
        // A template image takes the menu bar's colour in light and dark appearances alike.
        if (image != nil) [image setTemplate:YES];
        button.image = image;
        button.toolTip = stringFrom(appearance.toolTip);
        button.target = target_;
        button.action = @selector(clicked:);
        [button sendActionOn:kClickMask];
      }
      // Every Mac has a menu bar.
      return true;
    }
  }

  std::optional<Rect> buttonFrame() const override {
    @autoreleasepool {
      NSStatusBarButton* button = item_.button;
      NSWindow* window = button.window;
      if (button == nil || window == nil) return std::nullopt;
      // The button's bounds in its window, then in global screen coordinates.
      return rectFrom([window convertRectToScreen:[button convertRect:button.bounds toView:nil]]);
    }
  }

  std::optional<Rect> buttonScreenVisibleFrame() const override {
    @autoreleasepool {
      NSScreen* screen = item_.button.window.screen;
      if (screen == nil) return std::nullopt;
      return rectFrom(screen.visibleFrame);
    }
  }

  std::optional<Rect> mainScreenVisibleFrame() const override {
    @autoreleasepool {
      NSScreen* screen = NSScreen.mainScreen;
      if (screen == nil) return std::nullopt;
      return rectFrom(screen.visibleFrame);
    }
  }

 private:
  NSStatusItem* item_ = nil;
  BrimlyStatusItemTarget* target_ = nil;
};

}  // namespace

std::unique_ptr<StatusItemPort> makeMacStatusItem() {
  return std::make_unique<MacStatusItem>();
}

}  // namespace brimly
