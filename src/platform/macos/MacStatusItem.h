#pragma once

#include <memory>

#include "platform/StatusItemPort.h"

namespace brimly {

// The application's item in the menu bar: a variable-length status item whose button shows a
// template system symbol and runs the click for left and right mouse-up alike. The item stays in
// the menu bar until this object is destroyed. Main thread only.
std::unique_ptr<StatusItemPort> makeMacStatusItem();

}  // namespace brimly
