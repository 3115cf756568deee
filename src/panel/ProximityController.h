#pragma once

#include <functional>
#include <memory>

#include "platform/MainScheduler.h"

namespace brimly {

class MouseTracker;
class PanelState;
class SamplingRateControl;

// Decides when the notch panel is open. The pointer entering the trigger zone opens it at once;
// leaving closes it after a short grace period; the "keep panel visible" pin holds it open; the
// control panel can show it for a while. Every change of the open state is mirrored into the
// sampling rate: fast while open, slow while closed, and the timer is restarted only when the
// monitor's flag actually changes.
//
// Main thread only; pending closes are tasks on the main scheduler.
class ProximityController {
 public:
  static constexpr double closeGracePeriod = 0.4;          // seconds from leaving to closing
  static constexpr double temporaryShowingDuration = 5.0;  // what the control panel asks for

  // `pointerInside` answers whether the tracker currently sees the pointer in its trigger zone;
  // it is asked when a pending close runs and when the pin is released.
  ProximityController(PanelState& panelState, SamplingRateControl& monitor,
                      MainScheduler& scheduler, std::function<bool()> pointerInside);
  // The same, reading the pointer from `tracker`, which must outlive the controller.
  ProximityController(PanelState& panelState, SamplingRateControl& monitor,
                      MainScheduler& scheduler, const MouseTracker& tracker);
  // Pending closes that run afterwards do nothing.
  ~ProximityController();

  ProximityController(const ProximityController&) = delete;
  ProximityController& operator=(const ProximityController&) = delete;

  bool isPinned() const { return isPinned_; }
  // Whether a close is scheduled and has been neither cancelled nor replaced. A close that has
  // already run still counts until it is replaced or cleared, which is harmless: cancelling it
  // then has no effect.
  bool hasPendingClose() const { return hideWorkItem_ != nullptr; }

  // Called with each report of the tracker. A pinned panel ignores the pointer. Entering cancels a
  // pending close and opens the panel; leaving schedules a close after the grace period, without
  // cancelling an earlier one (each close decides for itself when it runs).
  void handleProximity(bool inside);
  // A callback for the tracker's `onChange` that forwards to `handleProximity` while the
  // controller exists and does nothing afterwards.
  std::function<void(bool inside)> proximityHandler();

  // Opens the panel now and closes it after `duration` seconds unless by then the pointer is
  // inside or the panel is pinned. A duration that is negative, infinite or not a number counts
  // as 0.
  void showPanelTemporarily(double duration);

  // The "keep panel visible" switch. Cancels any pending close; pinning opens the panel, and
  // unpinning leaves it open only while the pointer is inside (otherwise it closes at once, with
  // no grace period). `onPinChange` runs right after the pin is taken and before the panel
  // changes: that is where the caller persists the pin and updates the control panel's model.
  void setPinned(bool pinned);
  void setOnPinChange(std::function<void(bool pinned)> onPinChange);

  // At launch: takes the persisted pin without persisting it again.
  void restorePin(bool pinned);
  // At launch, after sampling has started at the slow rate: a restored pin opens the panel.
  void openIfPinned();

 private:
  void open();
  void scheduleClose(double delay);
  void closeUnlessHeld();
  void cancelPendingClose();

  PanelState& panelState_;
  SamplingRateControl& monitor_;
  MainScheduler& scheduler_;
  std::function<bool()> pointerInside_;
  std::function<void(bool)> onPinChange_;
  bool isPinned_ = false;
  std::shared_ptr<DeferredTask> hideWorkItem_;
  // Deferred closes hold this weakly, so that they do nothing once the controller is gone.
  std::shared_ptr<ProximityController*> self_;
};

}  // namespace brimly
