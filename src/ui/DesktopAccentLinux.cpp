#include "ui/DesktopAccent.h"

#include <QGuiApplication>
#include <QPalette>

namespace brimly {

std::optional<Color> DesktopAccent::color() const {
  return fromHighlight(QGuiApplication::palette().color(QPalette::Active, QPalette::Highlight));
}

void DesktopAccent::watchSystem() {
  // The desktop's theme hands Qt a new palette, which the application announces.
}

}  // namespace brimly
