#include "settingswindow/MetricListLayout.h"

#include <algorithm>

#include "settingswindow/MetricListRules.h"

namespace brimly {

namespace MetricListLayout {

namespace {

MetricListHeader header(double y, double width, Size label, std::optional<Size> hint) {
  MetricListHeader result;
  const double captionHeight = std::max(label.height, hint ? hint->height : 0.0);
  result.frame = Rect{0.0, y, width, headerTop + captionHeight + headerBottom};
  const double captionMiddle = y + headerTop + captionHeight / 2.0;
  result.label = Rect{0.0, captionMiddle - label.height / 2.0, label.width, label.height};
  if (hint) {
    result.hint =
        Rect{width - hint->width, captionMiddle - hint->height / 2.0, hint->width, hint->height};
  }
  return result;
}

MetricListRow row(MetricKind kind, bool shown, double y, double width, const Measures& measures) {
  const Size title = measures.titles[kind];
  const Size toggle = measures.toggle;
  const double height = std::max({minimumRowHeight, title.height, toggle.height, symbolSize});
  MetricListRow result{kind, shown, {}, {}, {}, {}, {}};
  result.frame = Rect{0.0, y, width, height};
  result.handleFrame = Rect{0.0, y, handleFrameWidth, height};
  result.symbol = Rect{(handleFrameWidth - symbolSize) / 2.0,
                       result.frame.midY() - symbolSize / 2.0, symbolSize, symbolSize};
  result.toggle = Rect{width - toggle.width, result.frame.midY() - toggle.height / 2.0,
                       toggle.width, toggle.height};
  const double titleX = result.handleFrame.maxX() + spacing;
  const double room = std::max(result.toggle.x - spacing - titleX, 0.0);
  result.title = Rect{titleX, result.frame.midY() - title.height / 2.0, std::min(title.width, room),
                      title.height};
  return result;
}

}  // namespace

MetricListGeometry layout(const std::vector<MetricKind>& order, double width,
                          const Measures& measures) {
  MetricListGeometry list;
  list.shownHeader = header(0.0, width, measures.shownLabel, measures.hint);
  double y = list.shownHeader.frame.maxY();
  for (const MetricKind kind : order) {
    list.rows.push_back(row(kind, true, y, width, measures));
    y = list.rows.back().frame.maxY();
  }
  list.shownCount = order.size();
  const std::vector<MetricKind> hidden = MetricListRules::hiddenKinds(order);
  if (!hidden.empty()) {
    list.hiddenHeader = header(y, width, measures.hiddenLabel, std::nullopt);
    y = list.hiddenHeader->frame.maxY();
    for (const MetricKind kind : hidden) {
      list.rows.push_back(row(kind, false, y, width, measures));
      y = list.rows.back().frame.maxY();
    }
  }
  list.size = Size{width, y};
  return list;
}

}  // namespace MetricListLayout

std::size_t MetricListGeometry::dropDestination(double y) const {
  std::size_t destination = 0;
  while (destination < shownCount && rows[destination].frame.midY() < y)
    ++destination;
  return destination;
}

std::optional<Rect> MetricListGeometry::dropIndicator(std::size_t destination) const {
  if (shownCount == 0 || destination > shownCount) return std::nullopt;
  const Rect& neighbour = rows[destination == shownCount ? destination - 1 : destination].frame;
  const double gapY = destination == shownCount ? neighbour.maxY() : neighbour.minY();
  const double height = MetricListLayout::dropIndicatorHeight;
  return Rect{neighbour.x, gapY - height / 2.0, neighbour.width, height};
}

}  // namespace brimly
