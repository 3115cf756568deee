#include "desktop/tray/ItemPlace.h"

namespace brimly::ItemPlace {

Rect around(Point click) {
  return Rect{click.x - iconSize / 2, click.y - iconSize / 2, iconSize, iconSize};
}

Rect topRightCorner(const Rect& geometry, const Rect& available) {
  const double reserved = available.minY() - geometry.minY();
  const double height = reserved > 0 ? reserved : usualBarHeight;
  return Rect{available.maxX() - height, geometry.minY(), height, height};
}

}  // namespace brimly::ItemPlace
