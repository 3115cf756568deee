#pragma once

#include <optional>

#include "core/Geometry.h"

namespace brimly {

// Where the pointer tracker looks: the notch screen's frame and the trigger rectangle's sizes.
// The "hidden" pair applies while the pointer is outside, the "shown" pair while it is inside, so
// the zone is small around the notch until the pointer arrives and then covers the open panel.
//
// The defaults are placeholders, in force only until the notch has been measured; they are kept
// exactly as they are because a tracker started early uses them.
struct TrackerGeometry {
  // None means: use the screen under the pointer.
  std::optional<Rect> screenFrame;
  double triggerWidthHidden = 220.0;
  double triggerWidthShown = 740.0;
  double triggerHeightHidden = 32.0;
  double triggerHeightShown = 140.0;

  bool operator==(const TrackerGeometry&) const = default;
};

}  // namespace brimly
