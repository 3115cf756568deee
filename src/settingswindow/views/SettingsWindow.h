#pragma once

#include <QWidget>

#include "accessibility/AccessibleParts.h"

namespace brimly {

class AppSettings;
class ControlPanelModel;
class SettingsView;
class SystemMonitor;

// The settings window: titled "Brimly Settings", dark whatever the desktop's scheme, with a
// close button but no minimise or maximise button, and a content area fixed at 360 × 468. Closing
// it (the close button, Escape, or the platform's close shortcut) only hides it, so that showing
// it again brings back the same window on the same tab.
class SettingsWindow : public QWidget, public AccessibleParts {
  Q_OBJECT

 public:
  static constexpr const char* title = "Brimly Settings";

  SettingsWindow(AppSettings& settings, ControlPanelModel& control, const SystemMonitor& monitor,
                 QWidget* parent = nullptr);

  SettingsView& view() const { return *view_; }

  QAccessible::Role accessibleRole() const override { return QAccessible::Window; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  SettingsView* view_;
};

}  // namespace brimly
