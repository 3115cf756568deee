#pragma once

#include <optional>
#include <string>

namespace brimly {

// How the pointer watch came out at launch.
enum class PointerWatch { watching, notX11, noDisplay, noXInput2 };

// The one line Brimly prints when hovering cannot open the panel (or may not): on a native
// Wayland desktop, on an X server without XInput 2, and under XWayland, where the pointer is
// seen only over X11 windows. Nothing when hovering works.
std::optional<std::string> hoverNotice(PointerWatch watch, bool waylandSession);

}  // namespace brimly
