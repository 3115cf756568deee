#pragma once

#include <memory>

#include "platform/TemperatureSensorPort.h"
#include "platform/linux/FileSystemView.h"

namespace brimly {

// Temperatures of every hwmon input, then every thermal zone, named as hwmonSensorName and
// thermalZoneSensorName describe. Chips and zones are listed afresh on each reading (they come
// and go with devices); the inputs of a sleeping device and the sensors whose every read costs a
// device command are not read. Inputs whose read fails (ENODATA, ENXIO, …) are left out.
class LinuxTemperatureSensorPort : public TemperatureSensorPort {
 public:
  explicit LinuxTemperatureSensorPort(std::shared_ptr<const FileSystemView> files);
  std::vector<RawTemperatureSensor> readTemperatureSensors() override;
  SensorNaming naming() const override { return SensorNaming::linuxHwmon; }

 private:
  std::shared_ptr<const FileSystemView> files_;
};

}  // namespace brimly
