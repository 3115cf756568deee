#pragma once

#include <memory>

#include "platform/MemoryPort.h"
#include "platform/linux/FileSystemView.h"

namespace brimly {

// Memory and swap from one read of proc/meminfo (see memoryReadingFromMeminfo for the figures).
class LinuxMemoryPort : public MemoryPort {
 public:
  explicit LinuxMemoryPort(std::shared_ptr<const FileSystemView> files);
  MemoryReading readMemory() override;

 private:
  std::shared_ptr<const FileSystemView> files_;
};

}  // namespace brimly
