#include "settingswindow/views/MetricsTab.h"

#include <QScrollArea>
#include <QStyle>

#include "panel/views/QtGeometry.h"
#include "settings/AppSettings.h"
#include "settingswindow/views/MetricList.h"
#include "settingswindow/views/MetricPreview.h"
#include "settingswindow/views/TextMeasure.h"
#include "ui/SectionLabel.h"

namespace brimly {

MetricsTab::MetricsTab(AppSettings& settings, const SystemMonitor& monitor, QWidget* parent)
    : QWidget(parent),
      previewLabel_(new SectionLabel("LIVE PREVIEW", this)),
      preview_(new MetricPreview(settings, monitor, MetricPreviewLayout::cellWidth, this)),
      listArea_(new QScrollArea(this)),
      list_(new MetricList(settings)) {
  // The list scrolls only if its rows outgrow the window; the surface shows through it. The rows
  // take the keyboard focus, never the empty area around them.
  listArea_->setFocusPolicy(Qt::NoFocus);
  listArea_->setFrameShape(QFrame::NoFrame);
  listArea_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  listArea_->setWidgetResizable(false);
  listArea_->setAutoFillBackground(false);
  listArea_->viewport()->setAutoFillBackground(false);
  listArea_->setWidget(list_);
  list_->setAutoFillBackground(false);  // which setWidget turned on
  // After the preview's and the list's own connections, so that both have taken the new order.
  connect(&settings, &AppSettings::metricOrderChanged, this, &MetricsTab::relayout);
  relayout();
}

void MetricsTab::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  relayout();
}

void MetricsTab::relayout() {
  geometry_ = MetricsTabLayout::layout(
      Rect{0.0, 0.0, static_cast<double>(width()), static_cast<double>(height())},
      toSize(previewLabel_->sizeHint()), preview_->sizeHint().height());
  previewLabel_->setGeometry(toQRectF(geometry_.previewLabel).toAlignedRect());
  preview_->setGeometry(toQRectF(geometry_.preview).toRect());
  const QRect area = toQRectF(geometry_.list).toRect();
  listArea_->setGeometry(area);
  // The list is sized here, at once, rather than by the scroll area later: with a scroll bar, and
  // narrower by it, only when it is too tall to fit.
  const int height = list_->listHeight();
  const bool scrolls = height > area.height();
  listArea_->setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  const int bar = scrolls ? listArea_->style()->pixelMetric(QStyle::PM_ScrollBarExtent) : 0;
  list_->resize(area.width() - bar, height);
}

}  // namespace brimly
