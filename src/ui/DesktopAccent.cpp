#include "ui/DesktopAccent.h"

#include <QCoreApplication>
#include <QEvent>

namespace brimly {

DesktopAccent::DesktopAccent(QObject* parent) : QObject(parent) {
  if (QCoreApplication* application = QCoreApplication::instance()) {
    application->installEventFilter(this);
  }
  watchSystem();
}

std::optional<Color> DesktopAccent::fromHighlight(const QColor& highlight) {
  if (!highlight.isValid() || highlight.alpha() != 255) return std::nullopt;
  if (highlight.rgba() == qtFallbackHighlight) return std::nullopt;
  return Color::sRGB(highlight.redF(), highlight.greenF(), highlight.blueF());
}

bool DesktopAccent::eventFilter(QObject* watched, QEvent* event) {
  // The application hears of a new palette once; every widget hears of it too, and is ignored.
  if (watched == QCoreApplication::instance() &&
      event->type() == QEvent::ApplicationPaletteChange) {
    emit changed();
  }
  return false;
}

}  // namespace brimly
