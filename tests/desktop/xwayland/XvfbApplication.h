#pragma once

#include <string>

namespace brimly::testing {

// The private X display the test program's application runs on (":N"); empty where it runs
// offscreen because Xvfb is missing.
const std::string& xvfbDisplay();

}  // namespace brimly::testing
