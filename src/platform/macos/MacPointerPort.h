#pragma once

#include <memory>

#include "platform/PointerPort.h"

namespace brimly {

// Watches pointer movement through a global event monitor (events sent to other applications; no
// permission needed for mouse events) and a local one (events sent to this application). Main
// thread only.
std::unique_ptr<PointerPort> makeMacPointerPort();

}  // namespace brimly
