#include "sampling/PowerState.h"

namespace brimly {

bool PowerState::operator==(const PowerState& other) const {
  if (kind_ != other.kind_) return false;
  switch (kind_) {
    case Kind::discharging:
    case Kind::charging:
      return watts_ == other.watts_;
    case Kind::acIdle:
    case Kind::unknown:
      return true;
  }
  return false;
}

}  // namespace brimly
