#include "platform/linux/GpuDevices.h"

#include "platform/linux/SysfsText.h"
#include "platform/linux/Uevent.h"

namespace brimly {
namespace {

std::string readString(const FileSystemView& files, const std::string& path) {
  const FileRead read = files.read(path);
  return read.ok() ? sysfsString(read.text) : std::string();
}

bool isCardName(std::string_view name) {
  if (name.size() <= 4 || name.substr(0, 4) != "card") return false;
  for (char c : name.substr(4)) {
    if (c < '0' || c > '9') return false;
  }
  return true;
}

// The driver bound to a device: the DRIVER line of its uevent, else the name its driver link
// points to.
std::string driverOf(const FileSystemView& files, const std::string& devicePath) {
  const FileRead uevent = files.read(joinPath(devicePath, "uevent"));
  if (uevent.ok()) {
    for (const auto& [key, value] : parseUeventLines(uevent.text)) {
      if (key == "DRIVER") return value;
    }
  }
  const std::string target = files.linkTarget(joinPath(devicePath, "driver"));
  const std::size_t slash = target.rfind('/');
  return slash == std::string::npos ? target : target.substr(slash + 1);
}

}  // namespace

std::string readRuntimeStatus(const FileSystemView& files, const std::string& devicePath) {
  return readString(files, joinPath(devicePath, "power/runtime_status"));
}

std::string readRuntimeControl(const FileSystemView& files, const std::string& devicePath) {
  return readString(files, joinPath(devicePath, "power/control"));
}

bool isAsleep(std::string_view runtimeStatus) {
  return runtimeStatus == "suspended" || runtimeStatus == "suspending";
}

std::vector<DrmCard> scanDrmCards(const FileSystemView& files) {
  constexpr const char* kDirectory = "sys/class/drm";
  std::vector<DrmCard> cards;
  for (const std::string& name : files.list(kDirectory)) {
    if (!isCardName(name)) continue;
    DrmCard card;
    card.name = name;
    card.devicePath = joinPath(joinPath(kDirectory, name), "device");
    card.driver = driverOf(files, card.devicePath);
    card.vendor = readString(files, joinPath(card.devicePath, "vendor"));
    card.runtimeStatus = readRuntimeStatus(files, card.devicePath);
    card.hasBusyPercent = files.exists(joinPath(card.devicePath, "gpu_busy_percent"));
    cards.push_back(std::move(card));
  }
  return cards;
}

std::vector<NvidiaPciDevice> scanNvidiaPciDevices(const FileSystemView& files) {
  constexpr const char* kDirectory = "sys/bus/pci/devices";
  std::vector<NvidiaPciDevice> devices;
  for (const std::string& slot : files.list(kDirectory)) {
    const std::string path = joinPath(kDirectory, slot);
    if (readString(files, joinPath(path, "vendor")) != kNvidiaVendor) continue;
    if (readString(files, joinPath(path, "class")).rfind("0x03", 0) != 0) continue;
    NvidiaPciDevice device;
    device.slot = slot;
    device.path = path;
    device.runtimeStatus = readRuntimeStatus(files, path);
    device.runtimeControl = readRuntimeControl(files, path);
    devices.push_back(std::move(device));
  }
  return devices;
}

}  // namespace brimly
