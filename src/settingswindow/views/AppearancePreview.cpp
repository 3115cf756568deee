#include "settingswindow/views/AppearancePreview.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "core/Appearance.h"
#include "sampling/SystemMonitor.h"
#include "settings/AppSettings.h"
#include "usage/Theme.h"
#include "usage/views/QtColor.h"
#include "usage/views/UsageView.h"
#include "usage/views/UsageViewBinding.h"

namespace brimly {

AppearancePreview::AppearancePreview(AppSettings& settings, const SystemMonitor& monitor,
                                     QWidget* parent)
    : QWidget(parent), settings_(settings), grid_(makePreviewGrid(monitor, settings, this)) {
  setAttribute(Qt::WA_NoSystemBackground);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setAccessibleName(QStringLiteral("Live preview"));
  // Painted by the preview, scaled; a hidden grid also takes each sample without animating it.
  grid_->setVisible(false);
  const auto repaint = [this] {
    updateGeometry();
    update();
  };
  // After the grid's own connections, so that it has taken the change.
  connect(&monitor, &SystemMonitor::sampleApplied, this, qOverload<>(&QWidget::update));
  connect(&settings_, &AppSettings::metricOrderChanged, this, repaint);
  connect(&settings_, &AppSettings::useFahrenheitChanged, this, repaint);
  connect(&settings_, &AppSettings::panelSizeChanged, this, repaint);
  connect(&settings_, &AppSettings::showTrendChanged, this, qOverload<>(&QWidget::update));
}

double AppearancePreview::gridScale() const {
  const double gridWidth = grid_->sizeHint().width();
  if (gridWidth <= 0.0) return 0.0;
  const double fitted = std::max(width() - 2.0 * padding, 0.0) / gridWidth;
  return fitted * scaleOf(settings_.panelSize()) / scaleOf(PanelSize::large);
}

QPointF AppearancePreview::gridOrigin() const {
  const double scale = gridScale();
  return QPointF((width() - grid_->sizeHint().width() * scale) / 2.0,
                 (height() - grid_->sizeHint().height() * scale) / 2.0);
}

QSize AppearancePreview::sizeHint() const {
  // As tall as the large panel's grid drawn across the width, so that a change of size keeps the
  // tab's layout still.
  const double gridWidth = std::max(grid_->sizeHint().width(), 1);
  const double fitted = std::max(width() - 2.0 * padding, 0.0) / gridWidth;
  return QSize(width(),
               static_cast<int>(std::ceil(grid_->sizeHint().height() * fitted + 2.0 * padding)));
}

std::vector<DrawnText> AppearancePreview::drawnTexts() const {
  const double scale = gridScale();
  const QPointF origin = gridOrigin();
  std::vector<DrawnText> texts = grid_->drawnTexts();
  for (DrawnText& text : texts) {
    text.frame = QRectF(origin + text.frame.topLeft() * scale, text.frame.size() * scale);
  }
  return texts;
}

void AppearancePreview::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath card;
  card.addRoundedRect(QRectF(rect()), cornerRadius, cornerRadius);
  painter.fillPath(card, toQColor(Theme::panelBackground));
  const double scale = gridScale();
  if (scale <= 0.0) return;
  painter.translate(gridOrigin());
  painter.scale(scale, scale);
  grid_->render(&painter, QPoint(), QRegion(), QWidget::DrawChildren);
}

}  // namespace brimly
