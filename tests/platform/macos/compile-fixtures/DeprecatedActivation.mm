// Must fail the macOS compile check from macOS 14 on: the SDK deprecates this call there.
#import <AppKit/AppKit.h>

void comeForward() {
  [NSApplication.sharedApplication activateIgnoringOtherApps:YES];
}
