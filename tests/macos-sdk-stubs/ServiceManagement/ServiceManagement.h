// Mirrors the macOS SDK's ServiceManagement declarations used by src/platform/macos (SMAppService,
// macOS 13.0; link -framework ServiceManagement), for a syntax check only
// (scripts/check-macos-compile). Interfaces without implementations; nothing here is linked.
#pragma once

#include <Foundation/Foundation.h>

#pragma clang assume_nonnull begin

// <ServiceManagement/SMAppService.h>
typedef NS_ENUM(NSInteger, SMAppServiceStatus) {
  SMAppServiceStatusNotRegistered = 0,
  SMAppServiceStatusEnabled = 1,
  SMAppServiceStatusRequiresApproval = 2,
  SMAppServiceStatusNotFound = 3,
};  // macOS 13.0

// macOS 13.0
@interface SMAppService : NSObject
@property(class, readonly) SMAppService* mainAppService;
@property(readonly) SMAppServiceStatus status;
- (BOOL)registerAndReturnError:(NSError**)error;
- (BOOL)unregisterAndReturnError:(NSError**)error;
+ (void)openSystemSettingsLoginItems;
@end

#pragma clang assume_nonnull end
