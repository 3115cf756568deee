#pragma once

#include <array>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/PropertyValue.h"

namespace brimly {

// The GPU busy fraction from the accelerators' performance statistics.
class GpuLoad {
 public:
  // Statistics keys that carry a busy percentage (0 to 100), in the order they are tried.
  static constexpr std::array<std::string_view, 4> statisticsKeys = {
      "Device Utilization %", "GPU Activity(%)", "GPU Core Utilization", "GPU Busy"};
  static constexpr std::string_view statisticsDictionaryKey = "PerformanceStatistics";

  // The first key whose value is a number decides: an integer is taken as it is, anything else
  // as a float (a non-finite float counts as no number). The percentage becomes a fraction
  // clamped to 0…1. Nothing when no key holds a number.
  static std::optional<double> fromStatistics(const PropertyDict& statistics);

  // The first service, in enumeration order, whose "PerformanceStatistics" dictionary yields a
  // number. Nothing when the services cannot be listed, there are none, or none yields one: a
  // machine without an accelerator has no GPU load rather than an idle one.
  static std::optional<double> fromServices(
      const std::optional<std::vector<std::optional<PropertyDict>>>& services);

  // Whether the services hold a source of the GPU load at all: one that yields a number now, or
  // one asleep (its "Runtime Status" suspended or suspending), which reports once it wakes. A
  // machine whose accelerators give no figure (an integrated GPU without a busy counter, an NVIDIA
  // card without its driver's library) has none.
  static bool hasSource(const std::optional<std::vector<std::optional<PropertyDict>>>& services);
};

}  // namespace brimly
