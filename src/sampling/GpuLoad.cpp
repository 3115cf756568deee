#include "sampling/GpuLoad.h"

#include <algorithm>
#include <cmath>

namespace brimly {

std::optional<double> GpuLoad::fromStatistics(const PropertyDict& statistics) {
  for (const std::string_view key : statisticsKeys) {
    std::optional<double> percent;
    if (const auto integer = statistics.integer(key)) {
      percent = static_cast<double>(*integer);
    } else if (const auto real = statistics.real(key); real && std::isfinite(*real)) {
      percent = *real;
    }
    if (percent) return std::clamp(*percent / 100.0, 0.0, 1.0);
  }
  return std::nullopt;
}

std::optional<double> GpuLoad::fromServices(
    const std::optional<std::vector<std::optional<PropertyDict>>>& services) {
  if (!services) return std::nullopt;
  for (const auto& properties : *services) {
    if (!properties) continue;
    const PropertyDict* statistics = properties->dict(statisticsDictionaryKey);
    if (statistics == nullptr) continue;
    if (const auto load = fromStatistics(*statistics)) return load;
  }
  return std::nullopt;
}

bool GpuLoad::hasSource(const std::optional<std::vector<std::optional<PropertyDict>>>& services) {
  if (fromServices(services)) return true;
  if (!services) return false;
  return std::any_of(services->begin(), services->end(), [](const auto& properties) {
    const std::string* status = properties ? properties->string("Runtime Status") : nullptr;
    return status != nullptr && (*status == "suspended" || *status == "suspending");
  });
}

}  // namespace brimly
