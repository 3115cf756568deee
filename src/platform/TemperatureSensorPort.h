#pragma once

#include <optional>
#include <string>
#include <vector>

namespace brimly {

// One temperature sensor as the system lists it: its product name, when it has one, and its
// reading in degrees Celsius. Nothing is filtered at this level.
struct RawTemperatureSensor {
  std::optional<std::string> product;
  double celsius = 0.0;

  bool operator==(const RawTemperatureSensor&) const = default;
};

// Which naming convention the sensors follow, so that the reader applies the matching rule for
// "this sensor measures the processor".
enum class SensorNaming { appleSilicon, linuxHwmon };

class TemperatureSensorPort {
 public:
  virtual ~TemperatureSensorPort() = default;
  // Every sensor that produced a reading, in the system's order; empty when none can be read.
  virtual std::vector<RawTemperatureSensor> readTemperatureSensors() = 0;
  virtual SensorNaming naming() const = 0;
};

}  // namespace brimly
