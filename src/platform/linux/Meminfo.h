#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/MemoryPort.h"

namespace brimly {

// The fields of /proc/meminfo in file order, each with its number as printed (KiB for the fields
// marked "kB", a plain count for the HugePages_ ones).
struct Meminfo {
  std::vector<std::pair<std::string, std::uint64_t>> fields;

  // The field's number; nothing when the field is missing.
  std::optional<std::uint64_t> find(std::string_view name) const;
};

// The fields `memoryReadingFromMeminfo` uses.
inline constexpr std::array<std::string_view, 5> kMemoryReadingFields{
    "MemTotal", "MemFree", "MemAvailable", "SwapTotal", "SwapFree"};

// Reads "Name:   1234 kB" lines. Lines that do not have this shape (garbage, a number too large
// for 64 bits, a unit other than kB) are skipped; a repeated name keeps its last value. With
// `only`, the fields of other names are passed over without being read, and reading stops once
// each of those names has a value (the kernel writes each name once): the sampler wants five
// fields of some fifty every second, and finds them in the first twenty lines.
Meminfo parseMeminfo(std::string_view text, std::span<const std::string_view> only = {});

// The memory reading as `free` (procps-ng 4) counts it:
//   used = MemTotal − MemAvailable, falling back to MemFree when MemAvailable is missing, zero
//          or larger than MemTotal (a container artefact);
//   swap used = SwapTotal − SwapFree (0 when SwapFree is the larger).
// /proc/meminfo counts in KiB, so the reading's page is one KiB and its page counts are KiB:
// active = used, wired = compressed = 0, free = MemFree, inactive = the rest of MemTotal (memory
// that is neither used nor free: reclaimable cache). Without MemTotal (or with a figure too
// large to express in bytes) the statistics are missing; without both swap fields the swap is.
MemoryReading memoryReadingFromMeminfo(const Meminfo& meminfo);

}  // namespace brimly
