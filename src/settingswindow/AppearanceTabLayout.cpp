#include "settingswindow/AppearanceTabLayout.h"

namespace brimly::AppearanceTabLayout {

namespace {

Rect centred(const Rect& area, double y, Size size) {
  return Rect{area.midX() - size.width / 2.0, y, size.width, size.height};
}

}  // namespace

AppearanceTabGeometry layout(const Rect& area, Size title, Size subtitle) {
  AppearanceTabGeometry tab;
  tab.symbol = centred(area, area.y + top, Size{symbolSize, symbolSize});
  tab.title = centred(area, tab.symbol.maxY() + spacing, title);
  tab.subtitle = centred(area, tab.title.maxY() + spacing, subtitle);
  return tab;
}

}  // namespace brimly::AppearanceTabLayout
