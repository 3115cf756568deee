#pragma once

#include <string>

namespace brimly {

// Writes one line to the system's log: the unified log on macOS (and standard error), standard
// error on Linux. The only thing Brimly ever logs is a failed login-item toggle.
void writeSystemLogLine(const std::string& line);

}  // namespace brimly
