#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "platform/CpuTicksPort.h"

namespace brimly {

// The aggregate "cpu" line of /proc/stat: cumulative ticks summed over every processor. Kernels
// older than the field print fewer columns; those read as 0.
struct ProcStatCpu {
  std::uint64_t user = 0;  // includes guest time
  std::uint64_t nice = 0;  // includes niced guest time
  std::uint64_t system = 0;
  std::uint64_t idle = 0;
  std::uint64_t iowait = 0;
  std::uint64_t irq = 0;
  std::uint64_t softirq = 0;
  std::uint64_t steal = 0;
  std::uint64_t guest = 0;
  std::uint64_t guestNice = 0;
  int columns = 0;  // how many columns the line had (4 to 10)

  bool operator==(const ProcStatCpu&) const = default;
};

// Finds the aggregate line ("cpu" followed by blanks, not "cpu0") and reads its columns. Nothing
// when the line is missing, has fewer than four columns, or holds anything but unsigned numbers
// that fit in 64 bits.
std::optional<ProcStatCpu> parseProcStatCpu(std::string_view text);

// Folds the ten columns into the four tick counters the processor load is computed from, so that
// busy / total gives the fraction htop, btop and vmstat show:
//   user   = user             (guest time is already inside it)
//   nice   = nice             (niced guest time is already inside it)
//   system = system + irq + softirq + steal
//   idle   = idle + iowait
// guest and guest_nice are not added again. Each sum is cut to its low 32 bits, so the counters
// wrap like 32-bit tick counters and the wrapping subtraction of two readings gives the delta as
// long as less than 2^32 ticks pass between them.
CpuTicks cpuTicksFromProcStat(const ProcStatCpu& cpu);

}  // namespace brimly
