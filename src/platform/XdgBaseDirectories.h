#pragma once

#include <string>
#include <string_view>

namespace brimly {

// Where the XDG Base Directory rules put the user's folders. A variable counts only when it holds
// an absolute path: a relative or empty value is invalid and is ignored, as the rules ask. Paths
// are bytes; a value that is not UTF-8 is as good as any other.

// The user's configuration folder: `xdgConfigHome` when it is absolute, else `.config` in `home`
// when that is; empty when neither is. Arguments are the variables' values (null when unset); the
// path comes without doubled or trailing slashes.
std::string configHome(const char* xdgConfigHome, const char* home);
// The same from this process's $XDG_CONFIG_HOME and $HOME.
std::string configHomeOfThisProcess();

// Whether a variable's value names a base directory at all: an absolute path.
bool isAbsoluteBaseDirectory(const char* value);

}  // namespace brimly
