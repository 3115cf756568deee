#include "platform/macos/MacAcceleratorPort.h"

#include <IOKit/IOKitLib.h>

#include "platform/macos/OwnedHandles.h"
#include "platform/macos/PropertyListConversion.h"

namespace brimly {
namespace {

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
      CFMutableDictionaryRef rawProperties = nullptr;
      if (IORegistryEntryCreateCFProperties(service.get(), &rawProperties, kCFAllocatorDefault,
                                            0) != KERN_SUCCESS) {
        services.emplace_back();
        continue;
      }
      CFOwned<CFMutableDictionaryRef> properties(rawProperties);
      services.push_back(propertyDictFromCF(properties.get()));
    }
    return services;
  }
};

}  // namespace

std::unique_ptr<AcceleratorPort> makeMacAcceleratorPort() {
  return std::make_unique<MacAcceleratorPort>();
}

}  // namespace brimly
