#pragma once

#include <QAbstractButton>

#include "accessibility/AccessibleParts.h"

namespace brimly {

// One option of a set of which exactly one is chosen (an accent swatch, a panel size). Like the
// switches, it never marks itself: a click, Space or Return only emits `chosenRequested`, and the
// button shows whatever `setChosen` last gave it, so it always shows what the settings hold. It
// takes the keyboard focus with Tab. Assistive technologies read it as a radio button, checked
// while it is the chosen one. Subclasses paint it.
class ChoiceButton : public QAbstractButton, public AccessibleParts {
  Q_OBJECT

 public:
  explicit ChoiceButton(QWidget* parent = nullptr);

  bool isChosen() const { return isChecked(); }
  void setChosen(bool chosen);

  QAccessible::Role accessibleRole() const override { return QAccessible::RadioButton; }
  void addAccessibleState(QAccessible::State& state) const override;

 signals:
  void chosenRequested();

 protected:
  void nextCheckState() override {}
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace brimly
