#pragma once

#include <string_view>

namespace brimly {

// Writes `line` and a newline to standard error in a single write, so that lines written at the
// same time by other threads or processes sharing the stream never run into each other. A line
// break inside `line` (a file name may hold one) becomes a blank, so that one call is always one
// line. Errors are ignored: there is nowhere left to report them.
void writeStandardErrorLine(std::string_view line);

}  // namespace brimly
