#pragma once

#include <functional>

namespace brimly {

// The exit status of a run whose text (the report, the usage, the version) could not be written to
// standard output: to a full disk, a closed pipe, a closed descriptor.
inline constexpr int kOutputFailedExitStatus = 1;

// Runs `print`, which writes to standard output (through stdio or std::cout) and returns the exit
// status, and makes sure that all of it arrived: when standard output is closed, `print` does not
// run at all (whatever file took the descriptor's place would get the text); when some of the text
// could not be written, one line on standard error says why. Answers `print`'s status, or
// kOutputFailedExitStatus when the text did not arrive.
int writeToStandardOutput(const std::function<int()>& print);

}  // namespace brimly
