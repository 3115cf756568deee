#include "platform/macos/MacAccentColor.h"

#import <AppKit/AppKit.h>

namespace brimly {

std::optional<std::array<double, 3>> macControlAccentColor() {
  NSColor* accent = [NSColor.controlAccentColor colorUsingColorSpace:NSColorSpace.sRGBColorSpace];
  if (accent == nil) return std::nullopt;
  return std::array<double, 3>{accent.redComponent, accent.greenComponent, accent.blueComponent};
}

std::shared_ptr<void> watchMacSystemColors(std::function<void()> changed) {
  NSNotificationCenter* centre = NSNotificationCenter.defaultCenter;
  id<NSObject> token = [centre addObserverForName:NSSystemColorsDidChangeNotification
                                           object:nil
                                            queue:NSOperationQueue.mainQueue
                                       usingBlock:^(NSNotification*) {
                                         changed();
                                       }];
  // The token is held by the watch and handed back to the centre when the watch ends.
  return std::shared_ptr<void>((__bridge_retained void*)token, [](void* held) {
    id<NSObject> observer = (__bridge_transfer id<NSObject>)held;
    [NSNotificationCenter.defaultCenter removeObserver:observer];
  });
}

}  // namespace brimly
