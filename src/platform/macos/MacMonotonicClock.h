#pragma once

#include <memory>

#include "platform/MonotonicClock.h"

namespace brimly {

// Seconds the system has been awake since it started (the clock stops while it sleeps, as the
// energy counters do).
std::unique_ptr<MonotonicClock> makeMacMonotonicClock();

}  // namespace brimly
