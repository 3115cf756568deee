#pragma once

#include <QPointer>
#include <functional>

#include "settingswindow/views/SettingsWindow.h"

namespace brimly {

class AppSettings;
class ControlPanelModel;
class SettingsView;
class SystemMonitor;

// Shows the one settings window of the process. The first `show()` makes it, centred on the
// screen; every `show()` brings that same window to the front and gives it the keyboard. The
// window is never destroyed before the controller: closing it only hides it.
class SettingsWindowController {
 public:
  // `settings`, `control` and `monitor` must outlive the controller.
  SettingsWindowController(AppSettings& settings, ControlPanelModel& control,
                           const SystemMonitor& monitor);
  ~SettingsWindowController();
  SettingsWindowController(const SettingsWindowController&) = delete;
  SettingsWindowController& operator=(const SettingsWindowController&) = delete;

  void show();

  // What the desktop adds, if anything: run once the window's native window exists and before it
  // is first shown (a transparent title bar, the dark appearance), and right after every show
  // (activating the application ahead of the others).
  std::function<void(SettingsWindow& window)> onWindowMade;
  std::function<void(SettingsWindow& window)> onShown;

  // The window and its content; null until the first `show()`.
  SettingsWindow* window() const { return window_.data(); }
  SettingsView* view() const;

 private:
  AppSettings& settings_;
  ControlPanelModel& control_;
  const SystemMonitor& monitor_;
  QPointer<SettingsWindow> window_;
};

}  // namespace brimly
