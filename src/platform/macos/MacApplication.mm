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
  if (windowId == 0) return false;
  @autoreleasepool {
    // A widget's native id is its NSView; the window is looked up afresh every time.
    NSView* view = (__bridge NSView*)reinterpret_cast<void*>(windowId);
    NSWindow* window = view.window;
    if (window == nil) return false;
    window.level = kStatusWindowLevel;
    window.collectionBehavior = kOverlayBehavior;
    window.opaque = NO;
    window.backgroundColor = NSColor.clearColor;
    window.hasShadow = NO;
    window.movable = NO;
    window.hidesOnDeactivate = NO;
    window.ignoresMouseEvents = YES;
    return true;
  }
}

bool orderOverlayFront(std::uintptr_t windowId) {
  if (windowId == 0) return false;
  @autoreleasepool {
    NSWindow* window = ((__bridge NSView*)reinterpret_cast<void*>(windowId)).window;
    if (window == nil) return false;
    [window orderFrontRegardless];
    return true;
  }
}

}  // namespace brimly
