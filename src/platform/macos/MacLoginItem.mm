#include "platform/macos/MacLoginItem.h"

#import <Foundation/Foundation.h>
#import <ServiceManagement/ServiceManagement.h>

#include <string>

// SMAppService is macOS 13.0, older than the deployment target: no availability check needed.

namespace brimly {
namespace {

std::string describe(NSError* _Nullable error) {
  // The description is autoreleased: copied before the pool around the caller drains.
  const char* text = error.localizedDescription.UTF8String;
  if (text == nullptr) return "the system gave no reason";
  return std::string(text);
}

class MacLoginItem final : public LoginItemPort {
 public:
  bool isEnabled() const override {
    @autoreleasepool {
      // Registration may need the user's approval in System Settings; only enabled counts.
      return SMAppService.mainAppService.status == SMAppServiceStatusEnabled;
    }
  }

  std::optional<std::string> setEnabled(bool enabled) override {
    @autoreleasepool {
      SMAppService* service = SMAppService.mainAppService;
      NSError* error = nil;
      const BOOL done = enabled ? [service registerAndReturnError:&error]
                                : [service unregisterAndReturnError:&error];
      if (done) return std::nullopt;
      return describe(error);
    }
  }
};

}  // namespace

std::unique_ptr<LoginItemPort> makeMacLoginItem() {
  return std::make_unique<MacLoginItem>();
}

}  // namespace brimly
