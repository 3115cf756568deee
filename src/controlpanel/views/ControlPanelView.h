#pragma once

#include <QImage>
#include <QWidget>
#include <array>

#include "accessibility/AccessibleParts.h"
#include "controlpanel/ControlPanelLayout.h"

namespace brimly {

class ActionButton;
class ControlPanelModel;
class Switch;

// The control card: a header with the product's name and version, three switches under
// "SETTINGS", and the footer's four buttons, on a dark rounded card with its own shadow. It only
// shows the model and calls its callbacks; it redraws whenever the model changes. The texts it
// paints (the name, the version and the section's caption) are read as labels.
class ControlPanelView : public QWidget, public AccessibleParts {
  Q_OBJECT

 public:
  // `model` must outlive the view.
  explicit ControlPanelView(ControlPanelModel& model, QWidget* parent = nullptr);

  const ControlPanelLayout& layout() const { return layout_; }
  // The card with its shadow's margin: the size its window takes.
  QSize sizeHint() const override;

  // The pieces, in the order Tab walks through them.
  Switch& pinSwitch() const { return *switches_[0]; }
  Switch& launchSwitch() const { return *switches_[1]; }
  Switch& fahrenheitSwitch() const { return *switches_[2]; }
  ActionButton& button(std::size_t index) const { return *buttons_[index]; }

  QAccessible::Role accessibleRole() const override { return QAccessible::Client; }
  std::vector<DrawnText> drawnTexts() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void showModel();
  void paintShadow(QPainter& painter);

  ControlPanelModel& model_;
  ControlPanelLayout layout_;
  std::array<Switch*, 3> switches_{};
  std::array<ActionButton*, 4> buttons_{};
  QImage shadow_;
};

}  // namespace brimly
