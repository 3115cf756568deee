#include "audit/SortedEntries.h"

#include <algorithm>

namespace brimly {

std::vector<const PropertyDict::Entry*> sortedEntries(const PropertyDict& dict) {
  std::vector<const PropertyDict::Entry*> entries;
  entries.reserve(dict.entries().size());
  for (const auto& entry : dict.entries())
    entries.push_back(&entry);
  // Keys are unique, so the order is total; std::string compares bytes as unsigned values.
  std::sort(entries.begin(), entries.end(),
            [](const auto* a, const auto* b) { return a->first < b->first; });
  return entries;
}

}  // namespace brimly
