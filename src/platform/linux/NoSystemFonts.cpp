#include "platform/SystemFonts.h"

namespace brimly {

// Linux has no rounded design of its interface face: an installed rounded family stands in.
std::optional<std::string> roundedSystemFontFile() {
  return std::nullopt;
}

}  // namespace brimly
