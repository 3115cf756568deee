#include "platform/macos/MacPowerSourcePort.h"

#include <IOKit/IOKitLib.h>
#include <IOKit/ps/IOPowerSources.h>

#include "platform/macos/OwnedHandles.h"
#include "platform/macos/PropertyListConversion.h"

namespace brimly {
namespace {

class MacPowerSourcePort final : public PowerSourcePort {
 public:
  std::optional<std::vector<std::optional<PropertyDict>>> readPowerSourceDescriptions() override {
    CFOwned<CFTypeRef> snapshot(IOPSCopyPowerSourcesInfo());
    if (!snapshot) return std::nullopt;
    CFOwned<CFArrayRef> list(IOPSCopyPowerSourcesList(snapshot.get()));
    if (!list || CFGetTypeID(list.get()) != CFArrayGetTypeID()) return std::nullopt;
    std::vector<std::optional<PropertyDict>> descriptions;
    const CFIndex count = CFArrayGetCount(list.get());
    for (CFIndex i = 0; i < count; ++i) {
      // Borrowed from the snapshot, which outlives this loop.
      CFDictionaryRef description =
          IOPSGetPowerSourceDescription(snapshot.get(), CFArrayGetValueAtIndex(list.get(), i));
      descriptions.push_back(propertyDictFromCF(description));
    }
    return descriptions;
  }

  std::optional<PropertyDict> readSmartBatteryProperties() override {
    CFMutableDictionaryRef matching = IOServiceMatching("AppleSmartBattery");
    if (matching == nullptr) return std::nullopt;
    // Consumes the matching dictionary; no service on a machine without a battery.
    IOOwned battery(IOServiceGetMatchingService(kIOMainPortDefault, matching));
    if (!battery) return std::nullopt;
    CFMutableDictionaryRef rawProperties = nullptr;
    if (IORegistryEntryCreateCFProperties(battery.get(), &rawProperties, kCFAllocatorDefault, 0) !=
        KERN_SUCCESS) {
      return std::nullopt;
    }
    CFOwned<CFMutableDictionaryRef> properties(rawProperties);
    return propertyDictFromCF(properties.get());
  }
};

}  // namespace

std::unique_ptr<PowerSourcePort> makeMacPowerSourcePort() {
  return std::make_unique<MacPowerSourcePort>();
}

}  // namespace brimly
