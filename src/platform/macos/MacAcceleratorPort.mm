#include "platform/macos/MacAcceleratorPort.h"

#include <IOKit/IOKitLib.h>

#include <string>

#include "platform/macos/OwnedHandles.h"
#include "platform/macos/PropertyListConversion.h"

namespace brimly {
namespace {

// What Brimly uses of an accelerator, read one property at a time: the entry carries large blobs
// that are not worth converting every second. "IOClass" is the service's class name (asked of the
// object, not read from the registry), "PerformanceStatistics" its load figures, left out where
// the service has none. Nothing when that property is not a string-keyed dictionary.
std::optional<PropertyDict> acceleratorProperties(io_registry_entry_t service) {
  PropertyDict properties;
  io_name_t className{};
  if (IOObjectGetClass(service, className) == KERN_SUCCESS)
    properties.set("IOClass", std::string(className));
  CFOwned<CFTypeRef> statistics(IORegistryEntryCreateCFProperty(
      service, CFSTR("PerformanceStatistics"), kCFAllocatorDefault, 0));
  if (!statistics) return properties;
  std::optional<PropertyDict> figures = propertyDictFromCF(statistics.get());
  if (!figures) return std::nullopt;
  properties.set("PerformanceStatistics", std::move(*figures));
  return properties;
}

class MacAcceleratorPort final : public AcceleratorPort {
 public:
  std::optional<std::vector<std::optional<PropertyDict>>> readAcceleratorServices() override {
    CFMutableDictionaryRef matching = IOServiceMatching("IOAccelerator");
    if (matching == nullptr) return std::nullopt;
    io_iterator_t rawIterator = IO_OBJECT_NULL;
    // The matching dictionary is consumed by this call, whatever its outcome.
    if (IOServiceGetMatchingServices(kIOMainPortDefault, matching, &rawIterator) != KERN_SUCCESS) {
      return std::nullopt;
    }
    IOOwned iterator(rawIterator);
    std::vector<std::optional<PropertyDict>> services;
    while (io_object_t rawService = IOIteratorNext(iterator.get())) {
      IOOwned service(rawService);
      services.push_back(acceleratorProperties(service.get()));
    }
    return services;
  }
};

}  // namespace

std::unique_ptr<AcceleratorPort> makeMacAcceleratorPort() {
  return std::make_unique<MacAcceleratorPort>();
}

}  // namespace brimly
