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

AccentChoice storedAccent(const KeyValueStore& store) {
  const std::optional<std::string> name = store.readString(AppSettings::accentColorKey);
  return name ? accentChoiceNamed(*name).value_or(AccentChoice::green) : AccentChoice::green;
}

PanelSize storedPanelSize(const KeyValueStore& store) {
  const std::optional<std::string> name = store.readString(AppSettings::panelSizeKey);
  return name ? panelSizeNamed(*name).value_or(PanelSize::regular) : PanelSize::regular;
}

}  // namespace

AppSettings::AppSettings(KeyValueStore& store, QObject* parent)
    : QObject(parent),
      defaults_(store),
      useFahrenheit_(storedBool(store, useFahrenheitKey)),
      isPinned_(storedBool(store, isPinnedKey)),
      accentColor_(storedAccent(store)),
      panelSize_(storedPanelSize(store)),
      showTrend_(storedBool(store, showTrendKey)),
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

template <typename Value>
void AppSettings::assign(Value& field, Value value, void (AppSettings::*changed)(Value),
                         const std::function<std::optional<std::string>()>& write,
                         const std::type_identity_t<std::function<Value()>>& stored) {
  field = value;
  emit(this->*changed)(field);
  if (written(write())) return;
  field = stored();
  emit(this->*changed)(field);
}

void AppSettings::setUseFahrenheit(bool useFahrenheit) {
  assign(
      useFahrenheit_, useFahrenheit, &AppSettings::useFahrenheitChanged,
      [&] { return defaults_.writeBool(useFahrenheitKey, useFahrenheit); },
      [this] { return storedBool(defaults_, useFahrenheitKey); });
}

void AppSettings::setAccentColor(AccentChoice accent) {
  assign(
      accentColor_, accent, &AppSettings::accentColorChanged,
      [&] { return defaults_.writeString(accentColorKey, storedName(accent)); },
      [this] { return storedAccent(defaults_); });
}

void AppSettings::setPanelSize(PanelSize size) {
  assign(
      panelSize_, size, &AppSettings::panelSizeChanged,
      [&] { return defaults_.writeString(panelSizeKey, storedName(size)); },
      [this] { return storedPanelSize(defaults_); });
}

void AppSettings::setShowTrend(bool showTrend) {
  assign(
      showTrend_, showTrend, &AppSettings::showTrendChanged,
      [&] { return defaults_.writeBool(showTrendKey, showTrend); },
      [this] { return storedBool(defaults_, showTrendKey); });
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
