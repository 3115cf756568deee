#include "platform/SystemFonts.h"

namespace brimly {

// Linux has no rounded design of its interface face: an installed rounded family stands in.
std::optional<std::string> roundedSystemFontFile() {
  return std::nullopt;
}

// A face made for interfaces, with every weight from thin to black, as the system font is on macOS.
std::vector<std::string> windowFamilies() {
  return {"Inter"};
}

}  // namespace brimly
