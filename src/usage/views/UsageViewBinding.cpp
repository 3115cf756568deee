#include "usage/views/UsageViewBinding.h"

#include "sampling/SystemMonitor.h"
#include "settings/AppSettings.h"
#include "usage/views/UsageView.h"

namespace brimly {

void bindUsageView(UsageView& view, const SystemMonitor& monitor, const AppSettings& settings) {
  view.setMetricOrder(settings.metricOrder());
  view.setUseFahrenheit(settings.useFahrenheit());
  view.setSample(monitor.current());
  QObject::connect(&monitor, &SystemMonitor::sampleApplied, &view,
                   [&view, &monitor] { view.setSample(monitor.current()); });
  QObject::connect(&settings, &AppSettings::metricOrderChanged, &view,
                   [&view, &settings] { view.setMetricOrder(settings.metricOrder()); });
  QObject::connect(&settings, &AppSettings::useFahrenheitChanged, &view,
                   &UsageView::setUseFahrenheit);
}

UsageView* makePanelGrid(const SystemMonitor& monitor, const AppSettings& settings,
                         QWidget* parent) {
  auto* view = new UsageView(UsageView::panelColumns, UsageView::panelCellWidth,
                             UsageTypography::system(), parent);
  bindUsageView(*view, monitor, settings);
  return view;
}

}  // namespace brimly
