#include "usage/TrendLine.h"

#include <algorithm>

#include "usage/MetricCellContent.h"

namespace brimly::TrendLine {

Rect band(const CellGeometry& cell) {
  const Rect& bar = cell.bar;
  return Rect{bar.x, bar.y - bar.height, bar.width, bar.height * 3.0};
}

std::optional<double> value(MetricKind kind, const MetricSample& sample) {
  // The cell's own rule decides what the bar shows and when the reading counts as absent; the unit
  // of the temperature text plays no part in either.
  const MetricCellContent cell = MetricCellContent::of(kind, sample, false);
  if (cell.palette == BarPalette::absent()) return std::nullopt;
  return cell.barValue;
}

std::vector<Run> runs(MetricKind kind, const SampleHistory& history, const Rect& band) {
  std::vector<Run> result;
  const std::optional<double> newest = history.newestTime();
  if (!newest) return result;
  const double start = *newest - SampleHistory::windowSeconds;
  // The line's centre keeps half its width inside the band, so that its edges stay in the band.
  const double inset = lineWidth / 2.0;
  const double top = band.y + inset;
  const double height = band.height - 2.0 * inset;
  std::optional<double> previousTime;  // of the last point drawn, while the line runs on
  for (std::size_t i = 0; i < history.size(); ++i) {
    const TimedSample& timed = history.at(i);
    if (timed.takenAt < start) continue;
    const std::optional<double> reading = value(kind, timed.sample);
    if (!reading) {
      previousTime.reset();
      continue;
    }
    const bool joined = previousTime && timed.takenAt - *previousTime <= longestJoinSeconds;
    if (!joined) result.emplace_back();
    const double x = band.x + (timed.takenAt - start) / SampleHistory::windowSeconds * band.width;
    const double y = top + (1.0 - std::clamp(*reading, 0.0, 1.0)) * height;
    result.back().push_back({x, y});
    previousTime = timed.takenAt;
  }
  return result;
}

}  // namespace brimly::TrendLine
