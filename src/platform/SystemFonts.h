#pragma once

#include <optional>
#include <string>

namespace brimly {

// The font file of the system's own rounded design of its interface face (macOS: the system font
// in NSFontDescriptorSystemDesignRounded), for the windows and the panel to load; nothing where the
// system has none (Linux), so that an installed rounded family stands in.
std::optional<std::string> roundedSystemFontFile();

}  // namespace brimly
