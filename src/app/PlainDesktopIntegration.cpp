#include "app/PlainDesktopIntegration.h"

#include "app/HoverNotice.h"

namespace brimly {

std::optional<std::string> PlainDesktopIntegration::hoverNotice() const {
  if (!tellAboutHover_) return std::nullopt;
  return brimly::hoverNotice(PointerWatch::notX11, true);
}

}  // namespace brimly
