#include "sampling/SensorReader.h"

#include <algorithm>

#include "sampling/SensorNameRules.h"

namespace brimly {

SensorReader::SensorReader(std::unique_ptr<TemperatureSensorPort> port) : port_(std::move(port)) {}

SensorReader::~SensorReader() = default;

SensorNaming SensorReader::naming() const {
  return port_ ? port_->naming() : SensorNaming::appleSilicon;
}

std::vector<SensorReading> SensorReader::allTemperatures() {
  std::vector<SensorReading> readings;
  if (!port_) return readings;
  for (const auto& sensor : port_->readTemperatureSensors()) {
    readings.push_back(SensorReading{sensor.product ? *sensor.product : std::string(unnamedSensor),
                                     sensor.celsius});
  }
  return readings;
}

std::optional<double> SensorReader::currentCPUTemperature() {
  if (!port_) return std::nullopt;
  return hottestProcessorTemperature(allTemperatures(), naming());
}

std::optional<double> SensorReader::hottestProcessorTemperature(
    const std::vector<SensorReading>& readings, SensorNaming naming) {
  const std::vector<SensorRole> roles = SensorNameRules::roles(readings, naming);
  const auto hottest = [&](auto counts) {
    std::optional<double> result;
    for (std::size_t i = 0; i < readings.size(); ++i) {
      if (!counts(roles[i]) || !SensorNameRules::isPlausible(readings[i].value)) continue;
      result = result ? std::max(*result, readings[i].value) : readings[i].value;
    }
    return result;
  };
  if (const auto processor =
          hottest([](SensorRole role) { return role == SensorRole::processor; })) {
    return processor;
  }
  return hottest([](SensorRole role) { return role != SensorRole::excluded; });
}

}  // namespace brimly
