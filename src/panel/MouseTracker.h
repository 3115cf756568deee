#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "core/Geometry.h"
#include "panel/TrackerGeometry.h"
#include "platform/HoverZonePort.h"
#include "platform/PointerPort.h"
#include "platform/ScreenPort.h"

namespace brimly {

// Watches the pointer anywhere on the desktop and decides whether it is inside a trigger
// rectangle hung from the top edge of the notch screen. The rectangle is small while the pointer
// is outside and large while it is inside, so the open panel stays open while the pointer is
// anywhere over it. Each change of the decision is reported through `onChange`.
//
// A desktop that shows only whether the pointer is over a zone of the panel (a hover zone port)
// decides by itself instead: the tracker takes its word, and gives it the zone that matches the
// rectangle above — the closed outline while the pointer is outside, the open card while it is
// inside — or none while the panel is pinned, so that the pinned card takes no click.
//
// Main thread only: the ports deliver their calls there.
class MouseTracker {
 public:
  // The ports must outlive the tracker's watching (until `stop`). With `zone`, the pointer port
  // and the geometry go unused.
  MouseTracker(PointerPort& pointer, const ScreenPort& screens, HoverZonePort* zone = nullptr);
  // Does not stop watching (call `stop` for that); movement reported afterwards is ignored.
  ~MouseTracker();

  MouseTracker(const MouseTracker&) = delete;
  MouseTracker& operator=(const MouseTracker&) = delete;

  // Told the new decision each time it changes, never twice in a row with the same value.
  void setOnChange(std::function<void(bool inside)> onChange);
  // Takes effect at the next evaluation; does not evaluate by itself.
  void setGeometry(const TrackerGeometry& geometry);
  const TrackerGeometry& geometry() const { return geometry_; }
  bool isInside() const { return isInside_; }
  bool isWatching() const { return watching_; }

  // Starts watching the pointer and evaluates once. Does nothing while already watching; when
  // the desktop offers no pointer watching it still evaluates once, and a later call tries again.
  void start();
  // Stops watching. The decision and `onChange` are kept.
  void stop();
  // Reads the pointer now and updates the decision, reporting a change. An unknown pointer
  // position, like a desktop without screens, counts as outside. Nothing to read with a zone.
  void evaluate();
  // Whether the panel is pinned open. With a zone: pinned, the zone is none and the pointer counts
  // as outside (reported once); released, the closed outline is the zone again. Without one it
  // changes nothing.
  void setPinned(bool pinned);

  // The zone for the hover zone port: none while pinned, else the one matching `inside`.
  static HoverZonePort::Zone zoneFor(bool pinned, bool inside);

  // The decision for pointer `p` against `frame`, given the previous decision: the trigger zone is
  // the rectangle of the current state's width centred on the frame's middle, reaching down from
  // the frame's top edge by the current state's height, all edges inclusive.
  static bool decide(Point p, const Rect& frame, bool wasInside, const TrackerGeometry& geometry);

  // The frame the pointer is tested against: `screenFrame` when set, else the first screen whose
  // frame contains `p`, else the main screen's frame, else none.
  static std::optional<Rect> referenceFrame(Point p, const std::optional<Rect>& screenFrame,
                                            const std::vector<ScreenDescription>& screens,
                                            const std::optional<ScreenDescription>& mainScreen);

 private:
  void update(bool inside);
  void zoneReported(bool inside);
  void applyZone();

  PointerPort& pointer_;
  const ScreenPort& screens_;
  HoverZonePort* zone_;
  bool pinned_ = false;
  std::function<void(bool)> onChange_;
  TrackerGeometry geometry_;
  bool isInside_ = false;
  bool watching_ = false;
  // Movement callbacks hold this weakly, so that they do nothing once the tracker is gone.
  std::shared_ptr<MouseTracker*> self_;
};

}  // namespace brimly
