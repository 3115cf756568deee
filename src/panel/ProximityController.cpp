#include "panel/ProximityController.h"

#include <cmath>
#include <utility>

#include "panel/MouseTracker.h"
#include "panel/PanelState.h"
#include "sampling/SamplingRateControl.h"

namespace brimly {

ProximityController::ProximityController(PanelState& panelState, SamplingRateControl& monitor,
                                         MainScheduler& scheduler,
                                         std::function<bool()> pointerInside)
    : panelState_(panelState),
      monitor_(monitor),
      scheduler_(scheduler),
      pointerInside_(std::move(pointerInside)),
      self_(std::make_shared<ProximityController*>(this)) {}

ProximityController::ProximityController(PanelState& panelState, SamplingRateControl& monitor,
                                         MainScheduler& scheduler, const MouseTracker& tracker)
    : ProximityController(panelState, monitor, scheduler,
                          [&tracker] { return tracker.isInside(); }) {}

ProximityController::~ProximityController() = default;

void ProximityController::handleProximity(bool inside) {
  if (isPinned_) return;
  if (inside) {
    cancelPendingClose();
    // Already open (closing, or shown temporarily): only the pending close was in the way, and the
    // sampling rate is already the fast one.
    if (!panelState_.isOpen()) open();
  } else {
    // The close this replaces is deliberately left scheduled: it runs and decides for itself.
    scheduleClose(closeGracePeriod);
  }
}

void ProximityController::showPanelTemporarily(double duration) {
  cancelPendingClose();
  open();
  scheduleClose(std::isfinite(duration) && duration > 0 ? duration : 0.0);
}

void ProximityController::setPinned(bool pinned) {
  isPinned_ = pinned;
  if (onPinChange_) onPinChange_(pinned);
  cancelPendingClose();
  const bool open = pinned || (pointerInside_ && pointerInside_());
  panelState_.setOpen(open);
  if (open != monitor_.panelOpen()) {
    monitor_.setPanelOpenFlag(open);
    monitor_.restartTimer(open ? SamplingRateControl::openInterval
                               : SamplingRateControl::closedInterval);
  }
}

std::function<void(bool)> ProximityController::proximityHandler() {
  std::weak_ptr<ProximityController*> weak = self_;
  return [weak](bool inside) {
    if (auto self = weak.lock()) (*self)->handleProximity(inside);
  };
}

void ProximityController::setOnPinChange(std::function<void(bool)> onPinChange) {
  onPinChange_ = std::move(onPinChange);
}

void ProximityController::restorePin(bool pinned) {
  isPinned_ = pinned;
}

void ProximityController::openIfPinned() {
  if (isPinned_) open();
}

void ProximityController::open() {
  panelState_.setOpen(true);
  if (!monitor_.panelOpen()) {
    monitor_.setPanelOpenFlag(true);
    monitor_.restartTimer(SamplingRateControl::openInterval);
  }
}

void ProximityController::scheduleClose(double delay) {
  std::weak_ptr<ProximityController*> weak = self_;
  hideWorkItem_ = scheduler_.runAfter(delay, [weak] {
    if (auto self = weak.lock()) (*self)->closeUnlessHeld();
  });
}

void ProximityController::closeUnlessHeld() {
  // Decided now, not when the close was scheduled.
  if (isPinned_ || (pointerInside_ && pointerInside_())) return;
  panelState_.setOpen(false);
  if (monitor_.panelOpen()) {
    monitor_.setPanelOpenFlag(false);
    monitor_.restartTimer(SamplingRateControl::closedInterval);
  }
}

void ProximityController::cancelPendingClose() {
  if (hideWorkItem_) hideWorkItem_->cancel();
  hideWorkItem_.reset();
}

}  // namespace brimly
