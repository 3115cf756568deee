#pragma once

#include <QWidget>
#include <functional>

#include "accessibility/AccessibleParts.h"
#include "controlpanel/ControlCardWindow.h"

namespace brimly {

class ControlPanelModel;
class ControlPanelView;

// The borderless window the control card drops down in: transparent around the card, which draws
// its own shadow, never in a task bar, and either a pop-up that holds the pointer while it is
// shown (X11: it sees the press that closes it) or a plain key window (macOS: outside clicks come
// from a monitor). Escape closes it through `onEscape`. Every time it is shown, its first switch
// has the keyboard focus, without a focus ring. Assistive technologies read it as the dialog
// "Brimly".
class ControlPanelWindow : public QWidget, public ControlCardWindow, public AccessibleParts {
  Q_OBJECT

 public:
  enum class Kind { popUp, keyWindow };

  ControlPanelWindow(ControlPanelModel& model, Kind kind, QWidget* parent = nullptr);

  // Run when Escape is pressed while the card has the keyboard.
  std::function<void()> onEscape;
  // A pop-up's press outside the card, at the pointer's global bottom-left-origin position.
  // Answers whether the press may go on to the window it landed on once the card is closed.
  std::function<bool(Point pointer)> onPressOutside;
  // Run right after every show, for what the desktop adds (activation, key window).
  std::function<void()> onShown;

  // Without translucency (an X11 desktop with no compositing manager) the window is cut to the
  // card's rounded shape and the shadow is left out.
  void setCutToShape(bool cut);

  ControlPanelView& view() const { return *view_; }

  bool isVisible() const override { return QWidget::isVisible(); }
  Size fittingSize() override;
  void showAt(Point origin, Size size) override;
  void close() override;

  QAccessible::Role accessibleRole() const override { return QAccessible::Dialog; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  ControlPanelView* view_;
};

}  // namespace brimly
