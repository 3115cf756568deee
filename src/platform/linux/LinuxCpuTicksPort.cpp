#include "platform/linux/LinuxCpuTicksPort.h"

#include <utility>

#include "platform/linux/ProcStat.h"

namespace brimly {

LinuxCpuTicksPort::LinuxCpuTicksPort(std::shared_ptr<const FileSystemView> files)
    : files_(std::move(files)) {}

std::optional<CpuTicks> LinuxCpuTicksPort::readCpuTicks() {
  const FileRead stat = files_->read("proc/stat");
  if (!stat.ok()) return std::nullopt;
  const std::optional<ProcStatCpu> cpu = parseProcStatCpu(stat.text);
  if (!cpu) return std::nullopt;
  return cpuTicksFromProcStat(*cpu);
}

}  // namespace brimly
