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
// task bar. It is 600 points wide and as high as the notch plus the open content, and all it shows
// is its root view.
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
  PanelWindow(PanelState& state, Size notchSize, bool hasNotch, GridFactory makeGrid = {},
              QWidget* parent = nullptr);
  ~PanelWindow() override;

  // The window size for a notch: 600 × (notch height + 116).
  static Size panelSize(Size notchSize);

  // Places the window on screen; `frame` is in global coordinates with the origin at the top left.
  void setFrame(const Rect& frame);

  // Replaces the root view by one built for a newly measured notch, with the same panel state and
  // a new grid from the factory. The window keeps its frame until the next `setFrame`.
  void rebuildRootView(Size notchSize, bool hasNotch);

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
