#include "audit/PowerStateText.h"

#include "audit/ReportText.h"

namespace brimly {

std::string powerStateText(const PowerState& state) {
  switch (state.kind()) {
    case PowerState::Kind::discharging:
      return "discharging(watts: " + ReportText::shortestDecimal(state.watts()) + ")";
    case PowerState::Kind::charging:
      return "charging(watts: " + ReportText::shortestDecimal(state.watts()) + ")";
    case PowerState::Kind::acIdle:
      return "acIdle";
    case PowerState::Kind::unknown:
      return "unknown";
  }
  return "unknown";
}

}  // namespace brimly
