#pragma once

#include <memory>
#include <vector>

#include "platform/TemperatureSensorPort.h"
#include "platform/linux/FileSystemView.h"
#include "platform/linux/ListingRefresh.h"
#include "platform/linux/TemperatureSources.h"

namespace brimly {

// Temperatures of every hwmon input, then every thermal zone, named as hwmonSensorName and
// thermalZoneSensorName describe. Chips and zones come and go with devices and drivers: they are
// listed as `ListingRefresh` says, and between two listings each reading reads only the inputs and
// whether a chip's device sleeps. The inputs of a sleeping device and the sensors whose every read
// costs a device command are not read. Inputs whose read fails (ENODATA, ENXIO, …) are left out.
class LinuxTemperatureSensorPort : public TemperatureSensorPort {
 public:
  // `clock` paces the listing and must outlive the port.
  LinuxTemperatureSensorPort(std::shared_ptr<const FileSystemView> files,
                             const MonotonicClock& clock);
  std::vector<RawTemperatureSensor> readTemperatureSensors() override;
  SensorNaming naming() const override { return SensorNaming::linuxHwmon; }

 private:
  // The file's temperature, when it reads as one; a file that has gone asks for a new listing.
  std::optional<double> readCelsius(const std::string& path);

  std::shared_ptr<const FileSystemView> files_;
  ListingRefresh listing_;
  std::vector<HwmonChip> chips_;
  std::vector<ThermalZone> zones_;
};

}  // namespace brimly
