#include "usage/MetricCellContent.h"

#include "usage/MetricFormat.h"

namespace brimly {

MetricCellContent MetricCellContent::of(MetricKind kind, const MetricSample& sample,
                                        bool useFahrenheit) {
  using namespace MetricFormat;
  MetricCellContent cell{std::string(kind.displayName()), std::string(), missingSecondary, 0.0,
                         BarPalette::usage()};
  switch (kind) {
    case MetricKind::cpu:
      cell.primary = percent(sample.cpu);
      cell.barValue = sample.cpu;
      break;
    case MetricKind::gpu:
      cell.primary = sample.gpu ? percent(*sample.gpu) : missingPrimary;
      cell.barValue = sample.gpu.value_or(0.0);
      break;
    case MetricKind::ram:
      cell.primary = percent(sample.memory);
      cell.secondary = ramSecondary(sample);
      cell.barValue = sample.memory;
      break;
    case MetricKind::disk:
      cell.primary = percent(sample.disk);
      cell.secondary = diskSecondary(sample);
      cell.barValue = sample.disk;
      break;
    case MetricKind::temp:
      cell.primary = tempPrimary(sample, useFahrenheit);
      cell.barValue = temperatureBarValue(sample);
      cell.palette = BarPalette::heat();
      break;
    case MetricKind::pwr:
      cell.primary = powerPrimary(sample);
      cell.secondary = powerSecondary(sample);
      cell.barValue = powerBarValue(sample);
      cell.palette = BarPalette::power(sample.powerState);
      break;
  }
  // A reading that could not be taken (GPU, TEMP, PWR) shows the dash and only the bar's stub,
  // dimmed: in a load colour the stub would read as a low load.
  if (cell.primary == missingPrimary) cell.palette = BarPalette::absent();
  return cell;
}

}  // namespace brimly
