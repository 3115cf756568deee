// Mirrors the macOS SDK's AppKit declarations used by src/platform/macos, for a syntax check only
// (scripts/check-macos-compile). Interfaces without implementations; nothing here is linked.
#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

@class NSWindow;

// <AppKit/NSColor.h>
@interface NSColor : NSObject
@property(class, strong, readonly) NSColor* clearColor;
@end

// <AppKit/NSView.h>
@interface NSView : NSObject
@property(nullable, readonly, weak) NSWindow* window;
@end

// <AppKit/NSWindow.h>
typedef NSInteger NSWindowLevel;
typedef NS_OPTIONS(NSUInteger, NSWindowCollectionBehavior){
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

@interface NSWindow : NSObject
@property NSWindowLevel level;
@property NSWindowCollectionBehavior collectionBehavior;
@property(getter=isOpaque) BOOL opaque;
@property(null_resettable, copy) NSColor* backgroundColor;
@property BOOL hasShadow;
@property(getter=isMovable) BOOL movable;
@property BOOL hidesOnDeactivate;
@property BOOL ignoresMouseEvents;
- (void)orderFrontRegardless;
@end

// <AppKit/NSScreen.h>
@interface NSScreen : NSObject
@property(class, readonly, copy) NSArray<NSScreen*>* screens;
@property(class, readonly, nullable, strong) NSScreen* mainScreen;
@property(readonly) NSRect frame;
@property(readonly) NSEdgeInsets safeAreaInsets;  // macOS 12.0
@property(readonly) NSRect auxiliaryTopLeftArea;  // macOS 12.0
@property(readonly) NSRect auxiliaryTopRightArea;  // macOS 12.0
@end

// <AppKit/NSStatusBar.h>
@interface NSStatusBar : NSObject
@property(class, readonly, strong) NSStatusBar* systemStatusBar;
@property(readonly) CGFloat thickness;
@end

// <AppKit/NSEvent.h>
typedef NS_OPTIONS(unsigned long long, NSEventMask){
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

@interface NSEvent : NSObject
+ (nullable id)addGlobalMonitorForEventsMatchingMask:(NSEventMask)mask
                                             handler:(void (^)(NSEvent* event))block;
+ (nullable id)addLocalMonitorForEventsMatchingMask:(NSEventMask)mask
                                            handler:(NSEvent* _Nullable (^)(NSEvent* event))block;
+ (void)removeMonitor:(id)eventMonitor;
@property(class, readonly) NSPoint mouseLocation;
@end

// <AppKit/NSRunningApplication.h>
@interface NSRunningApplication : NSObject
+ (NSArray<NSRunningApplication*>*)runningApplicationsWithBundleIdentifier:
    (NSString*)bundleIdentifier;
@property(readonly) pid_t processIdentifier;
@end

// <AppKit/NSApplication.h>
typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy){
    NSApplicationActivationPolicyRegular = 0,
    NSApplicationActivationPolicyAccessory = 1,
    NSApplicationActivationPolicyProhibited = 2,
};

@interface NSApplication : NSObject
@property(class, readonly, strong) __kindof NSApplication* sharedApplication;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
@end

extern __kindof NSApplication* _Null_unspecified NSApp;

#pragma clang assume_nonnull end
