#pragma once

#include <string>
#include <vector>

#include "audit/ReportFlavour.h"

namespace brimly {

// Every text of the report that names a source, a compare command or a failure. The macOS texts
// are the report's original wording; the Linux texts name the kernel files and calls that the
// Linux backend reads, in the same places.
struct ReportWording {
  // The overview's section titles ("→ …").
  std::string memoryTitle;
  std::string diskTitle;
  std::string batteryTitle;
  std::string gpuTitle;
  std::string temperaturesTitle;
  std::string energyTitle;

  // Memory.
  std::string memoryHeader;
  std::string memoryFailed;
  std::string memoryUsedLabel;  // "► Brimly 'used' = … = "
  std::string memoryCompare;    // empty: no compare line in this section

  // Disk.
  std::string diskHeader;
  std::string diskTotalLabel;  // padded to the width of the available label
  std::string diskAvailableLabel;
  // Where the volume reports its used space apart from what is available (Linux): the labels of
  // that figure and of the free space users cannot fill, padded like the total's.
  std::string diskUsedLabel;
  std::string diskHeldBackLabel;
  std::string diskCompare;

  // Battery.
  std::string batteryHeader;
  std::string batteryNoSources;
  std::string batteryRegistryHeader;
  std::string batteryCompare;  // empty: none

  // GPU.
  std::string gpuHeader;
  std::string gpuNotFound;
  std::string gpuCompare;  // empty: none

  // Temperatures.
  std::string temperatureHeader;
  std::string temperatureNoSensors;  // empty: a machine without sensors prints only the count
  std::string temperatureLiveLabel;  // "► … : " before the value
  std::string temperatureCompare;    // empty: none

  // Energy.
  std::string energyHeader;
  std::string energyTotalLabel;  // "► … : " before the watts
  std::string energyCompare;
  std::string energyUnavailable;  // used when the backend gives no more precise reason

  // Overview's compare block, one command line each (already indented).
  std::vector<std::string> compareAgainst;

  // Live section.
  std::string liveSystemPowerLabel;    // "SoC power (…): "
  std::string liveSystemPowerMissing;  // the whole row text when absent
  std::string liveGpuMissing;
};

const ReportWording& reportWording(ReportFlavour flavour);

}  // namespace brimly
