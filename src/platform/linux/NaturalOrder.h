#pragma once

#include <string_view>

namespace brimly {

// Orders names as a person would: runs of digits compare by their value, so "card2" comes before
// "card10". Kernel device numbers change between boots, and directory order is unspecified, so
// every listing is sorted this way before anything is called "the first".
bool naturalLess(std::string_view left, std::string_view right);

}  // namespace brimly
