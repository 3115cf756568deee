#pragma once

#include <memory>

#include "platform/CpuTicksPort.h"
#include "platform/linux/FileSystemView.h"

namespace brimly {

// Processor ticks from the aggregate line of proc/stat, read once per call (see
// cpuTicksFromProcStat for how the kernel's columns fold into the four counters).
class LinuxCpuTicksPort : public CpuTicksPort {
 public:
  explicit LinuxCpuTicksPort(std::shared_ptr<const FileSystemView> files);
  std::optional<CpuTicks> readCpuTicks() override;

 private:
  std::shared_ptr<const FileSystemView> files_;
};

}  // namespace brimly
