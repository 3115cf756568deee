#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brimly {

// The `Exec=` value that starts `program` (an absolute path) with no arguments, on launchers that
// follow the desktop-entry format to the letter (Qt's and KDE's, systemd's autostart) and on
// GLib's (GNOME's) alike: the path itself, quoted when it holds a space or another reserved
// character, with the escapes desktop entries call for. A path with '%' or '=' is handed to
// `sh -c 'exec "$0"'` as an argument instead, since the format allows no '=' in the program and
// GLib looks for the program before it turns "%%" back into '%'. Nothing when the path cannot be
// written there at all: empty, relative, not UTF-8 (a desktop entry is UTF-8 text), or holding a
// control character other than tab and newline.
std::optional<std::string> desktopExecValue(std::string_view program);

// Whether the text of an autostart entry asks for its program to be started: it has a
// [Desktop Entry] group, and that group says neither Hidden=true, X-GNOME-Autostart-enabled=false
// nor X-systemd-skip=true, in any spelling one of the session's launchers takes (the last word
// counts when a key repeats). Any bytes are accepted.
bool autostartEntryIsActive(std::string_view text);

}  // namespace brimly
