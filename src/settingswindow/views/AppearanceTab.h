#pragma once

#include <QWidget>
#include <vector>

#include "accessibility/AccessibleParts.h"
#include "settingswindow/AppearanceTabLayout.h"

namespace brimly {

class AccentSwatch;
class DesktopAccent;
class AppSettings;
class AppearancePreview;
class SectionLabel;
class SettingRow;
class SizeSegment;
class SystemMonitor;

// The Appearance tab: a live preview of the panel, the accent swatches, the two panel sizes and
// the "Show trend" switch. Like the other tabs it keeps no state of its own: every control shows
// the settings and writes the user's choice to them, and follows them when they change. The
// chosen accent's name, painted at the end of its caption's line, is read as a label.
class AppearanceTab : public QWidget, public AccessibleParts {
  Q_OBJECT

 public:
  static constexpr const char* trendTitle = "Show trend";

  // `settings` and `monitor` must outlive the tab.
  AppearanceTab(AppSettings& settings, const SystemMonitor& monitor, QWidget* parent = nullptr);

  AppearancePreview& preview() const { return *preview_; }
  const std::vector<AccentSwatch*>& swatches() const { return swatches_; }
  const std::vector<SizeSegment*>& sizes() const { return sizes_; }
  SettingRow& trendRow() const { return *trendRow_; }
  const AppearanceTabGeometry& placement() const { return geometry_; }

  QAccessible::Role accessibleRole() const override { return QAccessible::Client; }
  std::vector<DrawnText> drawnTexts() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void showSettings();
  // Shows the desktop's own accent on the System swatch (green where the desktop has none).
  void showDesktopAccent();
  QString accentName() const;
  void relayout();

  AppSettings& settings_;
  DesktopAccent* desktopAccent_;
  SectionLabel* previewLabel_;
  AppearancePreview* preview_;
  SectionLabel* accentLabel_;
  std::vector<AccentSwatch*> swatches_;
  SectionLabel* sizeLabel_;
  std::vector<SizeSegment*> sizes_;
  SettingRow* trendRow_;
  AppearanceTabGeometry geometry_;
};

}  // namespace brimly
