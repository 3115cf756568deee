#pragma once

#include <QWidget>

#include "accessibility/AccessibleParts.h"
#include "settingswindow/SettingsTab.h"
#include "settingswindow/SettingsViewLayout.h"

namespace brimly {

class AppSettings;
class AppearanceTab;
class ControlPanelModel;
class GeneralTab;
class MetricsTab;
class SystemMonitor;
class TabBar;
class TabButton;

// The settings window's content, 360 × 468: a header with the gauge, "Brimly" and the version,
// the tab bar ("General", "Metrics", "Appearance"), a hairline, and the selected tab's content
// below. The selected tab is view state: it starts at General when the view is made and lasts as
// long as the view does, so hiding and showing the window again keeps it. The name and version it
// paints are read as labels.
class SettingsView : public QWidget, public AccessibleParts {
  Q_OBJECT

 public:
  static constexpr const char* headerSymbol = "gauge.with.dots.needle.bottom.50percent";

  // `settings`, `control` and `monitor` must outlive the view.
  SettingsView(AppSettings& settings, ControlPanelModel& control, const SystemMonitor& monitor,
               QWidget* parent = nullptr);

  SettingsTab tab() const { return tab_; }
  void setTab(SettingsTab tab);

  const SettingsViewGeometry& placement() const { return geometry_; }
  TabBar& tabBar() const { return *tabBar_; }
  TabButton& tabButton(SettingsTab tab) const;
  GeneralTab& generalTab() const { return *general_; }
  MetricsTab& metricsTab() const { return *metrics_; }
  AppearanceTab& appearanceTab() const { return *appearance_; }
  // The content shown for the selected tab.
  QWidget& content() const;

  QSize sizeHint() const override;

  QAccessible::Role accessibleRole() const override { return QAccessible::Client; }
  std::vector<DrawnText> drawnTexts() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString versionLine() const;
  // Marks the selected tab's button and shows its content alone.
  void showTab();

  ControlPanelModel& control_;
  SettingsTab tab_ = SettingsTab::general;
  SettingsViewGeometry geometry_;
  TabBar* tabBar_;
  GeneralTab* general_;
  MetricsTab* metrics_;
  AppearanceTab* appearance_;
};

}  // namespace brimly
