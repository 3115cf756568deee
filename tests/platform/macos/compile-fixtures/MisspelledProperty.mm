// Must fail the macOS compile check: NSWindow declares `hidesOnDeactivate`, not this.
#import <AppKit/AppKit.h>

void keepShownWhileInactive(NSWindow* window) {
  window.hidesOnDeactivat = NO;
}
