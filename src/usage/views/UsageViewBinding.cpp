#include "usage/views/UsageViewBinding.h"

#include "core/Appearance.h"
#include "panel/PanelState.h"
#include "sampling/SystemMonitor.h"
#include "settings/AppSettings.h"
#include "usage/views/UsageView.h"

namespace brimly {

UsageView* makePanelGrid(const SystemMonitor& monitor, const AppSettings& settings,
                         const PanelState& panel, QWidget* parent) {
  auto* view = new UsageView(UsageView::panelColumns, UsageView::panelCellWidth,
                             UsageTypography::system(), parent);
  view->setMetricOrder(settings.metricOrder());
  view->setUseFahrenheit(settings.useFahrenheit());
  view->setScale(scaleOf(settings.panelSize()));
  view->setShowTrend(settings.showTrend());
  // The minute behind the sample goes along only while the trend is shown.
  const auto takeLatest = [view, &monitor] {
    if (view->showsTrend()) {
      view->setSample(monitor.current(), monitor.history());
    } else {
      view->setSample(monitor.current());
    }
  };
  takeLatest();
  QObject::connect(&monitor, &SystemMonitor::sampleApplied, view, [takeLatest, &panel] {
    if (panel.isOpen()) takeLatest();
  });
  // The grid fades in only once the card has begun to grow, so on opening it is still hidden and
  // shows the latest readings at once rather than gliding to them from older ones.
  QObject::connect(&panel, &PanelState::isOpenAssigned, view, [takeLatest](bool open) {
    if (open) takeLatest();
  });
  QObject::connect(&settings, &AppSettings::metricOrderChanged, view,
                   [view, &settings] { view->setMetricOrder(settings.metricOrder()); });
  QObject::connect(&settings, &AppSettings::useFahrenheitChanged, view,
                   &UsageView::setUseFahrenheit);
  QObject::connect(&settings, &AppSettings::showTrendChanged, view,
                   [view, takeLatest, &panel](bool show) {
                     view->setShowTrend(show);
                     // An open grid draws the line at once; a closed one gets it on opening.
                     if (show && panel.isOpen()) takeLatest();
                   });
  return view;
}

}  // namespace brimly
