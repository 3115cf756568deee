#include "controlpanel/views/ControlPanelWindow.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainterPath>
#include <QRegion>

#include "controlpanel/views/ControlPanelView.h"
#include "panel/views/QtGeometry.h"
#include "ui/FocusRing.h"
#include "ui/Switch.h"

namespace brimly {
namespace {

Qt::WindowFlags flagsFor(ControlPanelWindow::Kind kind) {
  const Qt::WindowFlags common = Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint;
  if (kind == ControlPanelWindow::Kind::popUp) return Qt::Popup | common;
  return Qt::Tool | Qt::WindowStaysOnTopHint | common;
}

}  // namespace

ControlPanelWindow::ControlPanelWindow(ControlPanelModel& model, Kind kind, QWidget* parent)
    : QWidget(parent, flagsFor(kind)), view_(new ControlPanelView(model, this)) {
  setAttribute(Qt::WA_TranslucentBackground);
  setWindowTitle(QStringLiteral("Brimly controls"));
  setAccessibleName(QStringLiteral("Brimly"));
  setFixedSize(view_->sizeHint());
}

void ControlPanelWindow::setCutToShape(bool cut) {
  if (!cut) {
    clearMask();
    return;
  }
  QPainterPath card;
  const double radius = ControlPanelLayout::cornerRadius;
  card.addRoundedRect(toQRectF(view_->layout().card), radius, radius);
  setMask(QRegion(card.toFillPolygon().toPolygon()));
}

Size ControlPanelWindow::fittingSize() {
  const QSize size = view_->sizeHint();
  return Size{static_cast<double>(size.width()), static_cast<double>(size.height())};
}

void ControlPanelWindow::showAt(Point origin, Size size) {
  const Rect frame =
      qtDesktopCoordinates().toTopLeft(Rect{origin.x, origin.y, size.width, size.height});
  setGeometry(toQRectF(frame).toRect());
  show();
  // Opened by a click, often one only the desktop saw: a Tab from here always walks the card in
  // the same order, from the first switch on.
  FocusRing::followPointer();
  view_->pinSwitch().setFocus(Qt::OtherFocusReason);
  if (onShown) onShown();
}

void ControlPanelWindow::close() {
  hide();
}

void ControlPanelWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    if (onEscape) onEscape();
    event->accept();
    return;
  }
  QWidget::keyPressEvent(event);
}

void ControlPanelWindow::mousePressEvent(QMouseEvent* event) {
  if (rect().contains(event->position().toPoint()) || !onPressOutside) {
    QWidget::mousePressEvent(event);
    return;
  }
  const QPointF global = event->globalPosition();
  const Point pointer = qtDesktopCoordinates().toBottomLeft(Point{global.x(), global.y()});
  // Decided before closing: Qt passes the press on when a pop-up closes, unless told not to.
  const bool passOn = onPressOutside(pointer);
  setAttribute(Qt::WA_NoMouseReplay, !passOn);
  if (isVisible()) hide();
  event->accept();
}

}  // namespace brimly
