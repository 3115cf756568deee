#include "platform/linux/ProcStat.h"

#include <array>
#include <charconv>

namespace brimly {
namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\t';
}

std::optional<std::string_view> aggregateLine(std::string_view text) {
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    if (line.size() > 3 && line.substr(0, 3) == "cpu" && isBlank(line[3])) return line.substr(3);
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  return std::nullopt;
}

}  // namespace

std::optional<ProcStatCpu> parseProcStatCpu(std::string_view text) {
  const std::optional<std::string_view> found = aggregateLine(text);
  if (!found) return std::nullopt;
  std::string_view rest = *found;

  std::array<std::uint64_t, 10> columns{};
  int count = 0;
  while (true) {
    while (!rest.empty() && (isBlank(rest.front()) || rest.front() == '\r'))
      rest.remove_prefix(1);
    if (rest.empty()) break;
    if (count == static_cast<int>(columns.size())) break;  // later kernels may add columns
    std::uint64_t value = 0;
    const auto [ptr, error] = std::from_chars(rest.data(), rest.data() + rest.size(), value);
    if (error != std::errc{}) return std::nullopt;
    const std::size_t used = static_cast<std::size_t>(ptr - rest.data());
    if (used < rest.size() && !isBlank(rest[used]) && rest[used] != '\r') return std::nullopt;
    columns[static_cast<std::size_t>(count++)] = value;
    rest.remove_prefix(used);
  }
  if (count < 4) return std::nullopt;

  ProcStatCpu cpu;
  cpu.user = columns[0];
  cpu.nice = columns[1];
  cpu.system = columns[2];
  cpu.idle = columns[3];
  cpu.iowait = columns[4];
  cpu.irq = columns[5];
  cpu.softirq = columns[6];
  cpu.steal = columns[7];
  cpu.guest = columns[8];
  cpu.guestNice = columns[9];
  cpu.columns = count;
  return cpu;
}

CpuTicks cpuTicksFromProcStat(const ProcStatCpu& cpu) {
  // Unsigned arithmetic wraps by definition; cutting the 64-bit sum to 32 bits equals the sum of
  // the parts modulo 2^32.
  const auto low32 = [](std::uint64_t value) { return static_cast<std::uint32_t>(value); };
  CpuTicks ticks;
  ticks.user = low32(cpu.user);
  ticks.nice = low32(cpu.nice);
  ticks.system = low32(cpu.system + cpu.irq + cpu.softirq + cpu.steal);
  ticks.idle = low32(cpu.idle + cpu.iowait);
  return ticks;
}

}  // namespace brimly
