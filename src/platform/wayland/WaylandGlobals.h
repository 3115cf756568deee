#pragma once

#include <optional>
#include <string>
#include <vector>

namespace brimly {

// The interfaces a Wayland compositor offers (its registry's globals: "wl_compositor",
// "zwlr_layer_shell_v1"…), asked for on a short connection of its own to the socket named
// `display` (a name under $XDG_RUNTIME_DIR, or a path), before anything else talks to the
// compositor. Nothing when no compositor answers there, or the name is empty.
std::optional<std::vector<std::string>> waylandGlobals(const std::string& display);

}  // namespace brimly
