#pragma once

#include <optional>
#include <string>
#include <vector>

namespace brimly {

// The font file of the system's own rounded design of its interface face (macOS: the system font
// in NSFontDescriptorSystemDesignRounded), for the windows and the panel to load; nothing where the
// system has none (Linux), so that an installed rounded family stands in.
std::optional<std::string> roundedSystemFontFile();

// The families Brimly's windows set their text in, the first installed one taken, where the
// system's interface font is not the face the windows are designed in; empty where it is (macOS:
// the system font, with its medium and semibold faces). Linux desktops set their text in whatever
// their users chose, often a family without medium or semibold faces, which Qt then draws as
// regular and bold: the windows take Inter (fonts-inter, which the package recommends) there.
std::vector<std::string> windowFamilies();

}  // namespace brimly
