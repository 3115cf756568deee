#pragma once

#include <QColor>

#include "usage/Theme.h"
#include "usage/views/QtColor.h"

namespace brimly {

// The three levels of text in Brimly's windows, always in the dark scheme.
enum class TextStyle { primary, secondary, tertiary };

inline QColor textColor(TextStyle style) {
  switch (style) {
    case TextStyle::primary:
      return toQColor(Theme::primaryForeground);
    case TextStyle::secondary:
      return toQColor(Theme::secondaryForeground);
    case TextStyle::tertiary:
      return toQColor(Theme::tertiaryForeground);
  }
  return toQColor(Theme::primaryForeground);
}

}  // namespace brimly
