#include "settingswindow/MetricListRules.h"

#include <algorithm>

namespace brimly::MetricListRules {

namespace {

double clampedToUnit(double value) {
  return std::clamp(value, 0.0, 1.0);
}

}  // namespace

std::vector<MetricKind> hiddenKinds(const std::vector<MetricKind>& order) {
  std::vector<MetricKind> hidden;
  for (const MetricKind kind : MetricKind::allCases()) {
    if (std::find(order.begin(), order.end(), kind) == order.end()) hidden.push_back(kind);
  }
  return hidden;
}

double previewFill(MetricKind kind, const MetricSample& sample) {
  switch (kind) {
    case MetricKind::cpu:
      return std::min(sample.cpu, 1.0);
    case MetricKind::gpu:
      return sample.gpu ? clampedToUnit(*sample.gpu) : 0.0;
    case MetricKind::ram:
      return std::min(sample.memory, 1.0);
    case MetricKind::disk:
      return std::min(sample.disk, 1.0);
    case MetricKind::temp:
      if (!sample.temperatureC) return 0.0;
      return clampedToUnit((*sample.temperatureC - emptyTemperatureC) /
                           (fullTemperatureC - emptyTemperatureC));
    case MetricKind::pwr:
      return sample.systemPowerWatts ? clampedToUnit(*sample.systemPowerWatts / fullPowerWatts)
                                     : 0.0;
  }
  return 0.0;
}

bool hasPreviewReading(MetricKind kind, const MetricSample& sample) {
  switch (kind) {
    case MetricKind::cpu:
    case MetricKind::ram:
    case MetricKind::disk:
      return true;
    case MetricKind::gpu:
      return sample.gpu.has_value();
    case MetricKind::temp:
      return sample.temperatureC.has_value();
    case MetricKind::pwr:
      return sample.systemPowerWatts.has_value();
  }
  return true;
}

bool canHide(const std::vector<MetricKind>& order) {
  return order.size() > 1;
}

bool isSwitchEnabled(bool shown, const std::vector<MetricKind>& order) {
  return !shown || canHide(order);
}

std::optional<RowMove> moveUp(std::size_t index, std::size_t count) {
  if (index == 0 || index >= count) return std::nullopt;
  return RowMove{{index}, static_cast<std::ptrdiff_t>(index) - 1};
}

std::optional<RowMove> moveDown(std::size_t index, std::size_t count) {
  if (index + 1 >= count) return std::nullopt;
  // The gap after the next row, counted in the list as it was.
  return RowMove{{index}, static_cast<std::ptrdiff_t>(index) + 2};
}

std::optional<RowMove> dragMove(std::size_t from, std::size_t destination, std::size_t count) {
  if (from >= count || destination > count) return std::nullopt;
  if (destination == from || destination == from + 1) return std::nullopt;
  return RowMove{{from}, static_cast<std::ptrdiff_t>(destination)};
}

}  // namespace brimly::MetricListRules
