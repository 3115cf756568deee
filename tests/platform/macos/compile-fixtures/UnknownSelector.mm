// Must fail the macOS compile check: NSEvent has no such class method.
#import <AppKit/AppKit.h>

void stopMonitor(id monitor) {
  [NSEvent removeMonitor:monitor immediately:YES];
}
