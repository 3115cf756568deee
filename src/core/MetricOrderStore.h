#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <vector>

#include "core/MetricKind.h"

// The persisted list of shown metrics. The list is both the set of shown metrics and their
// order: a kind absent from it is hidden.
namespace brimly::MetricOrderStore {

// Each kind's raw value, in order. Nothing is filtered.
std::vector<std::string> encode(const std::vector<MetricKind>& kinds);

// Known kinds in stored order, first occurrence winning. Unknown strings are skipped; a list that
// names no kind gives `MetricKind::defaultOrder()`. Kinds not mentioned stay hidden.
std::vector<MetricKind> decode(const std::vector<std::string>& strings);

// The order a first launch shows: `MetricKind::defaultOrder()` without the kinds in `left`
// (the metrics the machine has no source for), which start hidden. Never empty: when nothing
// would be left, the whole default order.
std::vector<MetricKind> defaultOrderWithout(const std::vector<MetricKind>& left);

// Moves the elements at `offsets` to the gap before `destination` of the input list, as a list
// view's move does. Out-of-range input returns `order` unchanged.
std::vector<MetricKind> reordered(const std::vector<MetricKind>& order,
                                  const std::set<std::size_t>& offsets,
                                  std::ptrdiff_t destination);

}  // namespace brimly::MetricOrderStore
