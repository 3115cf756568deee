#include "usage/MetricReadout.h"

#include "usage/MetricFormat.h"

namespace brimly {

MetricReadout MetricReadout::of(const MetricCellContent& cell) {
  MetricReadout readout{cell.label + " " + cell.primary, cell.secondary};
  if (readout.description == MetricFormat::missingSecondary) readout.description.clear();
  return readout;
}

}  // namespace brimly
