#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace brimly {

// A symbol the system drew: `pixelSize` × `pixelSize` pixels, premultiplied 8-bit RGBA in rows
// from the top, the glyph in any single colour (callers recolour it).
struct SymbolBitmap {
  int pixelSize = 0;
  std::vector<std::uint8_t> rgba;
};

// The system's own symbol `name` (macOS: the system symbol library), drawn at `pixelSize`; nothing
// where the system has no such symbol or no symbol library at all (Linux), so that Brimly's
// bundled symbols stand in.
std::optional<SymbolBitmap> renderSystemSymbol(const std::string& name, int pixelSize);

}  // namespace brimly
