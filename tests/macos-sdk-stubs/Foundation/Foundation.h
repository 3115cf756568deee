// Mirrors the macOS SDK's Foundation (and Objective-C runtime) declarations used by
// src/platform/macos, for a syntax check only (scripts/check-macos-compile). Interfaces without
// implementations; nothing here is linked.
#pragma once

#include <sys/types.h>

#include <CoreFoundation/CoreFoundation.h>
#include <CoreGraphics/CGGeometry.h>

// <objc/objc.h>, <objc/NSObject.h>
// Apple silicon (arm64): BOOL is bool; it is signed char only on Intel Macs (x86-64).
typedef bool BOOL;
#if __has_feature(objc_bool)
#define YES __objc_yes
#define NO __objc_no
#else
#define YES ((BOOL)1)
#define NO ((BOOL)0)
#endif
#define nil nullptr

typedef long NSInteger;
typedef unsigned long NSUInteger;

#define NS_ENUM(_type, _name) CF_ENUM(_type, _name)
#define NS_OPTIONS(_type, _name) CF_OPTIONS(_type, _name)

#pragma clang assume_nonnull begin

@protocol NSObject
- (BOOL)isKindOfClass:(Class)aClass;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject>
+ (instancetype)alloc;
+ (instancetype)new;
- (instancetype)init;
+ (Class)class;
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
#define NS_RETURNS_INNER_POINTER __attribute__((objc_returns_inner_pointer))

@interface NSString : NSObject
+ (nullable instancetype)stringWithUTF8String:(const char*)nullTerminatedCString;
@property(nullable, readonly) const char* UTF8String NS_RETURNS_INNER_POINTER;
@end

// <Foundation/NSArray.h>
@interface NSArray<__covariant ObjectType> : NSObject <NSFastEnumeration>
@property(readonly) NSUInteger count;
@end

// <Foundation/NSDictionary.h>
@interface NSDictionary<__covariant KeyType, __covariant ObjectType> : NSObject <NSFastEnumeration>
@property(readonly) NSUInteger count;
- (nullable ObjectType)objectForKey:(KeyType)aKey;
@end

@interface NSDictionary <KeyType, ObjectType>(NSExtendedDictionary)
- (nullable ObjectType)objectForKeyedSubscript:(KeyType)key;  // macOS 10.8
@end

// <Foundation/NSBundle.h>
@interface NSBundle : NSObject
@property(class, readonly, strong) NSBundle* mainBundle;
@property(nullable, readonly, copy) NSString* bundleIdentifier;
@property(nullable, readonly, copy) NSDictionary<NSString*, id>* infoDictionary;
@end

// <Foundation/NSError.h>
@interface NSError : NSObject
@property(readonly, copy) NSString* localizedDescription;
@end

// <Foundation/NSOperation.h>
@interface NSOperationQueue : NSObject
@property(class, readonly, strong) NSOperationQueue* mainQueue;  // macOS 10.6
@end

// <Foundation/NSNotification.h>
typedef NSString* NSNotificationName;
@interface NSNotification : NSObject
@property(readonly, copy) NSNotificationName name;
@property(nullable, readonly, retain) id object;
@end
@interface NSNotificationCenter : NSObject
@property(class, readonly, strong) NSNotificationCenter* defaultCenter;
- (id<NSObject>)addObserverForName:(nullable NSNotificationName)name
                            object:(nullable id)obj
                             queue:(nullable NSOperationQueue*)queue
                        usingBlock:(void (^)(NSNotification* notification))block;  // macOS 10.6
- (void)removeObserver:(id)observer;
@end

// <Foundation/NSGeometry.h>
typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;

static inline NSSize NSMakeSize(CGFloat w, CGFloat h) {
  NSSize size;
  size.width = w;
  size.height = h;
  return size;
}

typedef struct NSEdgeInsets {
  CGFloat top;
  CGFloat left;
  CGFloat bottom;
  CGFloat right;
} NSEdgeInsets;

#pragma clang assume_nonnull end
