#include "settingswindow/GeneralTabLayout.h"

namespace brimly::GeneralTabLayout {

GeneralTabGeometry layout(const Rect& area, Size sectionLabel, std::size_t rowCount,
                          double rowHeight) {
  GeneralTabGeometry tab;
  tab.sectionLabel = Rect{area.x, area.y, sectionLabel.width, sectionLabel.height};
  double y = tab.sectionLabel.maxY() + rowsTop;
  for (std::size_t i = 0; i < rowCount; ++i) {
    tab.rows.push_back(Rect{area.x, y, area.width, rowHeight});
    y += rowHeight + rowSpacing;
  }
  return tab;
}

}  // namespace brimly::GeneralTabLayout
