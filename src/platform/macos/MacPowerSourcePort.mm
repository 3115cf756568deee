#include "platform/macos/MacPowerSourcePort.h"

#include <IOKit/IOKitLib.h>
#include <IOKit/ps/IOPowerSources.h>

#include "platform/macos/OwnedHandles.h"
#include "platform/macos/PropertyListConversion.h"

namespace brimly {
namespace {

// The battery's registry entry; none on a machine without a battery.
IOOwned smartBattery() {
  CFMutableDictionaryRef matching = IOServiceMatching("AppleSmartBattery");
  if (matching == nullptr) return IOOwned(IO_OBJECT_NULL);
  // Consumes the matching dictionary, whatever the outcome.
  return IOOwned(IOServiceGetMatchingService(kIOMainPortDefault, matching));
}

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
    IOOwned battery = smartBattery();
    if (!battery) return std::nullopt;
    CFMutableDictionaryRef rawProperties = nullptr;
    if (IORegistryEntryCreateCFProperties(battery.get(), &rawProperties, kCFAllocatorDefault, 0) !=
        KERN_SUCCESS) {
      return std::nullopt;
    }
    CFOwned<CFMutableDictionaryRef> properties(rawProperties);
    return propertyDictFromCF(properties.get());
  }

  // The sampler's reading, every second: the one property, not the whole entry.
  std::optional<PropertyDict> readSmartBatteryVoltage() override {
    IOOwned battery = smartBattery();
    if (!battery) return std::nullopt;
    PropertyDict properties;
    CFOwned<CFTypeRef> voltage(
        IORegistryEntryCreateCFProperty(battery.get(), CFSTR("Voltage"), kCFAllocatorDefault, 0));
    if (std::optional<PropertyValue> value = propertyValueFromCF(voltage.get())) {
      properties.set("Voltage", std::move(*value));
    }
    return properties;
  }
};

}  // namespace

std::unique_ptr<PowerSourcePort> makeMacPowerSourcePort() {
  return std::make_unique<MacPowerSourcePort>();
}

}  // namespace brimly
