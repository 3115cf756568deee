// What assistive technologies read of the metric grid, kept apart from its drawing: it is formed
// only when a client asks, from what the grid last took, and costs nothing per frame.
#include "panel/views/QtGeometry.h"
#include "usage/views/CellReadout.h"
#include "usage/views/UsageView.h"

namespace brimly {

std::vector<DrawnText> UsageView::drawnTexts() const {
  std::vector<DrawnText> texts;
  for (std::size_t i = 0; i < grid_.cells.size() && i < contents_.size(); ++i) {
    texts.push_back(cellReadout(contents_[i], toQRectF(grid_.cells[i].frame)));
  }
  return texts;
}

}  // namespace brimly
