#pragma once

#include <vector>

#include "core/MetricKind.h"
#include "sampling/MetricSample.h"

// Which metrics a machine has no source for at all, as its first sample finds them. The processor,
// memory and disk always have one. The GPU load has one when an accelerator gives a figure or is
// asleep (`GpuLoad::hasSource`); the temperature when the first sample has one (every reading
// looks at all the sensors there are); power when the battery or the mains supply reports its
// state, or the energy counters could be read (their first reading only primes them, so the first
// sample has no watts yet).
namespace brimly::MetricSources {

// The kinds without a source, in the enumeration's order.
std::vector<MetricKind> withoutSource(const MetricSample& first, bool gpuSource,
                                      bool energyCounters);

}  // namespace brimly::MetricSources
