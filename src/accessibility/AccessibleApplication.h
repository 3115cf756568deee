#pragma once

#include <QAccessibleApplication>
#include <QObjectList>

namespace brimly {

// The application as assistive technologies read it: every top-level window, as Qt lists them,
// and also each pop-up while it is open. Qt leaves pop-ups out because a menu is reached through
// its menu bar, but Brimly's control card is a pop-up on X11 (it holds the pointer while it is
// open), and nothing else leads to it.
class AccessibleApplication : public QAccessibleApplication {
 public:
  int childCount() const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* child(int index) const override;

 private:
  static QObjectList windows();
};

}  // namespace brimly
