#include "desktop/tray/ItemFrames.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

#include "desktop/tray/ItemPlace.h"
#include "panel/views/QtGeometry.h"

namespace brimly::ItemFrames {
namespace {

std::optional<Rect> visibleFrameOf(const QScreen* screen) {
  if (screen == nullptr) return std::nullopt;
  return qtDesktopCoordinates().toBottomLeft(toRect(screen->availableGeometry()));
}

}  // namespace

std::optional<Rect> button(const std::optional<Rect>& item) {
  if (!item) return std::nullopt;
  return qtDesktopCoordinates().toBottomLeft(*item);
}

std::optional<Rect> buttonScreenVisible(const std::optional<Rect>& item) {
  if (!item) return std::nullopt;
  return visibleFrameOf(QGuiApplication::screenAt(QPointF(item->midX(), item->midY()).toPoint()));
}

std::optional<Rect> mainScreenVisible() {
  return visibleFrameOf(QGuiApplication::primaryScreen());
}

std::optional<Rect> placeWithoutPosition(bool pointerReadable) {
  if (pointerReadable) {
    const QPoint pointer = QCursor::pos();
    return ItemPlace::around(Point{double(pointer.x()), double(pointer.y())});
  }
  const QScreen* primary = QGuiApplication::primaryScreen();
  if (primary == nullptr) return std::nullopt;
  return ItemPlace::topRightCorner(toRect(primary->geometry()),
                                   toRect(primary->availableGeometry()));
}

}  // namespace brimly::ItemFrames
