#include "desktop/QtScreenPort.h"

#include <QGuiApplication>
#include <QScreen>

#include "desktop/ScreenConversion.h"
#include "panel/views/QtGeometry.h"

namespace brimly {
namespace {

ScreenDescription describe(const QScreen& screen, const DesktopCoordinates& desktop) {
  return ScreenDescription{desktop.toBottomLeft(toRect(screen.geometry())), EdgeInsets{},
                           std::nullopt, std::nullopt};
}

}  // namespace

DesktopCoordinates QtScreenPort::desktopCoordinates() {
  return qtDesktopCoordinates();
}

std::vector<ScreenDescription> QtScreenPort::screens() const {
  const DesktopCoordinates desktop = desktopCoordinates();
  std::vector<ScreenDescription> result;
  for (const QScreen* screen : QGuiApplication::screens()) {
    result.push_back(describe(*screen, desktop));
  }
  return result;
}

std::optional<ScreenDescription> QtScreenPort::mainScreen() const {
  const QScreen* primary = QGuiApplication::primaryScreen();
  if (primary == nullptr) return std::nullopt;
  return describe(*primary, desktopCoordinates());
}

double QtScreenPort::statusBarThickness() const {
  const QScreen* primary = QGuiApplication::primaryScreen();
  if (primary == nullptr) return 0.0;
  return topStripThickness(primary->geometry(), primary->availableGeometry());
}

}  // namespace brimly
