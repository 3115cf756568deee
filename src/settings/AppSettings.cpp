#include "settings/AppSettings.h"

#include <algorithm>
#include <utility>

#include "core/MetricOrderStore.h"

namespace brimly {

AppSettings::AppSettings(KeyValueStore& store, QObject* parent)
    : QObject(parent),
      defaults_(store),
      useFahrenheit_(store.readBool(useFahrenheitKey).value_or(false)),
      isPinned_(store.readBool(isPinnedKey).value_or(false)),
      metricOrder_(MetricOrderStore::decode(
          store.readStringList(metricOrderKey).value_or(std::vector<std::string>{}))) {}

void AppSettings::setUseFahrenheit(bool useFahrenheit) {
  useFahrenheit_ = useFahrenheit;
  emit useFahrenheitChanged(useFahrenheit_);
  defaults_.writeBool(useFahrenheitKey, useFahrenheit_);
}

void AppSettings::setPinned(bool pinned) {
  if (isPinned_ == pinned) return;
  isPinned_ = pinned;
  emit isPinnedChanged(isPinned_);
}

void AppSettings::setMetricOrder(std::vector<MetricKind> order) {
  metricOrder_ = std::move(order);
  emit metricOrderChanged();
  defaults_.writeStringList(metricOrderKey, MetricOrderStore::encode(metricOrder_));
}

void AppSettings::setMetric(MetricKind kind, bool enabled) {
  std::vector<MetricKind> order = metricOrder_;
  if (enabled) {
    if (std::find(order.begin(), order.end(), kind) != order.end()) return;
    order.push_back(kind);
  } else {
    // The panel always keeps at least one cell.
    if (order.size() < 2) return;
    order.erase(std::remove(order.begin(), order.end(), kind), order.end());
  }
  setMetricOrder(std::move(order));
}

void AppSettings::moveMetrics(const std::set<std::size_t>& offsets, std::ptrdiff_t destination) {
  setMetricOrder(MetricOrderStore::reordered(metricOrder_, offsets, destination));
}

}  // namespace brimly
