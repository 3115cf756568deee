#pragma once

#include <QWidget>
#include <array>
#include <vector>

#include "accessibility/AccessibleParts.h"
#include "core/Geometry.h"
#include "settingswindow/SettingsViewLayout.h"

namespace brimly {

class TabButton;

// The settings window's tab bar: one button per tab, in the tabs' order, which is also the order
// Tab walks them in. Assistive technologies read it as a list of page tabs, the selected one
// marked as such.
class TabBar : public QWidget, public AccessibleParts {
  Q_OBJECT

 public:
  explicit TabBar(QWidget* parent = nullptr);

  TabButton& button(SettingsTab tab) const { return *buttons_[tab.value()]; }
  // Marks `tab`'s button as the selected one.
  void select(SettingsTab tab);
  // Puts the bar at `bar` and each button at its place in `tabs`, all in the parent's
  // coordinates.
  void place(const Rect& bar, const std::vector<TabButtonGeometry>& tabs);

  QAccessible::Role accessibleRole() const override { return QAccessible::PageTabList; }

 signals:
  void tabClicked(SettingsTab tab);

 private:
  std::array<TabButton*, 3> buttons_{};
};

}  // namespace brimly
