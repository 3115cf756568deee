// Feeds arbitrary bytes to the /proc/stat parser and checks what it promises: an aggregate line
// has 4 to 10 columns, and the tick fold never disagrees with itself.
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/linux/ProcStat.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto cpu = brimly::parseProcStatCpu(text);
  if (!cpu) return 0;
  if (cpu->columns < 4 || cpu->columns > 10) __builtin_trap();
  const brimly::CpuTicks ticks = brimly::cpuTicksFromProcStat(*cpu);
  if (ticks.user != static_cast<std::uint32_t>(cpu->user)) __builtin_trap();
  if (ticks.idle != static_cast<std::uint32_t>(cpu->idle + cpu->iowait)) __builtin_trap();
  return 0;
}
