#pragma once

#include <ostream>

#include "usage/Color.h"

// Readable colours in test failure messages.
namespace brimly {

inline void PrintTo(const Color& colour, std::ostream* out) {
  *out << (colour.space == ColorSpace::displayP3 ? "P3(" : "sRGB(") << colour.red << ", "
       << colour.green << ", " << colour.blue << " @ " << colour.opacity << ")";
}

inline void PrintTo(const ColorPair& pair, std::ostream* out) {
  PrintTo(pair.start, out);
  *out << " -> ";
  PrintTo(pair.end, out);
}

}  // namespace brimly
