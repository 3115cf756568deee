#include "settingswindow/views/ChoiceButton.h"

#include <QKeyEvent>

#include "ui/FocusRing.h"

namespace brimly {

ChoiceButton::ChoiceButton(QWidget* parent) : QAbstractButton(parent) {
  setCheckable(true);
  setFocusPolicy(Qt::StrongFocus);
  FocusRing::watchInput();
  connect(this, &QAbstractButton::clicked, this, &ChoiceButton::chosenRequested);
}

void ChoiceButton::setChosen(bool chosen) {
  if (isChecked() == chosen) return;
  setChecked(chosen);
  QAccessible::State changed;
  changed.checked = true;
  QAccessibleStateChangeEvent event(this, changed);
  QAccessible::updateAccessibility(&event);
}

void ChoiceButton::addAccessibleState(QAccessible::State& state) const {
  state.checkable = true;
  state.checked = isChosen();
}

void ChoiceButton::keyPressEvent(QKeyEvent* event) {
  // Space is the button's own key; Return and Enter choose as well.
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
    event->accept();
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

}  // namespace brimly
