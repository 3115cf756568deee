#include "platform/linux/LinuxCpuTicksPort.h"

#include <utility>

#include "platform/linux/ProcStat.h"

namespace brimly {
namespace {

// The newer value when it lies less than half the counter range ahead (modulo 2^32), else the
// older one.
std::uint32_t neverBackwards(std::uint32_t previous, std::uint32_t next) {
  return static_cast<std::uint32_t>(next - previous) < (1u << 31) ? next : previous;
}

}  // namespace

LinuxCpuTicksPort::LinuxCpuTicksPort(std::shared_ptr<const FileSystemView> files)
    : files_(std::move(files)) {}

std::optional<CpuTicks> LinuxCpuTicksPort::readCpuTicks() {
  const FileRead stat = files_->read("proc/stat");
  if (!stat.ok()) return std::nullopt;
  const std::optional<ProcStatCpu> cpu = parseProcStatCpu(stat.text);
  if (!cpu) return std::nullopt;
  CpuTicks ticks = cpuTicksFromProcStat(*cpu);
  if (previous_) {
    ticks.user = neverBackwards(previous_->user, ticks.user);
    ticks.system = neverBackwards(previous_->system, ticks.system);
    ticks.idle = neverBackwards(previous_->idle, ticks.idle);
    ticks.nice = neverBackwards(previous_->nice, ticks.nice);
  }
  previous_ = ticks;
  return ticks;
}

}  // namespace brimly
