#pragma once

#include <optional>
#include <string>

namespace brimly {

// What NVML tells about one device.
struct NvmlDeviceReading {
  unsigned index = 0;
  bool reachable = false;  // a handle was obtained (devices may refuse: no permission, lost)
  std::optional<std::string> name;
  std::optional<unsigned> gpuPercent;     // share of time a kernel ran, 0–100
  std::optional<unsigned> memoryPercent;  // share of time memory was read or written, 0–100

  bool operator==(const NvmlDeviceReading&) const = default;
};

// The NVIDIA management library, reached at run time so that machines without the proprietary
// driver lack only this reading. Tests fake it.
class NvmlLibrary {
 public:
  virtual ~NvmlLibrary() = default;
  // Loads the library when needed and initialises it; false when either fails. Initialising is
  // the expensive step (it may take the driver seconds), so a caller keeps it open between
  // readings unless it must let the GPU sleep.
  virtual bool open() = 0;
  // Shuts the library down, releasing its hold on the devices; nothing when it is not open.
  virtual void close() = 0;
  virtual bool isOpen() const = 0;
  // The number of devices; nothing when not open or when the call fails.
  virtual std::optional<unsigned> deviceCount() = 0;
  virtual NvmlDeviceReading readDevice(unsigned index) = 0;
  // Why the last open failed, in words, for the diagnostic report; empty after a success.
  virtual std::string lastError() const = 0;
};

}  // namespace brimly
