#include "settingswindow/SettingRowLayout.h"

#include <algorithm>

namespace brimly::SettingRowLayout {

SettingRowGeometry layout(double width, Size title, Size toggle) {
  SettingRowGeometry row;
  const double height = std::max({symbolSize, title.height, toggle.height});
  row.size = Size{width, height};
  row.symbolFrame = Rect{0.0, 0.0, symbolFrameWidth, height};
  row.symbol = Rect{(symbolFrameWidth - symbolSize) / 2.0, (height - symbolSize) / 2.0, symbolSize,
                    symbolSize};
  row.toggle =
      Rect{width - toggle.width, (height - toggle.height) / 2.0, toggle.width, toggle.height};
  const double titleX = row.symbolFrame.maxX() + spacing;
  const double room = std::max(row.toggle.x - spacing - titleX, 0.0);
  row.title =
      Rect{titleX, (height - title.height) / 2.0, std::min(title.width, room), title.height};
  return row;
}

}  // namespace brimly::SettingRowLayout
