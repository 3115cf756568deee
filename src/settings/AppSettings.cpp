#include "settings/AppSettings.h"

#include <algorithm>
#include <utility>

#include "core/MetricOrderStore.h"

namespace brimly {

namespace {

bool storedBool(const KeyValueStore& store, const char* key) {
  return store.readBool(key).value_or(false);
}

std::vector<MetricKind> storedOrder(const KeyValueStore& store) {
  return MetricOrderStore::decode(
      store.readStringList(AppSettings::metricOrderKey).value_or(std::vector<std::string>{}));
}

}  // namespace

AppSettings::AppSettings(KeyValueStore& store, QObject* parent)
    : QObject(parent),
      defaults_(store),
      useFahrenheit_(storedBool(store, useFahrenheitKey)),
      isPinned_(storedBool(store, isPinnedKey)),
      metricOrder_(storedOrder(store)),
      orderStored_(store.readStringList(metricOrderKey).has_value()) {}

void AppSettings::setWriteFailureLog(std::function<void(const std::string& line)> log) {
  writeFailureLog_ = std::move(log);
}

bool AppSettings::written(const std::optional<std::string>& failure) const {
  if (!failure) return true;
  if (writeFailureLog_) writeFailureLog_(writeFailurePrefix + *failure);
  return false;
}

void AppSettings::setUseFahrenheit(bool useFahrenheit) {
  useFahrenheit_ = useFahrenheit;
  emit useFahrenheitChanged(useFahrenheit_);
  if (written(defaults_.writeBool(useFahrenheitKey, useFahrenheit_))) return;
  useFahrenheit_ = storedBool(defaults_, useFahrenheitKey);
  emit useFahrenheitChanged(useFahrenheit_);
}

void AppSettings::setPinned(bool pinned) {
  if (isPinned_ == pinned) return;
  isPinned_ = pinned;
  emit isPinnedChanged(isPinned_);
}

bool AppSettings::storePinned(bool pinned) {
  if (written(defaults_.writeBool(isPinnedKey, pinned))) return pinned;
  return storedBool(defaults_, isPinnedKey);
}

void AppSettings::setMetricOrder(std::vector<MetricKind> order) {
  metricOrder_ = std::move(order);
  emit metricOrderChanged();
  if (written(defaults_.writeStringList(metricOrderKey, MetricOrderStore::encode(metricOrder_)))) {
    orderStored_ = true;
    return;
  }
  metricOrder_ = storedOrder(defaults_);
  emit metricOrderChanged();
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

void AppSettings::leaveOutOfDefaultOrder(const std::vector<MetricKind>& kinds) {
  if (orderStored_) return;
  metricOrder_ = MetricOrderStore::defaultOrderWithout(kinds);
  emit metricOrderChanged();
}

void AppSettings::moveMetrics(const std::set<std::size_t>& offsets, std::ptrdiff_t destination) {
  setMetricOrder(MetricOrderStore::reordered(metricOrder_, offsets, destination));
}

}  // namespace brimly
