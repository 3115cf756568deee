#include "ui/Accent.h"

#include <QApplication>
#include <QWidget>

namespace brimly {

Accent& Accent::shared() {
  static Accent accent;
  return accent;
}

void Accent::setColor(const Color& color) {
  if (color == color_) return;
  color_ = color;
  emit changed();
  // A window repaints its children with itself.
  for (QWidget* window : QApplication::topLevelWidgets())
    window->update();
}

}  // namespace brimly
