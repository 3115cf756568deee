#include "panel/PanelLaunch.h"

#include "panel/MouseTracker.h"
#include "panel/ProximityController.h"
#include "sampling/SamplingRateControl.h"

namespace brimly {

namespace {

void run(const std::function<void()>& hook) {
  if (hook) hook();
}

}  // namespace

PanelLaunch::PanelLaunch(ProximityController& proximity, MouseTracker& tracker,
                         SamplingRateControl& monitor)
    : proximity_(proximity), tracker_(tracker), monitor_(monitor) {}

void PanelLaunch::launch(bool persistedPin, const PanelLaunchHooks& hooks) {
  proximity_.restorePin(persistedPin);
  run(hooks.recomputeNotch);
  run(hooks.buildWindow);
  run(hooks.buildStatusItem);
  run(hooks.placePanel);
  monitor_.restartTimer(SamplingRateControl::closedInterval);
  proximity_.openIfPinned();
  run(hooks.applyTrackerGeometry);
  tracker_.setOnChange(proximity_.proximityHandler());
  tracker_.start();
  run(hooks.observeScreenChanges);
  run(hooks.installSettingsShortcut);
}

void PanelLaunch::shutdown(const PanelShutdownHooks& hooks) {
  run(hooks.cancelSamplingTimer);
  tracker_.stop();
  run(hooks.removeSettingsShortcut);
}

}  // namespace brimly
