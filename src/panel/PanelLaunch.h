#pragma once

#include <functional>

namespace brimly {

class MouseTracker;
class ProximityController;
class SamplingRateControl;

// The platform's own steps of bringing the panel up, called by `PanelLaunch::launch` in their
// place in the sequence. An empty hook is skipped.
struct PanelLaunchHooks {
  std::function<void()> recomputeNotch;   // measure the notch
  std::function<void()> buildWindow;      // create the overlay panel and its root view
  std::function<void()> buildStatusItem;  // the status item, control panel and settings window
  // Frame the panel over the notch (when there is a notch screen) and bring it to the front.
  std::function<void()> placePanel;
  std::function<void()> applyTrackerGeometry;  // give the tracker its screen and trigger sizes
  std::function<void()> observeScreenChanges;
  std::function<void()> installSettingsShortcut;  // the Command-comma key monitor
};

// The platform's own steps of taking the panel down at termination.
struct PanelShutdownHooks {
  std::function<void()> cancelSamplingTimer;
  std::function<void()> removeSettingsShortcut;
};

// The order in which the notch panel comes up at launch and goes down at termination. The steps
// between the panel's logic objects are taken here; the platform's steps are hooks, so that the
// whole order can be checked without a desktop.
class PanelLaunch {
 public:
  // All three must outlive the calls below.
  PanelLaunch(ProximityController& proximity, MouseTracker& tracker, SamplingRateControl& monitor);

  // 1. take the persisted pin; 2.–4. measure and build (hooks); 5.–6. place and show the panel
  // (hook); 7. sample at the slow rate; 8. a pin opens the panel and switches to the fast rate;
  // 9. the tracker's geometry (hook); 10. the tracker reports to the proximity rules; 11. the
  // tracker starts; 12.–13. screen changes and the settings shortcut (hooks).
  void launch(bool persistedPin, const PanelLaunchHooks& hooks);

  // Cancels the sampling timer (hook), stops the tracker, removes the settings shortcut (hook).
  void shutdown(const PanelShutdownHooks& hooks);

 private:
  ProximityController& proximity_;
  MouseTracker& tracker_;
  SamplingRateControl& monitor_;
};

}  // namespace brimly
