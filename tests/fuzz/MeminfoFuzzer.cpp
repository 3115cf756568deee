// Feeds arbitrary bytes to the /proc/meminfo parser and checks the reading's invariants: used,
// cached and free pages never exceed the total, and swap used never exceeds swap total.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/linux/Meminfo.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const brimly::Meminfo meminfo = brimly::parseMeminfo(text);
  for (const auto& [name, value] : meminfo.fields) {
    if (name.empty() || meminfo.find(name) != value) __builtin_trap();
  }
  const brimly::MemoryReading reading = brimly::memoryReadingFromMeminfo(meminfo);
  if (reading.vm) {
    const brimly::VmStatistics& vm = *reading.vm;
    if (vm.wiredPages != 0 || vm.compressedPages != 0) __builtin_trap();
    if (vm.activePages + vm.inactivePages + vm.freePages != reading.physicalBytes / 1024) {
      __builtin_trap();
    }
  }
  if (reading.swap && reading.swap->usedBytes > reading.swap->totalBytes) __builtin_trap();
  return 0;
}
