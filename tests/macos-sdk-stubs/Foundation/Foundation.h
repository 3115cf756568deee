// Mirrors the macOS SDK's Foundation (and Objective-C runtime) declarations used by
// src/platform/macos, for a syntax check only (scripts/check-macos-compile). Interfaces without
// implementations; nothing here is linked.
#pragma once

#include <sys/types.h>

#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CGGeometry.h>

// <objc/objc.h>, <objc/NSObject.h>
typedef signed char BOOL;  // as on x86-64; arm64 uses bool, which behaves the same here
#define YES ((BOOL)1)
#define NO ((BOOL)0)
#define nil nullptr

typedef long NSInteger;
typedef unsigned long NSUInteger;

#define NS_ENUM(_type, _name) CF_ENUM(_type, _name)
#define NS_OPTIONS(_type, _name) CF_OPTIONS(_type, _name)

#pragma clang assume_nonnull begin

__attribute__((objc_root_class))
@interface NSObject
+ (instancetype)alloc;
+ (instancetype)new;
- (instancetype)init;
@end

// <Foundation/NSEnumerator.h>
typedef struct {
  unsigned long state;
  id __unsafe_unretained _Nullable* _Nullable itemsPtr;
  unsigned long* _Nullable mutationsPtr;
  unsigned long extra[5];
} NSFastEnumerationState;

@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id __unsafe_unretained _Nullable[])buffer
                                    count:(NSUInteger)len;
@end

// <Foundation/NSString.h>
@interface NSString : NSObject
+ (nullable instancetype)stringWithUTF8String:(const char*)nullTerminatedCString;
@end

// <Foundation/NSArray.h>
@interface NSArray<__covariant ObjectType> : NSObject <NSFastEnumeration>
@property(readonly) NSUInteger count;
@end

// <Foundation/NSBundle.h>
@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle* mainBundle;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@end

// <Foundation/NSGeometry.h>
typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;

typedef struct NSEdgeInsets {
  CGFloat top;
  CGFloat left;
  CGFloat bottom;
  CGFloat right;
} NSEdgeInsets;

#pragma clang assume_nonnull end
