#include "platform/linux/LinuxAcceleratorPort.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "platform/linux/SysfsText.h"

namespace brimly {
namespace {

PropertyDict utilization(std::int64_t devicePercent) {
  return PropertyDict{{"Device Utilization %", devicePercent}};
}

PropertyDict nvidiaServiceWithoutFigures(const NvidiaPciDevice& device) {
  return PropertyDict{
      {"IOClass", "nvidia"}, {"PCI Slot", device.slot}, {"Runtime Status", device.runtimeStatus}};
}

}  // namespace

LinuxAcceleratorPort::LinuxAcceleratorPort(std::shared_ptr<const FileSystemView> files,
                                           std::unique_ptr<NvmlLibrary> nvml)
    : files_(std::move(files)), nvml_(std::move(nvml)) {}

LinuxAcceleratorPort::~LinuxAcceleratorPort() {
  if (nvml_) nvml_->close();
}

std::optional<std::vector<std::optional<PropertyDict>>>
LinuxAcceleratorPort::readAcceleratorServices() {
  updateDevices();
  std::vector<std::optional<PropertyDict>> services;
  for (const DrmCard& card : cards_) {
    PropertyDict service{{"IOClass", card.driver.empty() ? std::string("amdgpu") : card.driver},
                         {"Card", card.name}};
    if (!card.vendor.empty()) service.set("Vendor", card.vendor);
    if (!card.runtimeStatus.empty()) service.set("Runtime Status", card.runtimeStatus);
    if (!isAsleep(card.runtimeStatus)) {
      const FileRead busy = files_->read(joinPath(card.devicePath, "gpu_busy_percent"));
      if (const auto percent = busy.ok() ? parseSysfsInteger(busy.text) : std::nullopt) {
        service.set("PerformanceStatistics", utilization(*percent));
      }
    }
    services.emplace_back(std::move(service));
  }
  appendNvidiaServices(services);
  return services;
}

void LinuxAcceleratorPort::updateDevices() {
  if (readingsSinceScan_ == 0) {
    // Only cards with a busy figure of their own are read; NVIDIA's are read through NVML.
    cards_ = scanDrmCards(*files_);
    std::erase_if(cards_, [](const DrmCard& card) {
      return card.vendor == kNvidiaVendor || !card.hasBusyPercent;
    });
    nvidiaDevices_ = scanNvidiaPciDevices(*files_);
  } else {
    for (DrmCard& card : cards_)
      card.runtimeStatus = readRuntimeStatus(*files_, card.devicePath);
    for (NvidiaPciDevice& device : nvidiaDevices_) {
      device.runtimeStatus = readRuntimeStatus(*files_, device.path);
      device.runtimeControl = readRuntimeControl(*files_, device.path);
    }
  }
  readingsSinceScan_ = (readingsSinceScan_ + 1) % readingsPerScan;
}

void LinuxAcceleratorPort::appendNvidiaServices(
    std::vector<std::optional<PropertyDict>>& services) {
  const std::vector<NvidiaPciDevice>& devices = nvidiaDevices_;
  if (devices.empty() || !nvml_) {
    if (nvml_) nvml_->close();
    return;
  }
  const bool anyAsleep = std::any_of(devices.begin(), devices.end(), [](const auto& device) {
    return isAsleep(device.runtimeStatus);
  });
  // A library that failed to open once (no proprietary driver, driver not loaded) is not tried
  // again: each attempt costs a library search or a driver call on every sample.
  if (anyAsleep || nvmlFailed_ || !nvml_->open()) {
    if (!anyAsleep && !nvml_->isOpen()) nvmlFailed_ = true;
    nvml_->close();
    for (const NvidiaPciDevice& device : devices) {
      services.emplace_back(nvidiaServiceWithoutFigures(device));
    }
    return;
  }
  const unsigned count = nvml_->deviceCount().value_or(0);
  for (unsigned index = 0; index < count; ++index) {
    const NvmlDeviceReading reading = nvml_->readDevice(index);
    if (!reading.reachable) continue;
    PropertyDict service{{"IOClass", "nvidia"}, {"NVML Index", static_cast<std::int64_t>(index)}};
    if (reading.name) service.set("Name", *reading.name);
    if (reading.gpuPercent) {
      PropertyDict statistics = utilization(*reading.gpuPercent);
      if (reading.memoryPercent) {
        statistics.set("Memory Utilization %", static_cast<std::int64_t>(*reading.memoryPercent));
      }
      service.set("PerformanceStatistics", std::move(statistics));
    }
    services.emplace_back(std::move(service));
  }
  const bool maySuspend = std::any_of(devices.begin(), devices.end(), [](const auto& device) {
    return device.runtimeControl == "auto";
  });
  if (maySuspend) nvml_->close();
}

}  // namespace brimly
