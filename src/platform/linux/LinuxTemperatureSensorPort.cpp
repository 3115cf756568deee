#include "platform/linux/LinuxTemperatureSensorPort.h"

#include <utility>

#include "platform/linux/TemperatureSources.h"

namespace brimly {

LinuxTemperatureSensorPort::LinuxTemperatureSensorPort(std::shared_ptr<const FileSystemView> files)
    : files_(std::move(files)) {}

std::vector<RawTemperatureSensor> LinuxTemperatureSensorPort::readTemperatureSensors() {
  std::vector<RawTemperatureSensor> sensors;
  for (const HwmonChip& chip : scanHwmonChips(*files_)) {
    if (chip.skip != HwmonSkip::none) continue;
    for (const HwmonTemperatureInput& input : chip.inputs) {
      const FileRead read = files_->read(input.inputPath);
      if (!read.ok()) continue;
      if (const std::optional<double> celsius = celsiusFromMillidegrees(read.text)) {
        sensors.push_back({hwmonSensorName(chip, input), *celsius});
      }
    }
  }
  for (const ThermalZone& zone : scanThermalZones(*files_)) {
    if (zone.costlyRead) continue;
    const FileRead read = files_->read(joinPath(zone.path, "temp"));
    if (!read.ok()) continue;
    if (const std::optional<double> celsius = celsiusFromMillidegrees(read.text)) {
      sensors.push_back({thermalZoneSensorName(zone), *celsius});
    }
  }
  return sensors;
}

}  // namespace brimly
