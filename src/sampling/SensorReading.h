#pragma once

#include <string>

namespace brimly {

// One temperature sensor's reading: its name as listed and its value in degrees Celsius.
struct SensorReading {
  std::string name;
  double value = 0.0;

  bool operator==(const SensorReading&) const = default;
};

}  // namespace brimly
