#include "desktop/x11/PanelShapeMask.h"

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
  return QRegion(bitmap);
}

void PanelShapeMask::update() {
  const RootView* view = window_.rootView();
  if (view == nullptr) return;
  QRegion region;
  if (view->cardOpacity() > 0.0) {
    const Rect card = view->cardFrame();
    QPainterPath path = toPainterPath(view->cardOutline().path(card));
    path.translate(card.x + view->x(), card.y + view->y());
    region = regionFor(path, window_.size(), fit_);
  }
  region_ = region;
  // Qt reads an empty mask as no mask at all: the whole window. The X server cuts a window's
  // shape to the window itself, so a pixel just outside it leaves nothing that shows.
  const QRegion shape = region_.isEmpty() ? QRegion(-1, -1, 1, 1) : region_;
  if (window_.mask() != shape) window_.setMask(shape);
}

}  // namespace brimly
