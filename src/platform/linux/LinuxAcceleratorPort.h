#pragma once

#include <memory>

#include "platform/AcceleratorPort.h"
#include "platform/linux/FileSystemView.h"
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
class LinuxAcceleratorPort : public AcceleratorPort {
 public:
  LinuxAcceleratorPort(std::shared_ptr<const FileSystemView> files,
                       std::unique_ptr<NvmlLibrary> nvml);
  ~LinuxAcceleratorPort() override;

  // An empty list on a machine with no readable GPU.
  std::optional<std::vector<std::optional<PropertyDict>>> readAcceleratorServices() override;

 private:
  void appendNvidiaServices(std::vector<std::optional<PropertyDict>>& services);

  std::shared_ptr<const FileSystemView> files_;
  std::unique_ptr<NvmlLibrary> nvml_;
  bool nvmlFailed_ = false;
};

}  // namespace brimly
