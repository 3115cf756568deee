#include "accessibility/AccessibleWidget.h"

#include <QAbstractButton>

#include "accessibility/AccessibleParts.h"
#include "accessibility/DrawnTextAccessible.h"

namespace brimly {

AccessibleWidget::AccessibleWidget(QWidget* widget, AccessibleParts& parts)
    : QAccessibleWidget(widget), parts_(parts) {}

AccessibleWidget::~AccessibleWidget() {
  for (const QAccessible::Id id : drawnChildren_)
    QAccessible::deleteAccessibleInterface(id);
}

QAccessible::Role AccessibleWidget::role() const {
  return parts_.accessibleRole();
}

QAccessible::State AccessibleWidget::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  parts_.addAccessibleState(state);
  return state;
}

int AccessibleWidget::drawnCount() const {
  return static_cast<int>(parts_.drawnTexts().size());
}

QAccessibleInterface* AccessibleWidget::drawnChild(int index) const {
  while (static_cast<int>(drawnChildren_.size()) <= index) {
    auto* text = new DrawnTextAccessible(widget(), static_cast<int>(drawnChildren_.size()));
    drawnChildren_.push_back(QAccessible::registerAccessibleInterface(text));
  }
  return QAccessible::accessibleInterface(drawnChildren_[static_cast<std::size_t>(index)]);
}

int AccessibleWidget::childCount() const {
  return drawnCount() + QAccessibleWidget::childCount();
}

QAccessibleInterface* AccessibleWidget::child(int index) const {
  if (index < 0) return nullptr;
  const int drawn = drawnCount();
  if (index < drawn) return drawnChild(index);
  return QAccessibleWidget::child(index - drawn);
}

int AccessibleWidget::indexOfChild(const QAccessibleInterface* child) const {
  if (child == nullptr) return -1;
  const int drawn = drawnCount();
  if (child->object() == nullptr) {
    for (int i = 0; i < drawn && i < static_cast<int>(drawnChildren_.size()); ++i) {
      if (QAccessible::accessibleInterface(drawnChildren_[static_cast<std::size_t>(i)]) == child) {
        return i;
      }
    }
    return -1;
  }
  const int index = QAccessibleWidget::indexOfChild(child);
  return index < 0 ? -1 : drawn + index;
}

QStringList AccessibleWidget::actionNames() const {
  QStringList names = QAccessibleWidget::actionNames();
  const auto* button = qobject_cast<const QAbstractButton*>(widget());
  if (button != nullptr && button->isEnabled()) {
    names.prepend(button->isCheckable() ? QAccessibleActionInterface::toggleAction()
                                        : QAccessibleActionInterface::pressAction());
  }
  return names;
}

void AccessibleWidget::doAction(const QString& actionName) {
  auto* button = qobject_cast<QAbstractButton*>(widget());
  const bool clicks = actionName == QAccessibleActionInterface::pressAction() ||
                      actionName == QAccessibleActionInterface::toggleAction();
  if (button != nullptr && clicks) {
    // Exactly what a click does: a switch asks for the other state rather than taking it.
    if (button->isEnabled()) button->click();
    return;
  }
  QAccessibleWidget::doAction(actionName);
}

}  // namespace brimly
