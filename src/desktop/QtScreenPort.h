#pragma once

#include "panel/DesktopCoordinates.h"
#include "platform/ScreenPort.h"

namespace brimly {

// The screens as Qt's desktop sees them. Linux displays have no camera housing: no safe-area
// insets and no strips beside one; the main screen is Qt's primary screen, and the top bar is the
// strip a desktop panel reserves on it.
class QtScreenPort final : public ScreenPort {
 public:
  std::vector<ScreenDescription> screens() const override;
  std::optional<ScreenDescription> mainScreen() const override;
  double statusBarThickness() const override;

  // How Qt's top-left desktop maps to the bottom-left one the panel logic works in, as the
  // screens are laid out now. The pointer goes through the same mapping.
  static DesktopCoordinates desktopCoordinates();
};

}  // namespace brimly
