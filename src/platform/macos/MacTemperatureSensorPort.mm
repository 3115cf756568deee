#include "platform/macos/MacTemperatureSensorPort.h"

#include <CoreFoundation/CoreFoundation.h>
#include <dlfcn.h>

#include <cstdint>

#include "platform/macos/OwnedHandles.h"
#include "platform/macos/PropertyListConversion.h"

namespace brimly {
namespace {

// The private event-system client and event types are Core Foundation objects; they are handled
// here only as CFTypeRef, under names of our own, so that no public IOKit declaration clashes.
using CreateClientFn = CFTypeRef (*)(CFAllocatorRef allocator);
using SetMatchingFn = int (*)(CFTypeRef client, CFDictionaryRef matching);
using CopyServicesFn = CFArrayRef (*)(CFTypeRef client);
using CopyEventFn = CFTypeRef (*)(CFTypeRef service, std::int64_t type, std::int32_t options,
                                  std::int64_t timestamp);
using CopyPropertyFn = CFTypeRef (*)(CFTypeRef service, CFStringRef key);
using EventFloatFn = double (*)(CFTypeRef event, std::int32_t field);

constexpr std::int32_t kVendorUsagePage = 0xFF00;
constexpr std::int32_t kTemperatureSensorUsage = 5;
constexpr std::int64_t kTemperatureEventType = 15;
constexpr std::int32_t kTemperatureLevelField = 15 << 16;

template <typename Fn>
Fn lookUp(void* handle, const char* name) {
  return handle == nullptr ? nullptr : reinterpret_cast<Fn>(dlsym(handle, name));
}

CFOwned<CFDictionaryRef> temperatureSensorMatching() {
  CFOwned<CFNumberRef> page(
      CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt32Type, &kVendorUsagePage));
  CFOwned<CFNumberRef> usage(
      CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt32Type, &kTemperatureSensorUsage));
  if (!page || !usage) return {};
  const void* keys[] = {CFSTR("PrimaryUsagePage"), CFSTR("PrimaryUsage")};
  const void* values[] = {page.get(), usage.get()};
  return CFOwned<CFDictionaryRef>(CFDictionaryCreate(kCFAllocatorDefault, keys, values, 2,
                                                     &kCFTypeDictionaryKeyCallBacks,
                                                     &kCFTypeDictionaryValueCallBacks));
}

class MacTemperatureSensorPort final : public TemperatureSensorPort {
 public:
  // The event-system client is made on the first reading, on the thread that takes every
  // reading (the sampler's): whether the client may move between threads is not known.
  std::vector<RawTemperatureSensor> readTemperatureSensors() override {
    if (!connected_) connect();
    return readSensors();
  }

  SensorNaming naming() const override { return SensorNaming::appleSilicon; }

 private:
  void connect() {
    connected_ = true;
    void* process = dlopen(nullptr, RTLD_NOW);
    const auto createClient = lookUp<CreateClientFn>(process, "IOHIDEventSystemClientCreate");
    const auto setMatching = lookUp<SetMatchingFn>(process, "IOHIDEventSystemClientSetMatching");
    copyServices_ = lookUp<CopyServicesFn>(process, "IOHIDEventSystemClientCopyServices");
    copyEvent_ = lookUp<CopyEventFn>(process, "IOHIDServiceClientCopyEvent");
    copyProperty_ = lookUp<CopyPropertyFn>(process, "IOHIDServiceClientCopyProperty");
    eventFloat_ = lookUp<EventFloatFn>(process, "IOHIDEventGetFloatValue");
    if (createClient == nullptr || setMatching == nullptr) return;
    CFOwned<CFTypeRef> client(createClient(kCFAllocatorDefault));
    CFOwned<CFDictionaryRef> matching = temperatureSensorMatching();
    if (!client || !matching) return;
    setMatching(client.get(), matching.get());
    client_ = std::move(client);
  }

  std::vector<RawTemperatureSensor> readSensors() {
    std::vector<RawTemperatureSensor> sensors;
    if (!client_ || copyServices_ == nullptr || copyEvent_ == nullptr || copyProperty_ == nullptr ||
        eventFloat_ == nullptr) {
      return sensors;
    }
    CFOwned<CFArrayRef> services(copyServices_(client_.get()));
    if (!services || CFGetTypeID(services.get()) != CFArrayGetTypeID()) return sensors;
    const CFIndex count = CFArrayGetCount(services.get());
    for (CFIndex i = 0; i < count; ++i) {
      const CFTypeRef service = CFArrayGetValueAtIndex(services.get(), i);
      if (service == nullptr) continue;
      // A sensor without a current event is skipped; that happens now and then.
      CFOwned<CFTypeRef> event(copyEvent_(service, kTemperatureEventType, 0, 0));
      if (!event) continue;
      CFOwned<CFTypeRef> product(copyProperty_(service, CFSTR("Product")));
      sensors.push_back(
          RawTemperatureSensor{.product = stringFromCF(product.get()),
                               .celsius = eventFloat_(event.get(), kTemperatureLevelField)});
    }
    return sensors;
  }

  bool connected_ = false;
  CopyServicesFn copyServices_ = nullptr;
  CopyEventFn copyEvent_ = nullptr;
  CopyPropertyFn copyProperty_ = nullptr;
  EventFloatFn eventFloat_ = nullptr;
  CFOwned<CFTypeRef> client_;
};

}  // namespace

std::unique_ptr<TemperatureSensorPort> makeMacTemperatureSensorPort() {
  return std::make_unique<MacTemperatureSensorPort>();
}

}  // namespace brimly
