#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/FileSystemView.h"

namespace brimly {

// A DRM card (sys/class/drm/cardN; connector entries such as card0-eDP-1 are not cards).
struct DrmCard {
  std::string name;           // "card1"
  std::string devicePath;     // "sys/class/drm/card1/device"
  std::string driver;         // "amdgpu", "i915", …; empty when unknown
  std::string vendor;         // PCI vendor id as printed, "0x1002"; empty when unknown
  std::string runtimeStatus;  // "active", "suspended", …; empty when the device has no runtime PM
  bool hasBusyPercent = false;  // the amdgpu gpu_busy_percent attribute exists
};

// A display controller of NVIDIA's on the PCI bus (vendor 0x10de, class 0x03xxxx).
struct NvidiaPciDevice {
  std::string slot;  // "0000:01:00.0"
  std::string path;  // "sys/bus/pci/devices/0000:01:00.0"
  std::string runtimeStatus;
  std::string runtimeControl;  // "auto" when the device may suspend itself, "on" when it may not
};

inline constexpr std::string_view kNvidiaVendor = "0x10de";

// Whether a runtime-PM status says the device is (going) asleep: reading its attributes or
// asking its driver would wake it.
bool isAsleep(std::string_view runtimeStatus);

// A device's runtime-PM status and control (power/runtime_status, power/control); empty when it
// has no runtime PM.
std::string readRuntimeStatus(const FileSystemView& files, const std::string& devicePath);
std::string readRuntimeControl(const FileSystemView& files, const std::string& devicePath);

// Every DRM card in natural order. Only names, links and small status files are read; nothing
// that would wake a sleeping device.
std::vector<DrmCard> scanDrmCards(const FileSystemView& files);

// Every NVIDIA display controller in natural order of PCI slot.
std::vector<NvidiaPciDevice> scanNvidiaPciDevices(const FileSystemView& files);

}  // namespace brimly
