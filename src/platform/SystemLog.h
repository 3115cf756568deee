#pragma once

#include <string>

namespace brimly {

// Writes one line to the system's log: the unified log on macOS (and standard error), standard
// error on Linux. Brimly logs only what the user must hear of: a failed login-item toggle, a
// setting that could not be saved.
void writeSystemLogLine(const std::string& line);

}  // namespace brimly
