#include "sampling/MetricSources.h"

namespace brimly::MetricSources {

std::vector<MetricKind> withoutSource(const MetricSample& first, bool gpuSource,
                                      bool energyCounters) {
  const bool temperature = first.temperatureC.has_value();
  const bool power = first.powerState.kind() != PowerState::Kind::unknown ||
                     first.batteryPercent.has_value() || first.systemPowerWatts.has_value() ||
                     energyCounters;
  std::vector<MetricKind> missing;
  if (!gpuSource && !first.gpu) missing.push_back(MetricKind::gpu);
  if (!temperature) missing.push_back(MetricKind::temp);
  if (!power) missing.push_back(MetricKind::pwr);
  return missing;
}

}  // namespace brimly::MetricSources
