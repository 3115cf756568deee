#include "platform/macos/MacDiskPort.h"

#include <CoreFoundation/CoreFoundation.h>

#include <cstdint>

#include "platform/macos/MacReadingRules.h"
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
// the container's figures. The important-usage figure counts purgeable space as free; the plain
// available capacity stands in where it has no answer (volumeCapacities decides).
class MacDiskPort final : public DiskPort {
 public:
  std::optional<DiskCapacities> readDiskCapacities() override {
    const auto* path = reinterpret_cast<const UInt8*>("/");
    CFOwned<CFURLRef> root(
        CFURLCreateFromFileSystemRepresentation(kCFAllocatorDefault, path, 1, true));
    if (!root) return std::nullopt;
    const void* keyList[] = {kCFURLVolumeAvailableCapacityForImportantUsageKey,
                             kCFURLVolumeAvailableCapacityKey, kCFURLVolumeTotalCapacityKey};
    CFOwned<CFArrayRef> keys(
        CFArrayCreate(kCFAllocatorDefault, keyList, 3, &kCFTypeArrayCallBacks));
    if (!keys) return std::nullopt;
    CFOwned<CFDictionaryRef> values(
        CFURLCopyResourcePropertiesForKeys(root.get(), keys.get(), nullptr));
    if (!values) return std::nullopt;
    return volumeCapacities(
        integerFor(values.get(), kCFURLVolumeAvailableCapacityForImportantUsageKey),
        integerFor(values.get(), kCFURLVolumeAvailableCapacityKey),
        integerFor(values.get(), kCFURLVolumeTotalCapacityKey));
  }
};

}  // namespace

std::unique_ptr<DiskPort> makeMacDiskPort() {
  return std::make_unique<MacDiskPort>();
}

}  // namespace brimly
