#pragma once

#include <string_view>

namespace brimly {

// Command-comma (Ctrl-comma on Linux) opens the settings window while one of Brimly's windows has
// the keyboard. Only the Command key is tested, so other modifiers held with it still match; the
// characters are those of the key without modifiers, so Option or Shift do not change them.
inline bool isSettingsShortcut(bool commandHeld, std::string_view charactersIgnoringModifiers) {
  return commandHeld && charactersIgnoringModifiers == ",";
}

}  // namespace brimly
