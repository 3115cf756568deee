#include "usage/views/UsageViewBinding.h"

#include <functional>

#include "core/Appearance.h"
#include "panel/PanelState.h"
#include "sampling/SystemMonitor.h"
#include "settings/AppSettings.h"
#include "usage/views/UsageView.h"

namespace brimly {

namespace {

// Gives `view` the monitor's latest sample, with the minute behind it while the trend is shown.
void takeLatest(UsageView* view, const SystemMonitor& monitor) {
  if (view->showsTrend()) {
    view->setSample(monitor.current(), monitor.history());
  } else {
    view->setSample(monitor.current());
  }
}

// A panel-sized grid showing the latest sample and following the settings' metrics, unit and
// trend; it takes each sample the monitor applies while `live` says so.
UsageView* makeGridFollowingSettings(const SystemMonitor& monitor, const AppSettings& settings,
                                     const std::function<bool()>& live, QWidget* parent) {
  auto* view = new UsageView(UsageView::panelColumns, UsageView::panelCellWidth,
                             UsageTypography::system(), parent);
  view->setMetricOrder(settings.metricOrder());
  view->setUseFahrenheit(settings.useFahrenheit());
  view->setShowTrend(settings.showTrend());
  takeLatest(view, monitor);
  QObject::connect(&monitor, &SystemMonitor::sampleApplied, view, [view, &monitor, live] {
    if (live()) takeLatest(view, monitor);
  });
  QObject::connect(&settings, &AppSettings::metricOrderChanged, view,
                   [view, &settings] { view->setMetricOrder(settings.metricOrder()); });
  QObject::connect(&settings, &AppSettings::useFahrenheitChanged, view,
                   &UsageView::setUseFahrenheit);
  QObject::connect(&settings, &AppSettings::showTrendChanged, view,
                   [view, &monitor, live](bool show) {
                     view->setShowTrend(show);
                     // A live grid draws the line at once; a closed panel's gets it on opening.
                     if (show && live()) takeLatest(view, monitor);
                   });
  return view;
}

}  // namespace

UsageView* makePanelGrid(const SystemMonitor& monitor, const AppSettings& settings,
                         const PanelState& panel, QWidget* parent) {
  UsageView* view = makeGridFollowingSettings(
      monitor, settings, [&panel] { return panel.isOpen(); }, parent);
  view->setScale(scaleOf(settings.panelSize()));
  // The grid fades in only once the card has begun to grow, so on opening it is still hidden and
  // shows the latest readings at once rather than gliding to them from older ones.
  QObject::connect(&panel, &PanelState::isOpenAssigned, view, [view, &monitor](bool open) {
    if (open) takeLatest(view, monitor);
  });
  return view;
}

UsageView* makePreviewGrid(const SystemMonitor& monitor, const AppSettings& settings,
                           QWidget* parent) {
  return makeGridFollowingSettings(
      monitor, settings, [] { return true; }, parent);
}

}  // namespace brimly
