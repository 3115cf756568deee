#pragma once

#include <memory>
#include <vector>

#include "platform/AcceleratorPort.h"
#include "platform/linux/FileSystemView.h"
#include "platform/linux/GpuDevices.h"
#include "platform/linux/NvmlLibrary.h"

namespace brimly {

// GPU load as accelerator services: one per AMD card (its gpu_busy_percent) in natural card
// order, then one per NVIDIA device (NVML utilisation) in NVML's order. Each service carries
// "IOClass" (the driver), where it came from, and, when a figure was read,
// "PerformanceStatistics" with "Device Utilization %" (and "Memory Utilization %" from NVML).
//
// A sleeping GPU is never woken: a card whose runtime status is suspended is listed without
// statistics and its busy file is not read; NVML is not initialised while any NVIDIA display
// controller sleeps (initialising would wake it), and on devices that may suspend themselves
// (runtime control "auto") it is shut down again after each reading, since an initialised
// library keeps the GPU awake. A library that fails to open is not tried again by this reader.
// Intel and virtual GPUs offer no load figure and are not listed.
//
// GPUs come and go only when one is plugged in or out, and finding them means listing the DRM
// cards and the PCI bus and reading several files of every device. So they are looked for on the
// first reading and then on every `readingsPerScan`-th; the readings in between read only what
// changes: each known GPU's runtime status and its load.
class LinuxAcceleratorPort : public AcceleratorPort {
 public:
  static constexpr int readingsPerScan = 60;

  LinuxAcceleratorPort(std::shared_ptr<const FileSystemView> files,
                       std::unique_ptr<NvmlLibrary> nvml);
  ~LinuxAcceleratorPort() override;

  // An empty list on a machine with no readable GPU.
  std::optional<std::vector<std::optional<PropertyDict>>> readAcceleratorServices() override;

 private:
  void updateDevices();
  void appendNvidiaServices(std::vector<std::optional<PropertyDict>>& services);

  std::shared_ptr<const FileSystemView> files_;
  std::unique_ptr<NvmlLibrary> nvml_;
  bool nvmlFailed_ = false;
  std::vector<DrmCard> cards_;
  std::vector<NvidiaPciDevice> nvidiaDevices_;
  int readingsSinceScan_ = 0;
};

}  // namespace brimly
