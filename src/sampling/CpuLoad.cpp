#include "sampling/CpuLoad.h"

#include <algorithm>

namespace brimly {

std::uint32_t CpuLoad::tickDelta(std::uint32_t previous, std::uint32_t current) {
  const std::uint32_t delta = current - previous;  // unsigned: wraps modulo 2^32
  return delta >= (std::uint32_t{1} << 31) ? 0 : delta;
}

double CpuLoad::busyFraction(const CpuTicks& previous, const CpuTicks& current) {
  const auto user = static_cast<double>(tickDelta(previous.user, current.user));
  const auto system = static_cast<double>(tickDelta(previous.system, current.system));
  const auto idle = static_cast<double>(tickDelta(previous.idle, current.idle));
  const auto nice = static_cast<double>(tickDelta(previous.nice, current.nice));
  const double busy = user + system + nice;
  const double total = user + system + idle + nice;
  if (!(total > 0)) return 0.0;
  return std::clamp(busy / total, 0.0, 1.0);
}

double CpuLoad::update(const std::optional<CpuTicks>& reading) {
  if (!reading) return 0.0;
  const double fraction = previousCPUTicks_ ? busyFraction(*previousCPUTicks_, *reading) : 0.0;
  previousCPUTicks_ = *reading;
  return fraction;
}

}  // namespace brimly
