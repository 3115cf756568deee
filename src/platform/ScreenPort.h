#pragma once

#include <optional>
#include <vector>

#include "core/Geometry.h"

namespace brimly {

// One display as the desktop describes it, in global bottom-left-origin points. A screen with a
// camera housing has a top safe-area inset and the two menu-bar strips beside the housing; other
// screens have neither.
struct ScreenDescription {
  Rect frame;
  EdgeInsets safeAreaInsets;
  std::optional<Rect> auxiliaryTopLeftArea;
  std::optional<Rect> auxiliaryTopRightArea;

  // Whether the screen has a camera housing: only such a screen reports a top safe-area inset.
  // Every other screen, every Linux screen among them, has its notch size made up from defaults.
  bool hasCameraHousing() const { return safeAreaInsets.top > 0; }

  bool operator==(const ScreenDescription&) const = default;
};

class ScreenPort {
 public:
  virtual ~ScreenPort() = default;
  // Every screen, in the desktop's order.
  virtual std::vector<ScreenDescription> screens() const = 0;
  // The main screen, when there is one.
  virtual std::optional<ScreenDescription> mainScreen() const = 0;
  // The height of the top bar the desktop reserves (the menu bar on macOS, a top panel on Linux);
  // 0 when it reserves none.
  virtual double statusBarThickness() const = 0;
};

}  // namespace brimly
