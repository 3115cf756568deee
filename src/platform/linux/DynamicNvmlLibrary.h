#pragma once

#include <memory>
#include <string>

#include "platform/linux/NvmlLibrary.h"

namespace brimly {

// NVML through dlopen("libnvidia-ml.so.1"): no link-time dependency on the driver.
class DynamicNvmlLibrary : public NvmlLibrary {
 public:
  static constexpr const char* kLibraryName = "libnvidia-ml.so.1";

  explicit DynamicNvmlLibrary(std::string libraryName = kLibraryName);
  ~DynamicNvmlLibrary() override;
  DynamicNvmlLibrary(const DynamicNvmlLibrary&) = delete;
  DynamicNvmlLibrary& operator=(const DynamicNvmlLibrary&) = delete;

  bool open() override;
  void close() override;
  bool isOpen() const override { return initialised_; }
  std::optional<unsigned> deviceCount() override;
  NvmlDeviceReading readDevice(unsigned index) override;
  std::string lastError() const override { return lastError_; }

 private:
  struct Functions;
  bool load();

  std::string libraryName_;
  void* handle_ = nullptr;
  std::unique_ptr<Functions> functions_;
  bool initialised_ = false;
  std::string lastError_;
};

}  // namespace brimly
