#pragma once

#include <memory>

#include "platform/OutsideClickMonitorPort.h"

namespace brimly {

// Left and right mouse-downs that go to other applications, through global event monitors (no
// permission needed for mouse events). Main thread only.
std::unique_ptr<OutsideClickMonitorPort> makeMacOutsideClickMonitor();

}  // namespace brimly
