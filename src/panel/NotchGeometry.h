#pragma once

#include <optional>
#include <vector>

#include "core/Geometry.h"
#include "panel/TrackerGeometry.h"
#include "platform/ScreenPort.h"

namespace brimly {

// Everything derived from the notch screen, for placing the panel and the tracker.
struct NotchPlacement {
  // The screen holding the notch; none when the desktop reports no screen at all.
  std::optional<ScreenDescription> screen;
  // The measured notch, or the previous size when there is no screen.
  Size notchSize;
  // Whether that screen has a camera housing, which hides the closed card; false without a screen.
  // Without a housing the notch size only says where the card grows from and where the pointer
  // opens it.
  bool hasNotch = false;
  // Where the panel goes; none when there is no screen (the panel then keeps its frame).
  std::optional<Rect> panelFrame;
  TrackerGeometry tracker;

  bool operator==(const NotchPlacement&) const = default;
};

// The panel's geometry rules, as pure functions of plain rectangles and insets. All lengths are in
// points, in global coordinates with the origin at the bottom left. A larger panel (see `scaleOf`)
// multiplies the open panel's lengths by `scale`; what belongs to the closed notch stays as it is.
class NotchGeometry final {
 public:
  NotchGeometry() = delete;

  static constexpr double expandedWidth = 600.0;  // the open panel's width
  static constexpr double halfWidth = 300.0;      // panel origin = screen middle − this
  static constexpr double contentHeight = 116.0;  // panel height = notch height + this
  static constexpr double fallbackNotchWidth = 200.0;
  static constexpr double minimumCredibleGap = 100.0;  // a measured gap must exceed this
  // Desktops that reserve no top bar (many Linux sessions) report neither an inset nor a bar
  // thickness; the panel then hangs from a notch of the usual menu-bar height.
  static constexpr double fallbackNotchHeight = 32.0;
  static constexpr double hiddenTriggerExtraWidth = 20.0;
  static constexpr double shownTriggerWidth = 616.0;
  static constexpr double shownTriggerExtraHeight = 14.0;
  // The notch size assumed before the first measurement.
  static constexpr Size initialNotchSize{fallbackNotchWidth, fallbackNotchHeight};

  // The first screen with a camera housing, else the main screen, which may be absent.
  static std::optional<ScreenDescription> notchScreen(
      const std::vector<ScreenDescription>& screens,
      const std::optional<ScreenDescription>& mainScreen);

  // Height: the larger of the top inset and the top bar's thickness (the fallback height when both
  // are 0). Width: the gap between the two menu-bar strips beside the housing when both exist and
  // the gap exceeds the minimum credible gap, else the fallback width.
  static Size measureNotch(const ScreenDescription& screen, double statusBarThickness);

  // The notch size after a re-measurement: `previous` when there is no notch screen.
  static Size recomputeNotch(const std::optional<ScreenDescription>& notchScreen,
                             double statusBarThickness, Size previous);

  // The panel centred on the screen's top edge: 600 wide, notch height + 116 tall (600 × `scale`
  // wide, notch height + 116 × `scale` tall).
  static Rect panelFrame(const Rect& screenFrame, Size notchSize, double scale = 1.0);

  // The tracker's screen and trigger sizes for a notch: hidden width notch width + 20, shown width
  // 616 whatever the notch, hidden height the notch height, shown height notch height + 130. The
  // shown pair covers the open panel, so its 616 and 130 are `scale` times larger; the hidden pair
  // surrounds the notch and keeps its size.
  static TrackerGeometry trackerGeometry(const std::optional<Rect>& notchScreenFrame,
                                         Size notchSize, double scale = 1.0);

  // All of the above from the desktop's current screens, for a panel at `scale`.
  static NotchPlacement place(const ScreenPort& screens, Size previousNotchSize,
                              double scale = 1.0);
};

}  // namespace brimly
