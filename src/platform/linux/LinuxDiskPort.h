#pragma once

#include <memory>
#include <string>

#include "platform/DiskPort.h"
#include "platform/linux/FileSystemStats.h"

namespace brimly {

// The capacities of the file system holding the root directory, from statvfs.
class LinuxDiskPort : public DiskPort {
 public:
  LinuxDiskPort(std::shared_ptr<const FileSystemStatsSource> source, std::string path = "/");
  std::optional<DiskCapacities> readDiskCapacities() override;

 private:
  std::shared_ptr<const FileSystemStatsSource> source_;
  std::string path_;
};

}  // namespace brimly
