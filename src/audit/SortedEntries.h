#pragma once

#include <vector>

#include "platform/PropertyValue.h"

namespace brimly {

// A dictionary's entries sorted by key, byte-wise (for UTF-8 keys that is code-point order).
std::vector<const PropertyDict::Entry*> sortedEntries(const PropertyDict& dict);

}  // namespace brimly
