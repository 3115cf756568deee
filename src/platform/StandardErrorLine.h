#pragma once

#include <string_view>

namespace brimly {

// Writes `line` and a newline to standard error in a single write, so that lines written at the
// same time by other threads or processes sharing the stream never run into each other. Errors
// are ignored: there is nowhere left to report them.
void writeStandardErrorLine(std::string_view line);

}  // namespace brimly
