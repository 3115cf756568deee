#include "audit/system/SystemKernelFigures.h"

namespace brimly {

std::unique_ptr<KernelFigureSource> makeSystemKernelFigures() {
  return nullptr;
}

}  // namespace brimly
