#pragma once

#include <cstdint>
#include <optional>

#include "sampling/PowerState.h"

namespace brimly {

// One snapshot of every reading. Fractions run from 0.0 to 1.0 (the display multiplies), byte
// counts are raw bytes, power is in watts and temperature in degrees Celsius. A reading the
// system could not supply keeps the default below.
struct MetricSample {
  double cpu = 0.0;                          // processor busy fraction, whole machine
  std::optional<double> gpu;                 // GPU busy fraction
  std::uint64_t memoryUsedBytes = 0;
  std::uint64_t memoryTotalBytes = 0;
  double memory = 0.0;                       // used / total
  std::uint64_t swapUsedBytes = 0;
  std::uint64_t swapTotalBytes = 0;
  std::int64_t diskUsedBytes = 0;            // start-up volume
  std::int64_t diskTotalBytes = 0;
  double disk = 0.0;                         // used / total
  double powerWatts = 0.0;                   // battery flow, negative while discharging
  PowerState powerState;                     // unknown
  std::optional<std::int64_t> batteryPercent;
  std::optional<double> temperatureC;        // hottest processor sensor
  std::optional<double> systemPowerWatts;    // SoC or package power

  bool operator==(const MetricSample&) const = default;
};

}  // namespace brimly
