#include "audit/ReportWording.h"

namespace brimly {

namespace {

ReportWording macOSWording() {
  ReportWording w;
  w.memoryTitle = "→ Memory";
  w.diskTitle = "→ Disk";
  w.batteryTitle = "→ Battery (IOPS + AppleSmartBattery)";
  w.gpuTitle = "→ GPU";
  w.temperaturesTitle = "→ Temperatures";
  w.energyTitle = "→ SoC Power";

  w.memoryHeader = "MEMORY (host_statistics64 / HOST_VM_INFO64)";
  w.memoryFailed = "❌ failed";
  w.memoryUsedLabel = "► Brimly 'used' = active+wired+compressed = ";

  w.diskHeader = "DISK (URLResourceValues / volumeAvailableCapacityForImportantUsage)";
  w.diskTotalLabel = "Total:                  ";
  w.diskAvailableLabel = "Available (important):  ";
  w.diskUsedLabel = "Used:                   ";
  w.diskHeldBackLabel = "Held back:              ";
  w.diskCompare = "Compare: df -h /";

  w.batteryHeader = "BATTERY / POWER SOURCE (IOPS)";
  w.batteryNoSources = "❌ no sources";
  w.batteryRegistryHeader = "AppleSmartBattery IORegistry — real voltage source";

  w.gpuHeader = "GPU (IOAccelerator PerformanceStatistics)";
  w.gpuNotFound = "❌ IOAccelerator not found";

  w.temperatureHeader =
      "TEMPERATURE SENSORS (via Brimly's SensorReader — same code path as the live panel)";
  w.temperatureLiveLabel = "► Brimly's live reading (max of CPU-cluster sensors): ";

  w.energyHeader = "SoC POWER (IOReport 'Energy Model' channels)";
  w.energyTotalLabel = "► SoC total (CPU+GPU+ANE+DRAM Energy channels): ";
  w.energyCompare = "Compare: sudo powermetrics --samplers cpu_power,gpu_power -i 500 -n 1";
  w.energyUnavailable = "❌ IOReport returned nil (channels unavailable or unsigned binary)";

  w.compareAgainst = {
      "  sudo powermetrics --samplers smc,cpu_power,gpu_power -i 1000 -n 1",
      "  ioreg -rc IOAccelerator | grep -A 30 PerformanceStatistics",
      "  vm_stat ; df -h /",
  };

  w.liveSystemPowerLabel = "SoC power (IOReport): ";
  w.liveSystemPowerMissing = "SoC power (IOReport):  nil — IOReport unavailable here";
  w.liveGpuMissing = "nil (IOAccelerator unreadable)";
  return w;
}

ReportWording linuxWording() {
  ReportWording w;
  w.memoryTitle = "→ Memory";
  w.diskTitle = "→ Disk";
  w.batteryTitle = "→ Battery (/sys/class/power_supply)";
  w.gpuTitle = "→ GPU";
  w.temperaturesTitle = "→ Temperatures";
  w.energyTitle = "→ Package Power (powercap RAPL)";

  w.memoryHeader = "MEMORY (/proc/meminfo)";
  w.memoryFailed = "❌ /proc/meminfo could not be read";
  w.memoryUsedLabel = "► Brimly 'used' = MemTotal − MemAvailable = ";
  w.memoryCompare = "Compare: free -b";

  w.diskHeader = "DISK (statvfs(\"/\"))";
  w.diskTotalLabel = "Total:                  ";
  w.diskAvailableLabel = "Available (f_bavail):   ";
  w.diskUsedLabel = "Used (f_blocks−f_bfree):";
  w.diskHeldBackLabel = "Held back for root:     ";
  w.diskCompare = "Compare: df -B1 /";

  w.batteryHeader = "BATTERY / POWER SOURCE (/sys/class/power_supply)";
  w.batteryNoSources = "❌ no power supplies under /sys/class/power_supply";
  w.batteryRegistryHeader =
      "First battery's own attributes (/sys/class/power_supply/<battery>) — real voltage source";
  w.batteryCompare = "Compare: cat /sys/class/power_supply/*/uevent ; upower -d";

  w.gpuHeader = "GPU (amdgpu gpu_busy_percent / NVML utilisation)";
  w.gpuNotFound = "❌ no GPU busy figure (no amdgpu gpu_busy_percent, no NVML device)";
  w.gpuCompare =
      "Compare: cat /sys/class/drm/card*/device/gpu_busy_percent ; nvidia-smi -q -d UTILIZATION";

  w.temperatureHeader =
      "TEMPERATURE SENSORS (hwmon + thermal zones via Brimly's SensorReader — same code path as "
      "the live panel)";
  w.temperatureNoSensors = "❌ no readable sensors under /sys/class/hwmon or /sys/class/thermal";
  w.temperatureLiveLabel = "► Brimly's live reading (max of CPU sensors): ";
  w.temperatureCompare = "Compare: sensors ; cat /sys/class/thermal/thermal_zone*/{type,temp}";

  w.energyHeader = "PACKAGE POWER (powercap RAPL energy counters)";
  w.energyTotalLabel = "► Package total (RAPL package zones): ";
  w.energyCompare = "Compare: sudo turbostat --quiet --show PkgWatt --interval 1";
  w.energyUnavailable = "❌ RAPL energy counters gave no reading";

  w.compareAgainst = {
      "  sudo turbostat --quiet --show PkgWatt --interval 1 ; sensors",
      "  cat /sys/class/power_supply/*/uevent ; cat /sys/class/drm/card*/device/gpu_busy_percent",
      "  vmstat 1 2 ; cat /proc/stat ; free -b ; df -B1 /",
  };

  w.liveSystemPowerLabel = "Package power (RAPL): ";
  w.liveSystemPowerMissing = "Package power (RAPL):  nil — RAPL unavailable here";
  w.liveGpuMissing = "nil (no GPU busy figure)";
  return w;
}

}  // namespace

const ReportWording& reportWording(ReportFlavour flavour) {
  static const ReportWording macOS = macOSWording();
  static const ReportWording gnuLinux = linuxWording();
  return flavour == ReportFlavour::macOS ? macOS : gnuLinux;
}

}  // namespace brimly
