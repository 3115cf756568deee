#pragma once

#include <ostream>

#include "about/AboutLayout.h"

// Readable geometry in test failure messages.
namespace brimly {

inline void PrintTo(const Size& size, std::ostream* out) {
  *out << size.width << " x " << size.height;
}

inline void PrintTo(const Rect& rect, std::ostream* out) {
  *out << "(" << rect.x << ", " << rect.y << ") " << rect.width << " x " << rect.height;
}

inline void PrintTo(const PlacedText& line, std::ostream* out) {
  *out << "\"" << line.text << "\" at ";
  PrintTo(line.frame, out);
}

}  // namespace brimly
