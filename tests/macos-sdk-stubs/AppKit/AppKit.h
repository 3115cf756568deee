// Mirrors the macOS SDK's AppKit declarations used by src/platform/macos, for a syntax check only
// (scripts/check-macos-compile). Interfaces without implementations; nothing here is linked.
#pragma once

#include <CoreGraphics/CoreGraphics.h>
#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

@class NSScreen;
@class NSWindow;

// <AppKit/NSColorSpace.h>
@interface NSColorSpace : NSObject
@property(class, strong, readonly) NSColorSpace* sRGBColorSpace;  // macOS 10.5
@end

// <AppKit/NSColor.h>
@interface NSColor : NSObject
@property(class, strong, readonly) NSColor* clearColor;
@property(class, strong, readonly) NSColor* controlAccentColor;  // macOS 10.14
+ (NSColor*)colorWithSRGBRed:(CGFloat)red
                       green:(CGFloat)green
                        blue:(CGFloat)blue
                       alpha:(CGFloat)alpha;                     // macOS 10.7
- (nullable NSColor*)colorUsingColorSpace:(NSColorSpace*)space;  // macOS 10.6
@property(readonly) CGFloat redComponent;
@property(readonly) CGFloat greenComponent;
@property(readonly) CGFloat blueComponent;
@property(readonly) CGFloat alphaComponent;
@end
extern NSNotificationName NSSystemColorsDidChangeNotification;

// <AppKit/NSFontDescriptor.h>
typedef NSString* NSFontDescriptorSystemDesign;
extern NSFontDescriptorSystemDesign const NSFontDescriptorSystemDesignRounded;  // macOS 10.15
@interface NSFontDescriptor : NSObject
- (nullable NSFontDescriptor*)fontDescriptorWithDesign:
    (NSFontDescriptorSystemDesign)design;  // macOS 10.15
@end

// <AppKit/NSFont.h>
@interface NSFont : NSObject
+ (NSFont*)systemFontOfSize:(CGFloat)fontSize;
+ (nullable NSFont*)fontWithDescriptor:(NSFontDescriptor*)fontDescriptor size:(CGFloat)fontSize;
@property(readonly, strong) NSFontDescriptor* fontDescriptor;
@end

// <AppKit/NSAppearance.h>
typedef NSString* NSAppearanceName;
extern NSAppearanceName const NSAppearanceNameDarkAqua;  // macOS 10.14
@interface NSAppearance : NSObject
+ (nullable NSAppearance*)appearanceNamed:(NSAppearanceName)name;
@end

// <AppKit/NSEvent.h>
typedef NS_OPTIONS(unsigned long long, NSEventMask) {
  NSEventMaskLeftMouseDown = 1ULL << 1,
  NSEventMaskLeftMouseUp = 1ULL << 2,
  NSEventMaskRightMouseDown = 1ULL << 3,
  NSEventMaskRightMouseUp = 1ULL << 4,
  NSEventMaskMouseMoved = 1ULL << 5,
  NSEventMaskLeftMouseDragged = 1ULL << 6,
  NSEventMaskRightMouseDragged = 1ULL << 7,
  NSEventMaskKeyDown = 1ULL << 10,
  NSEventMaskOtherMouseDragged = 1ULL << 27,
};

typedef NS_ENUM(NSUInteger, NSEventType) {
  NSEventTypeLeftMouseDown = 1,
  NSEventTypeLeftMouseUp = 2,
  NSEventTypeRightMouseDown = 3,
  NSEventTypeRightMouseUp = 4,
  NSEventTypeMouseMoved = 5,
  NSEventTypeLeftMouseDragged = 6,
  NSEventTypeRightMouseDragged = 7,
  NSEventTypeKeyDown = 10,
};

@interface NSEvent : NSObject
@property(readonly) NSEventType type;
+ (nullable id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask
                                             handler:(void (^)(NSEvent* event))block;
+ (nullable id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask
                                            handler:(NSEvent* _Nullable (^)(NSEvent* event))block;
+ (void)removeMonitor:(id)eventMonitor;
@property(class, readonly) NSPoint mouseLocation;
@end

// <AppKit/NSImage.h>
@interface NSImage : NSObject
+ (nullable instancetype)imageWithSystemSymbolName:(NSString*)name
                          accessibilityDescription:(nullable NSString*)description;  // macOS 11.0
@property NSSize size;
- (void)drawInRect:(NSRect)rect;  // macOS 10.9
// `template` is a C++ keyword: the SDK declares the accessors instead of the property for C++.
#if __cplusplus
- (BOOL)isTemplate;
- (void)setTemplate:(BOOL)isTemplate;
#else
@property(getter=isTemplate) BOOL template;
#endif
@end

// <AppKit/NSGraphicsContext.h>
@interface NSGraphicsContext : NSObject
+ (NSGraphicsContext*)graphicsContextWithCGContext:(CGContextRef)graphicsPort
                                           flipped:(BOOL)initialFlippedState;  // macOS 10.10
@property(class, nullable, strong) NSGraphicsContext* currentContext;
+ (void)saveGraphicsState;
+ (void)restoreGraphicsState;
@end

// <AppKit/NSResponder.h>
@interface NSResponder : NSObject
@end

// <AppKit/NSView.h>
@interface NSView : NSResponder
@property(nullable, readonly, unsafe_unretained) NSWindow* window;
@property NSRect bounds;
- (NSRect)convertRect:(NSRect)rect toView:(nullable NSView*)view;
@end

@interface NSView (NSToolTipOwner)
@property(nullable, copy) NSString* toolTip;
@end

// <AppKit/NSControl.h>
@interface NSControl : NSView
@property(nullable, weak) id target;
@property(nullable) SEL action;
- (NSInteger)sendActionOn:(NSEventMask)mask;
@end

// <AppKit/NSButton.h>
@interface NSButton : NSControl
@property(nullable, strong) NSImage* image;
@end

// <AppKit/NSWindow.h>
typedef NSInteger NSWindowLevel;
typedef NS_OPTIONS(NSUInteger, NSWindowCollectionBehavior) {
  NSWindowCollectionBehaviorDefault = 0,
  NSWindowCollectionBehaviorCanJoinAllSpaces = 1 << 0,
  NSWindowCollectionBehaviorMoveToActiveSpace = 1 << 1,
  NSWindowCollectionBehaviorManaged = 1 << 2,
  NSWindowCollectionBehaviorTransient = 1 << 3,
  NSWindowCollectionBehaviorStationary = 1 << 4,
  NSWindowCollectionBehaviorParticipatesInCycle = 1 << 5,
  NSWindowCollectionBehaviorIgnoresCycle = 1 << 6,
  NSWindowCollectionBehaviorFullScreenPrimary = 1 << 7,
  NSWindowCollectionBehaviorFullScreenAuxiliary = 1 << 8,
  NSWindowCollectionBehaviorFullScreenNone = 1 << 9,
};

typedef NS_ENUM(NSInteger, NSWindowAnimationBehavior) {
  NSWindowAnimationBehaviorDefault = 0,
  NSWindowAnimationBehaviorNone = 2,
  NSWindowAnimationBehaviorDocumentWindow,
  NSWindowAnimationBehaviorUtilityWindow,
  NSWindowAnimationBehaviorAlertPanel,
};  // macOS 10.7

typedef NS_OPTIONS(NSUInteger, NSWindowStyleMask) {
  NSWindowStyleMaskBorderless = 0,
  NSWindowStyleMaskTitled = 1 << 0,
  NSWindowStyleMaskClosable = 1 << 1,
  NSWindowStyleMaskMiniaturizable = 1 << 2,
  NSWindowStyleMaskResizable = 1 << 3,
  NSWindowStyleMaskFullSizeContentView = 1 << 15,  // macOS 10.10
};

typedef NS_ENUM(NSInteger, NSWindowTitleVisibility) {
  NSWindowTitleVisible = 0,
  NSWindowTitleHidden = 1,
};  // macOS 10.10

@interface NSWindow : NSResponder
@property NSWindowStyleMask styleMask;
@property NSWindowTitleVisibility titleVisibility;  // macOS 10.10
@property BOOL titlebarAppearsTransparent;          // macOS 10.10
@property(getter=isMovableByWindowBackground) BOOL movableByWindowBackground;
@property(nullable, strong) NSAppearance* appearance;  // NSAppearanceCustomization, macOS 10.14
- (void)setContentSize:(NSSize)size;
@property NSWindowLevel level;
@property NSWindowCollectionBehavior collectionBehavior;
@property(getter=isOpaque) BOOL opaque;
@property(null_resettable, copy) NSColor* backgroundColor;
@property BOOL hasShadow;
@property(getter=isMovable) BOOL movable;
@property BOOL hidesOnDeactivate;
@property BOOL ignoresMouseEvents;
@property NSWindowAnimationBehavior animationBehavior;  // macOS 10.7
@property(nullable, readonly, strong) NSScreen* screen;
- (NSRect)convertRectToScreen:(NSRect)rect;  // macOS 10.7
- (void)makeKeyAndOrderFront:(nullable id)sender;
- (void)orderFrontRegardless;
- (void)performWindowDragWithEvent:(NSEvent*)event;  // macOS 10.11
@end

// <AppKit/NSScreen.h>
@interface NSScreen : NSObject
@property(class, readonly, copy) NSArray<NSScreen*>* screens;
@property(class, readonly, nullable, strong) NSScreen* mainScreen;
@property(readonly) NSRect frame;
@property(readonly) NSRect visibleFrame;
@property(readonly) NSEdgeInsets safeAreaInsets;   // macOS 12.0
@property(readonly) NSRect auxiliaryTopLeftArea;   // macOS 12.0
@property(readonly) NSRect auxiliaryTopRightArea;  // macOS 12.0
@end

// <AppKit/NSStatusBarButton.h>
@interface NSStatusBarButton : NSButton
@end

// <AppKit/NSStatusItem.h>
@interface NSStatusItem : NSObject
@property(nullable, readonly, strong) NSStatusBarButton* button;  // macOS 10.10
@end

// <AppKit/NSStatusBar.h>
static const CGFloat NSVariableStatusItemLength = -1;
static const CGFloat NSSquareStatusItemLength = -2;

@interface NSStatusBar : NSObject
@property(class, readonly, strong) NSStatusBar* systemStatusBar;
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@property(readonly) CGFloat thickness;
@end

// <AppKit/NSRunningApplication.h>
@interface NSRunningApplication : NSObject
+ (NSArray<NSRunningApplication*>*)runningApplicationsWithBundleIdentifier:
    (NSString*)bundleIdentifier;
@property(readonly) pid_t processIdentifier;
@end

// <AppKit/NSApplication.h>
typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
  NSApplicationActivationPolicyRegular = 0,
  NSApplicationActivationPolicyAccessory = 1,
  NSApplicationActivationPolicyProhibited = 2,
};

@interface NSApplication : NSResponder
@property(class, readonly, strong) __kindof NSApplication* sharedApplication;
@property(nullable, readonly, strong) NSEvent* currentEvent;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
// Deprecated from macOS 14 on: the SDK's API_DEPRECATED(macos(10.6, 14.0)) warns wherever the
// deployment target (__MAC_OS_X_VERSION_MIN_REQUIRED) is 14.0 or later.
#if __MAC_OS_X_VERSION_MIN_REQUIRED >= 140000
- (void)activateIgnoringOtherApps:(BOOL)ignoreOtherApps
    __attribute__((deprecated("first deprecated in macOS 14.0")));
#else
- (void)activateIgnoringOtherApps:(BOOL)ignoreOtherApps;
#endif
- (void)activate;  // macOS 14.0
@end

extern __kindof NSApplication* _Null_unspecified NSApp;

#pragma clang assume_nonnull end
