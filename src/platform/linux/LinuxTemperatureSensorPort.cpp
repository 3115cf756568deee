#include "platform/linux/LinuxTemperatureSensorPort.h"

#include <cerrno>
#include <utility>

namespace brimly {

LinuxTemperatureSensorPort::LinuxTemperatureSensorPort(std::shared_ptr<const FileSystemView> files,
                                                       const MonotonicClock& clock)
    : files_(std::move(files)), listing_(clock) {}

std::vector<RawTemperatureSensor> LinuxTemperatureSensorPort::readTemperatureSensors() {
  if (listing_.due()) {
    chips_ = scanHwmonChips(*files_);
    zones_ = scanThermalZones(*files_);
  } else {
    for (HwmonChip& chip : chips_)
      refreshHwmonChip(*files_, chip);
  }
  std::vector<RawTemperatureSensor> sensors;
  for (const HwmonChip& chip : chips_) {
    if (chip.skip != HwmonSkip::none) continue;
    for (const HwmonTemperatureInput& input : chip.inputs) {
      if (const std::optional<double> celsius = readCelsius(input.inputPath)) {
        sensors.push_back({hwmonSensorName(chip, input), *celsius});
      }
    }
  }
  for (const ThermalZone& zone : zones_) {
    if (zone.costlyRead) continue;
    if (const std::optional<double> celsius = readCelsius(joinPath(zone.path, "temp"))) {
      sensors.push_back({thermalZoneSensorName(zone), *celsius});
    }
  }
  return sensors;
}

std::optional<double> LinuxTemperatureSensorPort::readCelsius(const std::string& path) {
  const FileRead read = files_->read(path);
  if (read.error == ENOENT) listing_.entryGone();
  if (!read.ok()) return std::nullopt;
  return celsiusFromMillidegrees(read.text);
}

}  // namespace brimly
