#include "accessibility/AccessibleApplication.h"

#include <QGuiApplication>
#include <QWindow>

namespace brimly {

QObjectList AccessibleApplication::windows() {
  QObjectList roots;
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    const Qt::WindowType type = window->type();
    if (type == Qt::Desktop || (type == Qt::Popup && !window->isVisible())) continue;
    QAccessibleInterface* root = window->accessibleRoot();
    if (root != nullptr && root->object() != nullptr) roots.append(root->object());
  }
  return roots;
}

int AccessibleApplication::childCount() const {
  return static_cast<int>(windows().size());
}

int AccessibleApplication::indexOfChild(const QAccessibleInterface* child) const {
  if (child == nullptr) return -1;
  return static_cast<int>(windows().indexOf(child->object()));
}

QAccessibleInterface* AccessibleApplication::child(int index) const {
  const QObjectList roots = windows();
  if (index < 0 || index >= roots.size()) return nullptr;
  return QAccessible::queryAccessibleInterface(roots.at(index));
}

}  // namespace brimly
