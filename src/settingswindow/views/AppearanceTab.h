#pragma once

#include <QWidget>

#include "settingswindow/AppearanceTabLayout.h"

namespace brimly {

// The Appearance tab: a placeholder that says themes and accent colours are still to come. It has
// no controls.
class AppearanceTab : public QWidget {
  Q_OBJECT

 public:
  static constexpr const char* symbolName = "paintpalette";
  static constexpr const char* title = "Themes & accent colors";
  static constexpr const char* subtitle = "Coming in a future update";

  explicit AppearanceTab(QWidget* parent = nullptr);

  // The placeholder laid out in the tab's current size.
  AppearanceTabGeometry placement() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace brimly
