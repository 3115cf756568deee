#include "platform/macos/MacDiskPort.h"

#include <CoreFoundation/CoreFoundation.h>

#include <cstdint>

#include "platform/macos/OwnedHandles.h"
#include "platform/macos/PropertyListConversion.h"

namespace brimly {
namespace {

std::optional<std::int64_t> integerFor(CFDictionaryRef values, CFStringRef key) {
  const std::optional<PropertyValue> value = propertyValueFromCF(CFDictionaryGetValue(values, key));
  if (!value) return std::nullopt;
  if (const auto* integer = value->get<std::int64_t>()) return *integer;
  return std::nullopt;
}

// "/" is the sealed system volume; it shares its container with the data volume, so these are
// the container's figures. The important-usage figure counts purgeable space as free.
class MacDiskPort final : public DiskPort {
 public:
  std::optional<DiskCapacities> readDiskCapacities() override {
    const auto* path = reinterpret_cast<const UInt8*>("/");
    CFOwned<CFURLRef> root(
        CFURLCreateFromFileSystemRepresentation(kCFAllocatorDefault, path, 1, true));
    if (!root) return std::nullopt;
    const void* keyList[] = {kCFURLVolumeAvailableCapacityForImportantUsageKey,
                             kCFURLVolumeTotalCapacityKey};
    CFOwned<CFArrayRef> keys(
        CFArrayCreate(kCFAllocatorDefault, keyList, 2, &kCFTypeArrayCallBacks));
    if (!keys) return std::nullopt;
    CFOwned<CFDictionaryRef> values(
        CFURLCopyResourcePropertiesForKeys(root.get(), keys.get(), nullptr));
    if (!values) return std::nullopt;
    return DiskCapacities{
        .available = integerFor(values.get(), kCFURLVolumeAvailableCapacityForImportantUsageKey),
        .total = integerFor(values.get(), kCFURLVolumeTotalCapacityKey)};
  }
};

}  // namespace

std::unique_ptr<DiskPort> makeMacDiskPort() {
  return std::make_unique<MacDiskPort>();
}

}  // namespace brimly
