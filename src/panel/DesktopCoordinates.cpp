#include "panel/DesktopCoordinates.h"

namespace brimly {

DesktopCoordinates::DesktopCoordinates(const Rect& primaryScreen)
    : axis_(primaryScreen.y + primaryScreen.height) {}

Rect DesktopCoordinates::toBottomLeft(const Rect& topLeft) const {
  return {topLeft.x, axis_ - (topLeft.y + topLeft.height), topLeft.width, topLeft.height};
}

Rect DesktopCoordinates::toTopLeft(const Rect& bottomLeft) const {
  return {bottomLeft.x, axis_ - (bottomLeft.y + bottomLeft.height), bottomLeft.width,
          bottomLeft.height};
}

Point DesktopCoordinates::toBottomLeft(Point topLeft) const {
  return {topLeft.x, axis_ - topLeft.y};
}

Point DesktopCoordinates::toTopLeft(Point bottomLeft) const {
  return {bottomLeft.x, axis_ - bottomLeft.y};
}

}  // namespace brimly
