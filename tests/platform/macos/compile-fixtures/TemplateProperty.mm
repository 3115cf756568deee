// Must fail the macOS compile check: `template` is a C++ keyword, so in Objective-C++ the SDK
// offers setTemplate: and isTemplate instead of the property.
#import <AppKit/AppKit.h>

void tintedByTheMenuBar(NSImage* image) {
  image.template = YES;
}
