#include "usage/views/UsageViewBinding.h"

#include "panel/PanelState.h"
#include "sampling/SystemMonitor.h"
#include "settings/AppSettings.h"
#include "usage/views/UsageView.h"

namespace brimly {

namespace {

// A panel-sized grid showing the latest sample and following the settings' metrics and unit.
UsageView* makeGridFollowingSettings(const SystemMonitor& monitor, const AppSettings& settings,
                                     QWidget* parent) {
  auto* view = new UsageView(UsageView::panelColumns, UsageView::panelCellWidth,
                             UsageTypography::system(), parent);
  view->setMetricOrder(settings.metricOrder());
  view->setUseFahrenheit(settings.useFahrenheit());
  view->setSample(monitor.current());
  QObject::connect(&settings, &AppSettings::metricOrderChanged, view,
                   [view, &settings] { view->setMetricOrder(settings.metricOrder()); });
  QObject::connect(&settings, &AppSettings::useFahrenheitChanged, view,
                   &UsageView::setUseFahrenheit);
  return view;
}

}  // namespace

UsageView* makePanelGrid(const SystemMonitor& monitor, const AppSettings& settings,
                         const PanelState& panel, QWidget* parent) {
  UsageView* view = makeGridFollowingSettings(monitor, settings, parent);
  const auto takeLatest = [view, &monitor] { view->setSample(monitor.current()); };
  QObject::connect(&monitor, &SystemMonitor::sampleApplied, view, [takeLatest, &panel] {
    if (panel.isOpen()) takeLatest();
  });
  // The grid fades in only once the card has begun to grow, so on opening it is still hidden and
  // shows the latest readings at once rather than gliding to them from older ones.
  QObject::connect(&panel, &PanelState::isOpenAssigned, view, [takeLatest](bool open) {
    if (open) takeLatest();
  });
  return view;
}

UsageView* makePreviewGrid(const SystemMonitor& monitor, const AppSettings& settings,
                           QWidget* parent) {
  UsageView* view = makeGridFollowingSettings(monitor, settings, parent);
  QObject::connect(&monitor, &SystemMonitor::sampleApplied, view,
                   [view, &monitor] { view->setSample(monitor.current()); });
  return view;
}

}  // namespace brimly
