#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <vector>

#include "core/MetricKind.h"
#include "sampling/MetricSample.h"

// The rules of the Metrics tab: which metrics are hidden, how full each preview bar is, when a
// switch may be flipped, and how a row moves. The shown list is the settings' metric order itself.
namespace brimly::MetricListRules {

// A move of the shown rows at `offsets` to the gap before `destination` (an index of the list as
// it was before the move), as `MetricOrderStore::reordered` takes it.
struct RowMove {
  std::set<std::size_t> offsets;
  std::ptrdiff_t destination = 0;

  bool operator==(const RowMove&) const = default;
};

// Every kind that `order` leaves out, in the enumeration's order (not the order of hiding).
std::vector<MetricKind> hiddenKinds(const std::vector<MetricKind>& order);

// How full the preview's bar for `kind` is, 0 to 1:
//   cpu, ram, disk: the reading, only capped at 1 (the readings are fractions already);
//   gpu: 0 when absent, else the reading held to 0…1;
//   temp: 0 when absent, else 30 °C empty to 100 °C full;
//   pwr: 0 when absent, else 0 W empty to 20 W full.
double previewFill(MetricKind kind, const MetricSample& sample);
// Whether the preview's bar for `kind` shows a reading: not when the GPU load, the temperature or
// the system's power draw is absent. The bar is then only its stub, drawn dimmed.
bool hasPreviewReading(MetricKind kind, const MetricSample& sample);

inline constexpr double emptyTemperatureC = 30.0;
inline constexpr double fullTemperatureC = 100.0;
inline constexpr double fullPowerWatts = 20.0;

// Whether a shown metric may be hidden: not when it is the only one, since the panel always keeps
// at least one cell.
bool canHide(const std::vector<MetricKind>& order);
// Whether the switch of a row may be flipped: a hidden row's always, a shown row's when it can be
// hidden.
bool isSwitchEnabled(bool shown, const std::vector<MetricKind>& order);

// The keyboard's moves of the shown row at `index` among `count` shown rows, one place up or
// down; nothing when the row is already at that end, or out of range.
std::optional<RowMove> moveUp(std::size_t index, std::size_t count);
std::optional<RowMove> moveDown(std::size_t index, std::size_t count);
// A drag of the shown row at `from` dropped into the gap before `destination` (0 to `count`);
// nothing when it lands where it started (the gap just before or just after itself), or when
// either end is out of range.
std::optional<RowMove> dragMove(std::size_t from, std::size_t destination, std::size_t count);

}  // namespace brimly::MetricListRules
