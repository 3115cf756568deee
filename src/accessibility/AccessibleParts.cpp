#include "accessibility/AccessibleParts.h"

#include "accessibility/Accessibility.h"

namespace brimly {

AccessibleParts::AccessibleParts() {
  installAccessibility();
}

}  // namespace brimly
