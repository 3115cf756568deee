#include "platform/SystemSymbols.h"

namespace brimly {

// Linux has no system symbol library: Brimly's bundled symbols always stand in.
std::optional<SymbolBitmap> renderSystemSymbol(const std::string&, int) {
  return std::nullopt;
}

}  // namespace brimly
