#pragma once

#include <memory>

#include "platform/CpuTicksPort.h"
#include "platform/linux/FileSystemView.h"

namespace brimly {

// Processor ticks from the aggregate line of proc/stat, read once per call (see
// cpuTicksFromProcStat for how the kernel's columns fold into the four counters).
//
// Linux counters can step backwards: iowait (and so idle + iowait) on tickless kernels, and
// the sums when processors go offline. The wrapping subtraction of the load arithmetic would
// read such a step as a jump of nearly 2^32 ticks, so a counter that went back since this
// reader's previous reading keeps its previous value. A counter that wrapped past 2^32 (a small
// step forward modulo 2^32) passes unchanged.
class LinuxCpuTicksPort : public CpuTicksPort {
 public:
  explicit LinuxCpuTicksPort(std::shared_ptr<const FileSystemView> files);
  std::optional<CpuTicks> readCpuTicks() override;

 private:
  std::shared_ptr<const FileSystemView> files_;
  std::optional<CpuTicks> previous_;
};

}  // namespace brimly
