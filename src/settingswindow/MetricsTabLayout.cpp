#include "settingswindow/MetricsTabLayout.h"

#include <algorithm>

namespace brimly::MetricsTabLayout {

MetricsTabGeometry layout(const Rect& area, Size previewLabel, double previewHeight) {
  MetricsTabGeometry tab;
  tab.previewLabel = Rect{area.x, area.y, previewLabel.width, previewLabel.height};
  tab.preview = Rect{area.x, tab.previewLabel.maxY() + previewTop, area.width, previewHeight};
  const double listY = tab.preview.maxY() + listTop;
  tab.list = Rect{area.x, listY, area.width, std::max(area.maxY() - listY, 0.0)};
  return tab;
}

}  // namespace brimly::MetricsTabLayout
