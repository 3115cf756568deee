#include "usage/views/CellReadout.h"

#include "usage/MetricReadout.h"

namespace brimly {

DrawnText cellReadout(const MetricCellContent& cell, const QRectF& frame) {
  const MetricReadout readout = MetricReadout::of(cell);
  return DrawnText{QString::fromStdString(readout.name),
                   QString::fromStdString(readout.description), frame};
}

}  // namespace brimly
