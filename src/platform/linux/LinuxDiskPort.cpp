#include "platform/linux/LinuxDiskPort.h"

#include <utility>

namespace brimly {

LinuxDiskPort::LinuxDiskPort(std::shared_ptr<const FileSystemStatsSource> source, std::string path)
    : source_(std::move(source)), path_(std::move(path)) {}

std::optional<DiskCapacities> LinuxDiskPort::readDiskCapacities() {
  const std::optional<FileSystemStats> stats = source_->statistics(path_);
  if (!stats) return std::nullopt;
  return diskCapacitiesFromStats(*stats);
}

}  // namespace brimly
