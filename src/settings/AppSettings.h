#pragma once

#include <QObject>
#include <cstddef>
#include <functional>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include "core/Appearance.h"
#include "core/MetricKind.h"
#include "platform/KeyValueStore.h"

namespace brimly {

// The user's persisted choices: temperatures in Fahrenheit, the panel pinned open, which metrics
// the panel shows in which order, and how Brimly looks (accent colour, panel size, trend lines).
// One instance lives from launch to exit; the views observe it. It reads the store once, when it is
// made, and writes nothing then, so a damaged store is never overwritten at start; each later
// change is written back at once. A write the store refuses or fails is reported in one line, and
// the value goes back to what the store really holds (announced again), so that no switch shows a
// change that would be lost.
//
// `metricOrder` is both the set of shown metrics and their order: a kind absent from it is hidden.
class AppSettings : public QObject {
  Q_OBJECT

 public:
  static constexpr const char* useFahrenheitKey = "useFahrenheit";
  static constexpr const char* isPinnedKey = "isPinned";
  static constexpr const char* metricOrderKey = "metricOrder";
  // Stored by name: "green", "blue", "indigo", "purple", "pink", "orange", "graphite" or "system".
  static constexpr const char* accentColorKey = "accentColor";
  // Stored by name: "regular" or "large".
  static constexpr const char* panelSizeKey = "panelSize";
  static constexpr const char* showTrendKey = "showTrend";
  // The start of the line that reports a failed write; the store's reason follows it.
  static constexpr const char* writeFailurePrefix = "Brimly: saving the settings failed — ";

  // Reads the keys from `store`, which must outlive this object. A missing or mistyped Boolean
  // reads as false; a missing, mistyped, empty or wholly unknown order gives every metric in the
  // default order, and unknown or repeated entries are dropped; a missing, mistyped or unknown
  // accent or panel size reads as green or regular, the look Brimly has without a choice.
  explicit AppSettings(KeyValueStore& store, QObject* parent = nullptr);

  bool useFahrenheit() const { return useFahrenheit_; }
  // Stores the value, announces it and writes it to the store, on every assignment.
  void setUseFahrenheit(bool useFahrenheit);

  bool isPinned() const { return isPinned_; }
  // Holds the value only: whoever toggles the pin persists it with `storePinned`. A change of
  // value is announced.
  void setPinned(bool pinned);
  // Writes the pin under `isPinnedKey` for the next launch. Answers the pin the store holds
  // afterwards: `pinned`, or, after a failed write (reported), the one it held before.
  bool storePinned(bool pinned);

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

  // On a first launch, while no order is stored, shows the default order without `kinds` (the
  // metrics this machine has no source for), which start hidden, and announces it; the user can
  // still show them. Writes nothing, so that the next launch decides afresh, until the user
  // changes the order. Does nothing once an order is stored (read at start or written since).
  void leaveOutOfDefaultOrder(const std::vector<MetricKind>& kinds);

  // The appearance choices. Each assignment stores the value, announces it and writes it to the
  // store, as `setUseFahrenheit` does.
  AccentChoice accentColor() const { return accentColor_; }
  void setAccentColor(AccentChoice accent);
  PanelSize panelSize() const { return panelSize_; }
  void setPanelSize(PanelSize size);
  bool showTrend() const { return showTrend_; }
  void setShowTrend(bool showTrend);

  // Where a failed write is reported, one line each; nowhere until it is set.
  void setWriteFailureLog(std::function<void(const std::string& line)> log);

 signals:
  void useFahrenheitChanged(bool useFahrenheit);
  void isPinnedChanged(bool isPinned);
  void metricOrderChanged();
  void accentColorChanged(AccentChoice accent);
  void panelSizeChanged(PanelSize size);
  void showTrendChanged(bool showTrend);

 private:
  // Whether the write went through; when not, reports it.
  bool written(const std::optional<std::string>& failure) const;
  // Puts `value` in `field`, announces it with `changed` and writes it with `write`; after a
  // failed write the field takes what `stored` reads from the store, announced again.
  template <typename Value>
  void assign(Value& field, Value value, void (AppSettings::*changed)(Value),
              const std::function<std::optional<std::string>()>& write,
              const std::type_identity_t<std::function<Value()>>& stored);

  KeyValueStore& defaults_;
  std::function<void(const std::string&)> writeFailureLog_;
  bool useFahrenheit_ = false;
  bool isPinned_ = false;
  AccentChoice accentColor_ = AccentChoice::green;
  PanelSize panelSize_ = PanelSize::regular;
  bool showTrend_ = false;
  std::vector<MetricKind> metricOrder_;
  // Whether the store holds an order: one was read at start, or one has been written since.
  bool orderStored_ = false;
};

}  // namespace brimly
