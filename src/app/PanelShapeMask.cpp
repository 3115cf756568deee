#include "app/PanelShapeMask.h"

#include <QBitmap>
#include <QPainter>
#include <QPainterPath>

#include "panel/views/FrameTimer.h"
#include "panel/views/NotchPainterPath.h"
#include "panel/views/PanelWindow.h"
#include "panel/views/RootView.h"

namespace brimly {

PanelShapeMask::PanelShapeMask(PanelWindow& window, QObject* parent)
    : QObject(parent), window_(window) {
  follow();
}

void PanelShapeMask::follow() {
  QObject::disconnect(frames_);
  if (RootView* view = window_.rootView()) {
    // Connected after the view's own handler, so the card has moved when this runs.
    frames_ = connect(&view->frameTimer(), &FrameTimer::frame, this, &PanelShapeMask::update);
  }
  update();
}

void PanelShapeMask::update() {
  const RootView* view = window_.rootView();
  if (view == nullptr) return;
  const Rect card = view->cardFrame();
  QPainterPath path = toPainterPath(RootView::outline.path(card));
  path.translate(card.x + view->x(), card.y + view->y());
  // Rasterised rather than flattened to a polygon, so the rounded corners keep their curve.
  QBitmap bitmap(window_.size());
  bitmap.fill(Qt::color0);
  {
    QPainter painter(&bitmap);
    painter.fillPath(path, Qt::color1);
  }
  QRegion region(bitmap);
  // An empty mask would mean "no mask" to Qt: the whole window. Keep one pixel instead.
  if (region.isEmpty()) region = QRegion(0, 0, 1, 1);
  if (region == region_) return;
  region_ = region;
  window_.setMask(region_);
}

}  // namespace brimly
