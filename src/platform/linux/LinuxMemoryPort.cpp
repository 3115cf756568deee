#include "platform/linux/LinuxMemoryPort.h"

#include <utility>

#include "platform/linux/Meminfo.h"

namespace brimly {

LinuxMemoryPort::LinuxMemoryPort(std::shared_ptr<const FileSystemView> files)
    : files_(std::move(files)) {}

MemoryReading LinuxMemoryPort::readMemory() {
  const FileRead meminfo = files_->read("proc/meminfo");
  if (!meminfo.ok()) return MemoryReading{};
  return memoryReadingFromMeminfo(parseMeminfo(meminfo.text, kMemoryReadingFields));
}

}  // namespace brimly
