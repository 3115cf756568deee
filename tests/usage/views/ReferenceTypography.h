#pragma once

#include "usage/views/UsageTypography.h"

namespace brimly::testing {

// The faces the panel is drawn in on Linux (fonts-quicksand, fonts-jetbrains-mono), named rather
// than looked up, so that the references do not depend on what else is installed.
inline UsageTypography designedTypography() {
  return UsageTypography::of("Quicksand", "JetBrains Mono", QFont::Bold);
}

// What the panel falls back to where neither is installed (fonts-dejavu-core).
inline UsageTypography fallbackTypography() {
  return UsageTypography::of("DejaVu Sans", "DejaVu Sans Mono");
}

}  // namespace brimly::testing
