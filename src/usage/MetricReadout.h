#pragma once

#include <string>

#include "usage/MetricCellContent.h"

namespace brimly {

// A metric cell as a screen reader reads it: the label and the large value as its name ("CPU
// 43%"), and the detail line, when the cell shows one, as its description.
struct MetricReadout {
  std::string name;
  std::string description;

  static MetricReadout of(const MetricCellContent& cell);

  bool operator==(const MetricReadout&) const = default;
};

}  // namespace brimly
