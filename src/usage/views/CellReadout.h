#pragma once

#include <QRectF>

#include "accessibility/AccessibleParts.h"
#include "usage/MetricCellContent.h"

namespace brimly {

// The label a screen reader reads for a metric cell drawn at `frame`: its name and value ("CPU
// 43%"), its detail line as the description (see `MetricReadout`).
DrawnText cellReadout(const MetricCellContent& cell, const QRectF& frame);

}  // namespace brimly
