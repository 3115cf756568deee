#pragma once

#include <array>

#include "core/Geometry.h"
#include "core/MetricKind.h"

namespace brimly {

// A measured size for each metric kind (its title's text, say), indexed by the kind.
class KindSizes {
 public:
  Size& operator[](MetricKind kind) { return sizes_[kind.value()]; }
  const Size& operator[](MetricKind kind) const { return sizes_[kind.value()]; }

  // The same size for every kind.
  static KindSizes uniform(Size size) {
    KindSizes sizes;
    sizes.sizes_.fill(size);
    return sizes;
  }

 private:
  std::array<Size, 6> sizes_{};
};

}  // namespace brimly
