#include "platform/macos/MacApplication.h"

#import <AppKit/AppKit.h>
#include <unistd.h>

#include "core/BuildInfo.h"

namespace brimly {
namespace {

// The status-window level: above the menu bar (24).
constexpr NSWindowLevel kStatusWindowLevel = 25;
constexpr NSWindowCollectionBehavior kOverlayBehavior =
    NSWindowCollectionBehaviorCanJoinAllSpaces | NSWindowCollectionBehaviorStationary |
    NSWindowCollectionBehaviorIgnoresCycle | NSWindowCollectionBehaviorFullScreenAuxiliary;
static_assert(kOverlayBehavior == 337);

// The pop-up menu level: above the menu bar and the overlay panel.
constexpr NSWindowLevel kPopUpMenuWindowLevel = 101;
constexpr NSWindowCollectionBehavior kControlCardBehavior =
    NSWindowCollectionBehaviorCanJoinAllSpaces | NSWindowCollectionBehaviorIgnoresCycle |
    NSWindowCollectionBehaviorFullScreenAuxiliary;
static_assert(kControlCardBehavior == 321);

// A widget's native id is its NSView; Qt may give the view a new window, so the window is looked
// up afresh every time.
NSWindow* _Nullable windowOf(std::uintptr_t windowId) {
  if (windowId == 0) return nil;
  return ((__bridge NSView*)reinterpret_cast<void*>(windowId)).window;
}

// What the panel and the card share: transparent, without the window server's shadow (they draw
// their own shapes), fixed in place, and shown while the application is inactive, which an
// accessory application nearly always is.
void makeClearStillAndAlwaysShown(NSWindow* window) {
  window.opaque = NO;
  window.backgroundColor = NSColor.clearColor;
  window.hasShadow = NO;
  window.movable = NO;
  window.hidesOnDeactivate = NO;
}

}  // namespace

bool anotherInstanceIsRunning() {
  @autoreleasepool {
    NSString* bundleId = NSBundle.mainBundle.bundleIdentifier;
    if (bundleId == nil) bundleId = @(BuildInfo::bundleIdentifier);
    const pid_t ours = getpid();
    for (NSRunningApplication* application in
         [NSRunningApplication runningApplicationsWithBundleIdentifier:bundleId]) {
      if (application.processIdentifier != ours) return true;
    }
    return false;
  }
}

void becomeAccessoryApplication() {
  @autoreleasepool {
    [NSApplication.sharedApplication setActivationPolicy:NSApplicationActivationPolicyAccessory];
  }
}

bool configureOverlayPanel(std::uintptr_t windowId) {
  @autoreleasepool {
    NSWindow* window = windowOf(windowId);
    if (window == nil) return false;
    window.level = kStatusWindowLevel;
    window.collectionBehavior = kOverlayBehavior;
    makeClearStillAndAlwaysShown(window);
    window.ignoresMouseEvents = YES;
    return true;
  }
}

bool orderOverlayFront(std::uintptr_t windowId) {
  @autoreleasepool {
    NSWindow* window = windowOf(windowId);
    if (window == nil) return false;
    [window orderFrontRegardless];
    return true;
  }
}

bool configureControlCard(std::uintptr_t windowId) {
  @autoreleasepool {
    NSWindow* window = windowOf(windowId);
    if (window == nil) return false;
    window.level = kPopUpMenuWindowLevel;
    window.collectionBehavior = kControlCardBehavior;
    makeClearStillAndAlwaysShown(window);
    window.animationBehavior = NSWindowAnimationBehaviorUtilityWindow;
    return true;
  }
}

bool configureTitledWindow(std::uintptr_t windowId, double contentWidth, double contentHeight,
                           double red, double green, double blue) {
  @autoreleasepool {
    NSWindow* window = windowOf(windowId);
    if (window == nil) return false;
    window.styleMask = window.styleMask | NSWindowStyleMaskFullSizeContentView;
    window.titlebarAppearsTransparent = YES;
    window.titleVisibility = NSWindowTitleHidden;
    window.movableByWindowBackground = YES;
    window.appearance = [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
    window.backgroundColor = [NSColor colorWithSRGBRed:red green:green blue:blue alpha:1.0];
    // With the content view under the title bar, the frame shrinks to the content's size again.
    [window setContentSize:NSMakeSize(contentWidth, contentHeight)];
    return true;
  }
}

bool dragWindowFromCurrentMouseDown(std::uintptr_t windowId) {
  @autoreleasepool {
    NSWindow* window = windowOf(windowId);
    NSEvent* event = NSApplication.sharedApplication.currentEvent;
    if (window == nil || event == nil || event.type != NSEventTypeLeftMouseDown) return false;
    [window performWindowDragWithEvent:event];
    return true;
  }
}

void activateApplication() {
  @autoreleasepool {
    // macOS 14 may decline to activate an application the user has not turned to; the click on
    // the menu-bar item that leads here should count as turning to it.
    [NSApplication.sharedApplication activate];
  }
}

bool makeKeyAndFront(std::uintptr_t windowId) {
  @autoreleasepool {
    NSWindow* window = windowOf(windowId);
    if (window == nil) return false;
    [window makeKeyAndOrderFront:nil];
    return true;
  }
}

std::optional<std::string> bundleShortVersion() {
  @autoreleasepool {
    id value = NSBundle.mainBundle.infoDictionary[@"CFBundleShortVersionString"];
    if (![value isKindOfClass:[NSString class]]) return std::nullopt;
    const char* text = ((NSString*)value).UTF8String;
    if (text == nullptr) return std::nullopt;
    return std::string(text);  // copied before the pool drains
  }
}

}  // namespace brimly
