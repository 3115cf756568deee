#pragma once

#include <QWidget>
#include <functional>

#include "accessibility/AccessibleParts.h"
#include "core/Geometry.h"

namespace brimly {

class PanelState;
class RootView;

// The overlay that lies over the notch: a borderless, always-on-top, transparent top-level window
// that never takes the focus, lets every click through to what lies beneath, and stays out of the
// task bar. It is 600 points wide and as high as the notch plus the open content (a larger panel
// multiplies the 600 and the content by its scale), and all it shows is its root view.
//
// The window never shows itself. The application creates its native window (`winId()`), adds the
// platform's own hints to it (window type, level, input shape, collection behaviour), places it
// with `setFrame` and shows it.
class PanelWindow : public QWidget, public AccessibleParts {
  Q_OBJECT

 public:
  // Makes the metric grid for a new root view; may return null (an empty card).
  using GridFactory = std::function<QWidget*()>;

  // `hasNotch`: the screen has a camera housing that hides the closed card (see RootViewMetrics).
  // `scale`: what every length of the open card is multiplied by (see `scaleOf`); the grid the
  // factory makes is expected to be drawn at the same scale.
  PanelWindow(PanelState& state, Size notchSize, bool hasNotch, GridFactory makeGrid = {},
              double scale = 1.0, QWidget* parent = nullptr);
  ~PanelWindow() override;

  // The window size for a notch: 600 × (notch height + 116), at `scale` 600 × `scale` ×
  // (notch height + 116 × `scale`).
  static Size panelSize(Size notchSize, double scale = 1.0);

  // Places the window on screen; `frame` is in global coordinates with the origin at the top left.
  void setFrame(const Rect& frame);

  // Replaces the root view by one built for a newly measured notch or a new scale, with the same
  // panel state and a new grid from the factory. The window keeps its frame until the next
  // `setFrame`.
  void rebuildRootView(Size notchSize, bool hasNotch, double scale = 1.0);

  RootView* rootView() const { return rootView_; }

  QAccessible::Role accessibleRole() const override { return QAccessible::Window; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  PanelState& state_;
  GridFactory makeGrid_;
  RootView* rootView_ = nullptr;
};

}  // namespace brimly
