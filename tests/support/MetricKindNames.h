#pragma once

#include "core/MetricKind.h"

// The six kinds by their short names, so that orders read in tests as they read on screen:
// `Kinds{temp, cpu}`.
namespace brimly::testing::kinds {

inline constexpr auto cpu = MetricKind::cpu;
inline constexpr auto gpu = MetricKind::gpu;
inline constexpr auto ram = MetricKind::ram;
inline constexpr auto disk = MetricKind::disk;
inline constexpr auto temp = MetricKind::temp;
inline constexpr auto pwr = MetricKind::pwr;

}  // namespace brimly::testing::kinds
