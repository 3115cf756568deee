#include "platform/macos/MacEnergyCounterPort.h"

#include <CoreFoundation/CoreFoundation.h>
#include <dlfcn.h>

#include <cstdint>
#include <limits>

#include "platform/macos/MacReadingRules.h"
#include "platform/macos/OwnedHandles.h"
#include "platform/macos/PropertyListConversion.h"

namespace brimly {
namespace {

// The library publishes no header; these are the prototypes its callers use. The subscription is
// a Core Foundation object and each channel a dictionary.
using ChannelBlock = int (^)(CFDictionaryRef channel);
using CopyChannelsInGroupFn = CFMutableDictionaryRef (*)(CFStringRef group, CFStringRef subgroup,
                                                         std::uint64_t, std::uint64_t,
                                                         std::uint64_t);
using CreateSubscriptionFn = CFTypeRef (*)(void* owner, CFMutableDictionaryRef desiredChannels,
                                           CFMutableDictionaryRef* subscribedChannels,
                                           std::uint64_t channelId, CFTypeRef options);
using CreateSamplesFn = CFDictionaryRef (*)(CFTypeRef subscription, CFMutableDictionaryRef channels,
                                            CFTypeRef unused);
using IterateFn = int (*)(CFDictionaryRef samples, ChannelBlock block);
using SimpleGetIntegerFn = std::int64_t (*)(CFDictionaryRef channel, std::int32_t* unused);
using ChannelGetStringFn = CFStringRef (*)(CFDictionaryRef channel);

// Where the library has lived: the framework path first, then the library name that recent
// systems serve from the shared cache (no file on disk, so it is opened, never tested for).
constexpr const char* kLibraryPaths[] = {
    "/System/Library/PrivateFrameworks/IOReport.framework/IOReport",
    "/usr/lib/libIOReport.dylib",
};
constexpr std::int64_t kInvalidValue = std::numeric_limits<std::int64_t>::min();
constexpr double kJoulesPerNanojoule = 1e-9;

template <typename Fn>
Fn lookUp(void* handle, const char* name) {
  return handle == nullptr ? nullptr : reinterpret_cast<Fn>(dlsym(handle, name));
}

class MacEnergyCounterPort final : public EnergyCounterPort {
 public:
  ~MacEnergyCounterPort() override {
    subscription_.reset();
    channels_.reset();
    if (library_ != nullptr) dlclose(library_);
  }

  // The library is opened and the channels subscribed to on the first question, on the thread
  // that asks every question (the sampler's): whether a subscription may move between threads is
  // not known.
  bool isAvailable() const override {
    if (!subscribed_) subscribe();
    return subscription_ && channels_ && createSamples_ != nullptr && iterate_ != nullptr &&
           simpleGetInteger_ != nullptr && channelName_ != nullptr;
  }

  std::optional<std::vector<EnergyCounter>> readCounters() override {
    if (!isAvailable()) return std::nullopt;
    CFOwned<CFDictionaryRef> samples(createSamples_(subscription_.get(), channels_.get(), nullptr));
    if (!samples) return std::nullopt;
    std::vector<EnergyCounter> counters;
    std::vector<EnergyCounter>* out = &counters;
    // The block runs synchronously, once per channel, before the iteration returns.
    iterate_(samples.get(), ^int(CFDictionaryRef channel) {
      appendCounter(channel, *out);
      return 0;
    });
    return counters;
  }

  double joulesPerUnit() const override { return kJoulesPerNanojoule; }

 private:
  // Set up once; `isAvailable` is a question, so the state it fills in on first use is mutable.
  void subscribe() const {
    subscribed_ = true;
    for (const char* path : kLibraryPaths) {
      library_ = dlopen(path, RTLD_NOW);
      if (library_ != nullptr) break;
    }
    // Opening the library makes its functions visible through the process-wide handle.
    void* process = dlopen(nullptr, RTLD_NOW);
    const auto copyChannels = lookUp<CopyChannelsInGroupFn>(process, "IOReportCopyChannelsInGroup");
    const auto createSubscription =
        lookUp<CreateSubscriptionFn>(process, "IOReportCreateSubscription");
    createSamples_ = lookUp<CreateSamplesFn>(process, "IOReportCreateSamples");
    iterate_ = lookUp<IterateFn>(process, "IOReportIterate");
    simpleGetInteger_ = lookUp<SimpleGetIntegerFn>(process, "IOReportSimpleGetIntegerValue");
    channelName_ = lookUp<ChannelGetStringFn>(process, "IOReportChannelGetChannelName");
    unitLabel_ = lookUp<ChannelGetStringFn>(process, "IOReportChannelGetUnitLabel");
    if (copyChannels == nullptr || createSubscription == nullptr) return;
    channels_.reset(copyChannels(CFSTR("Energy Model"), nullptr, 0, 0, 0));
    if (!channels_) return;
    CFMutableDictionaryRef subscribed = nullptr;
    subscription_.reset(createSubscription(nullptr, channels_.get(), &subscribed, 0, nullptr));
    if (subscribed != nullptr) CFRelease(subscribed);
  }

  void appendCounter(CFDictionaryRef channel, std::vector<EnergyCounter>& counters) const {
    const std::int64_t raw = simpleGetInteger_(channel, nullptr);
    if (raw == kInvalidValue) return;
    const std::optional<std::string> unit =
        unitLabel_ == nullptr ? std::nullopt : stringFromCF(unitLabel_(channel));
    const std::optional<std::int64_t> nanojoules = toNanojoules(raw, unit.value_or(""));
    if (!nanojoules) return;
    counters.push_back(EnergyCounter{.channel = stringFromCF(channelName_(channel)).value_or(""),
                                     .value = *nanojoules,
                                     .wrapsAt = 0});
  }

  mutable bool subscribed_ = false;
  mutable void* library_ = nullptr;
  mutable CreateSamplesFn createSamples_ = nullptr;
  mutable IterateFn iterate_ = nullptr;
  mutable SimpleGetIntegerFn simpleGetInteger_ = nullptr;
  mutable ChannelGetStringFn channelName_ = nullptr;
  mutable ChannelGetStringFn unitLabel_ = nullptr;
  mutable CFOwned<CFMutableDictionaryRef> channels_;
  mutable CFOwned<CFTypeRef> subscription_;
};

}  // namespace

std::unique_ptr<EnergyCounterPort> makeMacEnergyCounterPort() {
  return std::make_unique<MacEnergyCounterPort>();
}

}  // namespace brimly
