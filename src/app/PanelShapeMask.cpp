#include "app/PanelShapeMask.h"

#include <QBitmap>
#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include "panel/views/NotchPainterPath.h"
#include "panel/views/PanelWindow.h"
#include "panel/views/RootView.h"

namespace brimly {

PanelShapeMask::PanelShapeMask(PanelWindow& window, Fit fit, QObject* parent)
    : QObject(parent), window_(window), fit_(fit) {
  follow();
}

void PanelShapeMask::follow() {
  QObject::disconnect(changes_);
  if (RootView* view = window_.rootView()) {
    changes_ = connect(view, &RootView::cardChanged, this, &PanelShapeMask::update);
  }
  update();
}

void PanelShapeMask::setFit(Fit fit) {
  if (fit == fit_) return;
  fit_ = fit;
  update();
}

QRegion PanelShapeMask::regionFor(const QPainterPath& path, const QSize& windowSize, Fit fit) {
  // Rasterised rather than flattened to a polygon, so the rounded corners keep their curve.
  QBitmap bitmap(windowSize);
  bitmap.fill(Qt::color0);
  {
    QPainter painter(&bitmap);
    painter.fillPath(path, Qt::color1);
    // A line two pixels wide along the outline reaches one pixel beyond it: every pixel the
    // antialiased edge touches.
    if (fit == Fit::withEdge) painter.strokePath(path, QPen(Qt::color1, 2.0));
  }
  QRegion region(bitmap);
  // An empty mask would mean "no mask" to Qt: the whole window. Keep one pixel instead.
  if (region.isEmpty()) region = QRegion(0, 0, 1, 1);
  return region;
}

void PanelShapeMask::update() {
  const RootView* view = window_.rootView();
  if (view == nullptr) return;
  const Rect card = view->cardFrame();
  QPainterPath path = toPainterPath(RootView::outline.path(card));
  path.translate(card.x + view->x(), card.y + view->y());
  const QRegion region = regionFor(path, window_.size(), fit_);
  if (region == region_) return;
  region_ = region;
  window_.setMask(region_);
}

}  // namespace brimly
