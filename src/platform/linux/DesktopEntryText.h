#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brimly {

// The `Exec=` value that starts `program` (an absolute path) with no arguments: quoted when it
// holds a space or another reserved character, with the escapes desktop entries call for. Nothing
// when the path cannot be written there at all: empty, relative, or holding '=' or a control
// character other than tab and newline.
std::optional<std::string> desktopExecValue(std::string_view program);

// Whether the text of an autostart entry asks for its program to be started: it has a
// [Desktop Entry] group, and that group says neither Hidden=true, X-GNOME-Autostart-enabled=false
// nor X-systemd-skip=true, in any spelling one of the session's launchers takes (the last word
// counts when a key repeats). Any bytes are accepted.
bool autostartEntryIsActive(std::string_view text);

}  // namespace brimly
