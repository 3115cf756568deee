#pragma once

#include <QWidget>

#include "accessibility/AccessibleParts.h"
#include "settingswindow/AppearanceTabLayout.h"

namespace brimly {

// The Appearance tab: a placeholder that says themes and accent colours are still to come. It has
// no controls. Its two lines are read as labels.
class AppearanceTab : public QWidget, public AccessibleParts {
  Q_OBJECT

 public:
  static constexpr const char* symbolName = "paintpalette";
  static constexpr const char* title = "Themes & accent colors";
  static constexpr const char* subtitle = "Coming in a future update";

  explicit AppearanceTab(QWidget* parent = nullptr);

  // The placeholder laid out in the tab's current size.
  AppearanceTabGeometry placement() const;

  QAccessible::Role accessibleRole() const override { return QAccessible::Client; }
  std::vector<DrawnText> drawnTexts() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace brimly
