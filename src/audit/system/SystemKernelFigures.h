#pragma once

#include <memory>

#include "audit/KernelFigureSource.h"

namespace brimly {

// The raw kernel figures of the system this program runs on, for the report to quote; null where
// the platform has none to quote (macOS, whose report names its own calls).
std::unique_ptr<KernelFigureSource> makeSystemKernelFigures();

}  // namespace brimly
