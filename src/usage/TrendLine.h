#pragma once

#include <optional>
#include <vector>

#include "core/Geometry.h"
#include "core/MetricKind.h"
#include "sampling/MetricSample.h"
#include "sampling/SampleHistory.h"
#include "sampling/SamplingRateControl.h"
#include "usage/Color.h"
#include "usage/MetricGridLayout.h"
#include "usage/Theme.h"

namespace brimly {

// The trend line drawn behind a metric's bar: the bar's values over the last minute, oldest at the
// band's leading edge and the newest sample at its trailing edge, an empty bar at the band's
// bottom and a full one at its top. It is drawn only from the samples taken: a reading that could
// not be taken (the cell showed the dash) and a stretch of more than ten seconds without samples
// break the line, and nothing is drawn before the oldest sample held.
namespace TrendLine {

// One unbroken stretch of the line, oldest point first. A stretch of one point is a lone reading
// between two breaks.
using Run = std::vector<Point>;

// Thin and faint, so that the bar and its load colour stay what the eye reads first.
inline constexpr double lineWidth = 1.0;
inline constexpr Color colour = Theme::primaryForeground.withOpacity(0.4);
// The longest time between two samples that the line still joins: twice the closed panel's
// sampling interval, so that a late tick never breaks it, while a machine that slept does.
inline constexpr double longestJoinSeconds = 2.0 * SamplingRateControl::closedInterval;

// The strip of a cell the line is drawn in: the bar's width, and the bar's own height above and
// below it, inside the spacing that parts the bar from the header and the detail line.
Rect band(const CellGeometry& cell);

// The value the bar of `kind` shows for `sample`, or none where the cell shows the dash.
std::optional<double> value(MetricKind kind, const MetricSample& sample);

// The line of `kind` over `history`, in the coordinates of `band`.
std::vector<Run> runs(MetricKind kind, const SampleHistory& history, const Rect& band);

}  // namespace TrendLine

}  // namespace brimly
