#pragma once

#include <memory>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/TemperatureSensorPort.h"
#include "sampling/SensorReading.h"

namespace brimly {

// Reads the machine's temperature sensors and reduces them to one processor temperature: the
// hottest plausible processor sensor, or, when no processor sensor reads, the hottest plausible
// sensor that is not excluded. A maximum, never an average: the display shows the hottest
// cluster. Nothing is cached between readings.
class SensorReader {
 public:
  // The name given to a sensor that has no product name.
  static constexpr std::string_view unnamedSensor = "<unnamed>";

  // A null port reads as a machine without sensors.
  explicit SensorReader(std::unique_ptr<TemperatureSensorPort> port);
  ~SensorReader();
  SensorReader(const SensorReader&) = delete;
  SensorReader& operator=(const SensorReader&) = delete;

  // Every sensor with a reading, in the system's order, unfiltered.
  std::vector<SensorReading> allTemperatures();
  // The hottest processor temperature now, or nothing.
  std::optional<double> currentCPUTemperature();
  SensorNaming naming() const;

  // The two-pass reduction over readings already taken.
  static std::optional<double> hottestProcessorTemperature(
      const std::vector<SensorReading>& readings, SensorNaming naming);

 private:
  std::unique_ptr<TemperatureSensorPort> port_;
};

}  // namespace brimly
