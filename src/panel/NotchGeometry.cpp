#include "panel/NotchGeometry.h"

#include <algorithm>
#include <cmath>

namespace brimly {

namespace {

// A length the desktop reported that cannot be used (not a number, infinite) counts as 0.
double usable(double length) {
  return std::isfinite(length) ? length : 0.0;
}

}  // namespace

std::optional<ScreenDescription> NotchGeometry::notchScreen(
    const std::vector<ScreenDescription>& screens,
    const std::optional<ScreenDescription>& mainScreen) {
  for (const auto& screen : screens) {
    if (screen.hasCameraHousing()) return screen;
  }
  return mainScreen;
}

Size NotchGeometry::measureNotch(const ScreenDescription& screen, double statusBarThickness) {
  double height = std::max(usable(screen.safeAreaInsets.top), usable(statusBarThickness));
  if (!(height > 0)) height = fallbackNotchHeight;

  double width = fallbackNotchWidth;
  if (screen.auxiliaryTopLeftArea && screen.auxiliaryTopRightArea) {
    const double gap = screen.auxiliaryTopRightArea->minX() - screen.auxiliaryTopLeftArea->maxX();
    if (std::isfinite(gap) && gap > minimumCredibleGap) width = gap;
  }
  return {width, height};
}

Size NotchGeometry::recomputeNotch(const std::optional<ScreenDescription>& notchScreen,
                                   double statusBarThickness, Size previous) {
  if (!notchScreen) return previous;
  return measureNotch(*notchScreen, statusBarThickness);
}

Rect NotchGeometry::panelFrame(const Rect& screenFrame, Size notchSize, double scale) {
  const double height = notchSize.height + contentHeight * scale;
  return {screenFrame.midX() - halfWidth * scale, screenFrame.maxY() - height,
          expandedWidth * scale, height};
}

TrackerGeometry NotchGeometry::trackerGeometry(const std::optional<Rect>& notchScreenFrame,
                                               Size notchSize, double scale) {
  return {
      .screenFrame = notchScreenFrame,
      .triggerWidthHidden = notchSize.width + hiddenTriggerExtraWidth,
      .triggerWidthShown = shownTriggerWidth * scale,
      .triggerHeightHidden = notchSize.height,
      .triggerHeightShown = notchSize.height + (contentHeight + shownTriggerExtraHeight) * scale,
  };
}

NotchPlacement NotchGeometry::place(const ScreenPort& screens, Size previousNotchSize,
                                    double scale) {
  NotchPlacement placement;
  placement.screen = notchScreen(screens.screens(), screens.mainScreen());
  placement.notchSize =
      recomputeNotch(placement.screen, screens.statusBarThickness(), previousNotchSize);
  std::optional<Rect> frame;
  if (placement.screen) {
    placement.hasNotch = placement.screen->hasCameraHousing();
    frame = placement.screen->frame;
    placement.panelFrame = panelFrame(*frame, placement.notchSize, scale);
  }
  placement.tracker = trackerGeometry(frame, placement.notchSize, scale);
  return placement;
}

}  // namespace brimly
