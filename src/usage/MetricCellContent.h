#pragma once

#include <string>

#include "core/MetricKind.h"
#include "sampling/MetricSample.h"
#include "usage/BarPalette.h"

namespace brimly {

// What one metric cell shows: its label, the large value, the detail line under the bar (" " when
// the metric has none, so that all cells are equally tall; the power cell's line is empty when
// neither the source nor a battery is known), the bar's value and its palette (`absent` for a
// reading that could not be taken, whose value is the dash).
struct MetricCellContent {
  std::string label;
  std::string primary;
  std::string secondary;
  double barValue = 0.0;
  BarPalette palette = BarPalette::usage();

  // The cell of `kind` for one sample. The load fractions are passed to the bar unclamped.
  static MetricCellContent of(MetricKind kind, const MetricSample& sample, bool useFahrenheit);

  bool operator==(const MetricCellContent&) const = default;
};

}  // namespace brimly
