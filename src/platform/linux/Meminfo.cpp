#include "platform/linux/Meminfo.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace brimly {
namespace {

constexpr std::uint64_t kKibibyte = 1024;
constexpr std::uint64_t kLargestKibibytes = std::numeric_limits<std::uint64_t>::max() / kKibibyte;

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\r';
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && isBlank(text.front()))
    text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back()))
    text.remove_suffix(1);
  return text;
}

// The line's value when it reads "Name:   1234 kB"; `colon` is where its first colon is.
std::optional<std::uint64_t> valueOf(std::string_view line, std::size_t colon) {
  const std::string_view name = line.substr(0, colon);
  const auto spaceOrTab = [](char c) { return c == ' ' || c == '\t'; };
  if (name.empty() || std::any_of(name.begin(), name.end(), spaceOrTab)) return std::nullopt;
  std::string_view rest = trimmed(line.substr(colon + 1));
  std::uint64_t value = 0;
  const auto [ptr, error] = std::from_chars(rest.data(), rest.data() + rest.size(), value);
  if (error != std::errc{} || ptr == rest.data()) return std::nullopt;
  const std::string_view unit = trimmed(rest.substr(static_cast<std::size_t>(ptr - rest.data())));
  if (!unit.empty() && unit != "kB") return std::nullopt;
  return value;
}

// A KiB figure that can be expressed in bytes, or nothing.
std::optional<std::uint64_t> usableKibibytes(const Meminfo& meminfo, std::string_view name) {
  const std::optional<std::uint64_t> value = meminfo.find(name);
  if (!value || *value > kLargestKibibytes) return std::nullopt;
  return value;
}

}  // namespace

std::optional<std::uint64_t> Meminfo::find(std::string_view name) const {
  for (auto entry = fields.rbegin(); entry != fields.rend(); ++entry) {
    if (entry->first == name) return entry->second;
  }
  return std::nullopt;
}

Meminfo parseMeminfo(std::string_view text, std::span<const std::string_view> only) {
  Meminfo meminfo;
  meminfo.fields.reserve(only.empty() ? 64 : only.size());
  while (!text.empty() && (only.empty() || meminfo.fields.size() < only.size())) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    const std::size_t colon = line.find(':');
    const std::string_view name = line.substr(0, colon);
    const bool wanted = only.empty() || std::find(only.begin(), only.end(), name) != only.end();
    const std::optional<std::uint64_t> value =
        colon != std::string_view::npos && wanted ? valueOf(line, colon) : std::nullopt;
    if (value) {
      auto existing = std::find_if(meminfo.fields.begin(), meminfo.fields.end(),
                                   [&](const auto& entry) { return entry.first == name; });
      if (existing != meminfo.fields.end()) {
        existing->second = *value;
      } else {
        meminfo.fields.emplace_back(std::string(name), *value);
      }
    }
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return meminfo;
}

MemoryReading memoryReadingFromMeminfo(const Meminfo& meminfo) {
  MemoryReading reading;
  reading.pageSize = kKibibyte;

  const std::optional<std::uint64_t> total = usableKibibytes(meminfo, "MemTotal");
  const std::optional<std::uint64_t> available = usableKibibytes(meminfo, "MemAvailable");
  const std::optional<std::uint64_t> free = usableKibibytes(meminfo, "MemFree");
  if (total && *total > 0) {
    reading.physicalBytes = *total * kKibibyte;
    std::optional<std::uint64_t> unused;
    if (available && *available > 0 && *available <= *total) {
      unused = available;
    } else if (free && *free <= *total) {
      unused = free;
    }
    if (unused) {
      VmStatistics vm;
      vm.activePages = *total - *unused;
      vm.freePages = std::min(free.value_or(0), *unused);
      vm.inactivePages = *total - vm.activePages - vm.freePages;
      reading.vm = vm;
    }
  }

  const std::optional<std::uint64_t> swapTotal = usableKibibytes(meminfo, "SwapTotal");
  const std::optional<std::uint64_t> swapFree = usableKibibytes(meminfo, "SwapFree");
  if (swapTotal && swapFree) {
    SwapUsage swap;
    swap.totalBytes = *swapTotal * kKibibyte;
    swap.usedBytes = *swapFree >= *swapTotal ? 0 : (*swapTotal - *swapFree) * kKibibyte;
    reading.swap = swap;
  }
  return reading;
}

}  // namespace brimly
