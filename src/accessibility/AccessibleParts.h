#pragma once

#include <QAccessible>
#include <QRectF>
#include <QString>
#include <vector>

namespace brimly {

// A text (or a picture) that a widget paints itself, so that it has no widget of its own: an
// assistive technology reads it as a child of the widget, with its role, its name and where it
// lies in the widget.
struct DrawnText {
  QString name;
  QString description;
  QRectF frame;  // in the widget's coordinates
  QAccessible::Role role = QAccessible::StaticText;

  bool operator==(const DrawnText&) const = default;
};

// What a widget of Brimly tells assistive technologies beyond what Qt knows of a plain widget:
// what it is (its role), what its state adds (a selected tab), and the texts it paints itself.
// A widget that derives from it is read through `AccessibleWidget`; its name and description are
// its own `accessibleName` and `accessibleDescription`. Everything is asked for when a client
// reads it, never computed ahead.
class AccessibleParts {
 public:
  AccessibleParts();
  virtual ~AccessibleParts() = default;

  virtual QAccessible::Role accessibleRole() const = 0;
  virtual void addAccessibleState(QAccessible::State& state) const { (void)state; }
  // Read before the widget's child widgets, top to bottom.
  virtual std::vector<DrawnText> drawnTexts() const { return {}; }

 protected:
  AccessibleParts(const AccessibleParts&) = default;
  AccessibleParts& operator=(const AccessibleParts&) = default;
};

}  // namespace brimly
