#pragma once

#include <QWidget>

#include "accessibility/AccessibleParts.h"

namespace brimly {

class AppSettings;
class SystemMonitor;
class UsageView;

// The Appearance tab's live preview: the notch panel's own grid, fed with every sample the monitor
// applies, drawn in miniature on the panel's black card. The grid itself is never shown on screen:
// the preview paints it scaled to fit its width, so that its text stays sharp. A large panel fills
// the width and a regular one is drawn a quarter smaller, as the two compare on the screen. The
// grid follows the settings' metrics, unit, trend and panel size at once; its cells are read by
// assistive technologies through the preview.
class AppearancePreview : public QWidget, public AccessibleParts {
  Q_OBJECT

 public:
  static constexpr double padding = 8.0;
  static constexpr double cornerRadius = 10.0;

  // `settings` and `monitor` must outlive the preview.
  AppearancePreview(AppSettings& settings, const SystemMonitor& monitor, QWidget* parent = nullptr);

  UsageView& grid() const { return *grid_; }
  // How much smaller than the panel's the grid is drawn now.
  double gridScale() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return QSize(0, sizeHint().height()); }

  QAccessible::Role accessibleRole() const override { return QAccessible::Grouping; }
  std::vector<DrawnText> drawnTexts() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  // The grid's top left corner in the preview, where it is drawn at `gridScale`.
  QPointF gridOrigin() const;

  AppSettings& settings_;
  UsageView* grid_;
};

}  // namespace brimly
