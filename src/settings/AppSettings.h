#pragma once

#include <QObject>
#include <cstddef>
#include <set>
#include <vector>

#include "core/MetricKind.h"
#include "platform/KeyValueStore.h"

namespace brimly {

// The user's persisted choices: temperatures in Fahrenheit, the panel pinned open, and which
// metrics the panel shows in which order. One instance lives from launch to exit; the views
// observe it. It reads the store once, when it is made, and writes nothing then, so a damaged
// store is never overwritten at start; each later change is written back at once.
//
// `metricOrder` is both the set of shown metrics and their order: a kind absent from it is hidden.
class AppSettings : public QObject {
  Q_OBJECT

 public:
  static constexpr const char* useFahrenheitKey = "useFahrenheit";
  static constexpr const char* isPinnedKey = "isPinned";
  static constexpr const char* metricOrderKey = "metricOrder";

  // Reads the three keys from `store`, which must outlive this object. A missing or mistyped
  // Boolean reads as false; a missing, mistyped, empty or wholly unknown order gives every metric
  // in the default order, and unknown or repeated entries are dropped.
  explicit AppSettings(KeyValueStore& store, QObject* parent = nullptr);

  bool useFahrenheit() const { return useFahrenheit_; }
  // Stores the value, announces it and writes it to the store, on every assignment.
  void setUseFahrenheit(bool useFahrenheit);

  bool isPinned() const { return isPinned_; }
  // Holds the value only: whoever toggles the pin persists it under `isPinnedKey` through
  // `defaults()`. A change of value is announced.
  void setPinned(bool pinned);

  const std::vector<MetricKind>& metricOrder() const { return metricOrder_; }
  // Stores the list, announces it and writes its raw values to the store, on every assignment.
  void setMetricOrder(std::vector<MetricKind> order);

  // Shows `kind` (appended at the end when it was hidden; nothing happens when it is shown) or
  // hides it. The last shown metric cannot be hidden: with fewer than two shown, hiding does
  // nothing. Hiding a kind that is already hidden still assigns, announces and writes the order.
  void setMetric(MetricKind kind, bool enabled);

  // Moves the shown metrics at `offsets` to the gap before `destination`, as a list view's drag
  // does, and assigns the result.
  void moveMetrics(const std::set<std::size_t>& offsets, std::ptrdiff_t destination);

  // The store the settings were read from.
  KeyValueStore& defaults() const { return defaults_; }

 signals:
  void useFahrenheitChanged(bool useFahrenheit);
  void isPinnedChanged(bool isPinned);
  void metricOrderChanged();

 private:
  KeyValueStore& defaults_;
  bool useFahrenheit_ = false;
  bool isPinned_ = false;
  std::vector<MetricKind> metricOrder_;
};

}  // namespace brimly
