#include "core/MetricOrderStore.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>

namespace brimly::MetricOrderStore {

std::vector<std::string> encode(const std::vector<MetricKind>& kinds) {
  std::vector<std::string> strings;
  strings.reserve(kinds.size());
  for (MetricKind kind : kinds) strings.emplace_back(kind.rawValue());
  return strings;
}

std::vector<MetricKind> decode(const std::vector<std::string>& strings) {
  std::vector<MetricKind> result;
  std::unordered_set<MetricKind> taken;
  for (const std::string& string : strings) {
    const auto kind = MetricKind::fromRawValue(string);
    if (!kind || !taken.insert(*kind).second) continue;
    result.push_back(*kind);
  }
  if (result.empty()) return MetricKind::defaultOrder();
  return result;
}

std::vector<MetricKind> defaultOrderWithout(const std::vector<MetricKind>& left) {
  std::vector<MetricKind> order = MetricKind::defaultOrder();
  std::erase_if(order, [&left](MetricKind kind) {
    return std::find(left.begin(), left.end(), kind) != left.end();
  });
  if (order.empty()) return MetricKind::defaultOrder();
  return order;
}

std::vector<MetricKind> reordered(const std::vector<MetricKind>& order,
                                  const std::set<std::size_t>& offsets,
                                  std::ptrdiff_t destination) {
  for (std::size_t offset : offsets) {
    if (offset >= order.size()) return order;
  }
  if (destination < 0) return order;
  const auto insertionLimit = static_cast<std::size_t>(destination);
  if (insertionLimit > order.size()) return order;

  std::vector<MetricKind> moving;
  for (std::size_t offset : offsets) moving.push_back(order[offset]);

  std::vector<MetricKind> remaining = order;
  for (auto offset = offsets.rbegin(); offset != offsets.rend(); ++offset) {
    remaining.erase(remaining.begin() + static_cast<std::ptrdiff_t>(*offset));
  }

  const auto movedBeforeDestination =
      static_cast<std::size_t>(std::distance(offsets.begin(), offsets.lower_bound(insertionLimit)));
  const std::size_t insertionPoint = insertionLimit - movedBeforeDestination;
  remaining.insert(remaining.begin() + static_cast<std::ptrdiff_t>(insertionPoint), moving.begin(),
                   moving.end());
  return remaining;
}

}  // namespace brimly::MetricOrderStore
