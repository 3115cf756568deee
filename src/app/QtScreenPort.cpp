#include "app/QtScreenPort.h"

#include <QGuiApplication>
#include <QScreen>

#include "app/ScreenConversion.h"

namespace brimly {
namespace {

double currentDesktopHeight() {
  QList<QRect> geometries;
  for (const QScreen* screen : QGuiApplication::screens())
    geometries.push_back(screen->geometry());
  return desktopHeight(geometries);
}

ScreenDescription describe(const QScreen& screen, double height) {
  return ScreenDescription{bottomLeftFrame(screen.geometry(), height), EdgeInsets{}, std::nullopt,
                           std::nullopt};
}

}  // namespace

std::vector<ScreenDescription> QtScreenPort::screens() const {
  const double height = currentDesktopHeight();
  std::vector<ScreenDescription> result;
  for (const QScreen* screen : QGuiApplication::screens())
    result.push_back(describe(*screen, height));
  return result;
}

std::optional<ScreenDescription> QtScreenPort::mainScreen() const {
  const QScreen* primary = QGuiApplication::primaryScreen();
  if (primary == nullptr) return std::nullopt;
  return describe(*primary, currentDesktopHeight());
}

double QtScreenPort::statusBarThickness() const {
  const QScreen* primary = QGuiApplication::primaryScreen();
  if (primary == nullptr) return 0.0;
  return topStripThickness(primary->geometry(), primary->availableGeometry());
}

}  // namespace brimly
