#include "accessibility/Accessibility.h"

#include <QCoreApplication>
#include <QWidget>

#include "accessibility/AccessibleApplication.h"
#include "accessibility/AccessibleParts.h"
#include "accessibility/AccessibleWidget.h"

namespace brimly {

namespace {

// Qt asks once per object, with each class name from the most derived one up; the first answer
// is kept for the object's life.
QAccessibleInterface* makeInterface(const QString&, QObject* object) {
  if (object == nullptr) return nullptr;
  if (object == QCoreApplication::instance()) return new AccessibleApplication();
  if (!object->isWidgetType()) return nullptr;
  auto* widget = static_cast<QWidget*>(object);
  if (auto* parts = dynamic_cast<AccessibleParts*>(widget)) {
    return new AccessibleWidget(widget, *parts);
  }
  return nullptr;
}

}  // namespace

void installAccessibility() {
  static const bool installed = [] {
    QAccessible::installFactory(&makeInterface);
    return true;
  }();
  (void)installed;
}

}  // namespace brimly
