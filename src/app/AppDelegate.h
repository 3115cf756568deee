#pragma once

#include <QObject>
#include <memory>
#include <optional>

#include "core/Geometry.h"
#include "panel/MouseTracker.h"
#include "panel/NotchGeometry.h"
#include "panel/PanelLaunch.h"
#include "panel/PanelState.h"
#include "panel/ProximityController.h"
#include "platform/qt/QtMainScheduler.h"
#include "platform/qt/QtSamplingQueue.h"
#include "sampling/SystemMonitor.h"
#include "settings/AppSettings.h"
#include "ui/AccentFollower.h"

class QScreen;
class QWidget;

namespace brimly {

class AboutWindowController;
class ControlPanelController;
class ControlPanelModel;
class ControlPanelWindow;
class DesktopIntegration;
class KeyValueStore;
class PanelWindow;
class PlatformFactory;
class ScreenPort;
class SettingsShortcutFilter;
class SettingsWindowController;
struct ControlPanelServices;

// The spine of the interactive program: owns every long-lived object of the notch panel for the
// life of the process, brings them up in order at launch, follows screen changes, and takes them
// down at termination. Every decision (geometry, proximity, sampling rate) belongs to the objects
// it owns; this class only wires them to Qt and to the desktop. Main thread only.
class AppDelegate : public QObject {
  Q_OBJECT

 public:
  // The readers of the system, the preferences store and the desktop integration; all three must
  // outlive the delegate.
  AppDelegate(const PlatformFactory& platform, KeyValueStore& defaults, DesktopIntegration& desktop,
              QObject* parent = nullptr);
  ~AppDelegate() override;

  // Builds and shows the panel, starts sampling and the pointer tracker, observes the screens.
  void applicationDidFinishLaunching();
  // Stops sampling and pointer tracking, and stops watching for the settings shortcut.
  void applicationWillTerminate();
  // Closes an open control card, re-measures the notch, rebuilds the root view for it, re-aims the
  // tracker and re-places the panel. Screen signals arrive in bursts, so they ask for this once,
  // after the burst.
  void screenParamsChanged();
  // Rebuilds the root view and its grid at the chosen panel size, re-aims the tracker and
  // re-places the panel: on a new panel size, and for the screens' changes above.
  void refitPanel();

  SystemMonitor& monitor() { return monitor_; }
  const MouseTracker& tracker() const { return tracker_; }
  PanelState& panelState() { return panelState_; }
  AppSettings& settings() { return settings_; }
  ProximityController& proximity() { return proximity_; }
  PanelWindow* window() const { return window_.get(); }
  Size notchSize() const { return notchSize_; }
  ControlPanelModel* controlModel() const { return controlModel_.get(); }
  ControlPanelController* controlPanelController() const { return controlPanel_.get(); }
  ControlPanelWindow* controlPanel() const { return controlPanelWindow_.get(); }
  SettingsWindowController* settingsController() const { return settingsController_.get(); }
  AboutWindowController& aboutController() { return *aboutController_; }
  // Whether the status item found somewhere to show (a system tray, the menu bar).
  bool hasStatusItem() const { return hasStatusItem_; }

  // A second launch asks for the controls. Where the desktop showed no tray at launch, the card
  // opens under the status item if one has come up since, else where the desktop says (at the
  // pointer where it can be read); where it did, nothing happens (a second launch leaves
  // silently, as everywhere).
  void showControlsOnRequest();

 private:
  void recomputeNotch();
  // What every length of the open panel is multiplied by, for the chosen panel size.
  double panelScale() const;
  void buildWindow();
  void buildStatusItem();
  void buildControlPanel();
  void showSettingsBesideTheCard();
  // The settings or About window has just been made: dressed by the desktop, and movable by its
  // background.
  void titledWindowMade(QWidget& window);
  void fitControlCardToDesktop();
  void installSettingsShortcut();
  void removeSettingsShortcut();
  void placePanel();
  void applyTrackerGeometry();
  void observeScreenChanges();
  void observeScreen(QScreen* screen);
  void queueScreenParamsChanged();

  DesktopIntegration& desktop_;
  QtSamplingQueue samplingQueue_;
  QtMainScheduler scheduler_;
  const ScreenPort& screens_;

  // The long-lived models, made in this order.
  SystemMonitor monitor_;
  MouseTracker tracker_;
  PanelState panelState_;
  AppSettings settings_;
  // Every window's accent follows the user's choice (and the desktop's colour for "System").
  AccentFollower accent_{settings_};

  ProximityController proximity_;
  PanelLaunch launch_;
  Size notchSize_ = NotchGeometry::initialNotchSize;
  NotchPlacement placement_;
  std::unique_ptr<PanelWindow> window_;
  std::unique_ptr<AboutWindowController> aboutController_;
  bool hasStatusItem_ = false;
  std::unique_ptr<ControlPanelModel> controlModel_;
  std::shared_ptr<ControlPanelServices> controlServices_;
  std::unique_ptr<SettingsWindowController> settingsController_;
  std::unique_ptr<ControlPanelWindow> controlPanelWindow_;
  std::unique_ptr<ControlPanelController> controlPanel_;
  std::unique_ptr<SettingsShortcutFilter> commaMonitor_;
  bool screenChangeQueued_ = false;
  bool terminated_ = false;
};

}  // namespace brimly
