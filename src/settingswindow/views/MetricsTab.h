#pragma once

#include <QWidget>

#include "settingswindow/MetricsTabLayout.h"

class QScrollArea;

namespace brimly {

class AppSettings;
class MetricList;
class MetricPreview;
class SectionLabel;
class SystemMonitor;

// The Metrics tab: a live preview of the panel's grid under "LIVE PREVIEW", and below it the list
// that chooses which metrics the panel shows and in which order. It keeps no state of its own: it
// follows the settings and the monitor, and writes every change to the settings.
class MetricsTab : public QWidget {
  Q_OBJECT

 public:
  // `settings` and `monitor` must outlive the tab.
  MetricsTab(AppSettings& settings, const SystemMonitor& monitor, QWidget* parent = nullptr);

  SectionLabel& previewLabel() const { return *previewLabel_; }
  MetricPreview& preview() const { return *preview_; }
  MetricList& list() const { return *list_; }
  QScrollArea& listArea() const { return *listArea_; }
  const MetricsTabGeometry& placement() const { return geometry_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void relayout();

  SectionLabel* previewLabel_;
  MetricPreview* preview_;
  QScrollArea* listArea_;
  MetricList* list_;
  MetricsTabGeometry geometry_;
};

}  // namespace brimly
