#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>
#include <vector>

#include "core/Precondition.h"

namespace brimly::MetricLayout {

// Cuts `items` into rows of `columns` items; the last row holds the remainder. No padding cells
// are added and the items keep their order. A column count below 1 gives no rows.
template <typename Item>
std::vector<std::vector<Item>> rows(const std::vector<Item>& items, std::ptrdiff_t columns) {
  std::vector<std::vector<Item>> result;
  if (columns < 1 || items.empty()) return result;
  const auto count = static_cast<std::ptrdiff_t>(items.size());
  std::ptrdiff_t start = 0;
  while (start < count) {
    BRIMLY_REQUIRE(start <= std::numeric_limits<std::ptrdiff_t>::max() - columns,
                   "row index overflow");
    const std::ptrdiff_t end = std::min(start + columns, count);
    result.emplace_back(items.begin() + start, items.begin() + end);
    start = end;
  }
  return result;
}

}  // namespace brimly::MetricLayout
