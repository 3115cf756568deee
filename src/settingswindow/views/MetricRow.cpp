#include "settingswindow/views/MetricRow.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "artwork/Symbols.h"
#include "panel/views/QtGeometry.h"
#include "ui/FocusRing.h"
#include "ui/Switch.h"
#include "ui/TextStyle.h"
#include "ui/WindowFonts.h"

namespace brimly {

namespace {

constexpr double draggedOpacity = 0.45;
constexpr double focusRingRadius = 7.0;

QString titleOf(MetricKind kind) {
  return QString::fromUtf8(kind.displayName().data(),
                           static_cast<qsizetype>(kind.displayName().size()));
}

}  // namespace

MetricRow::MetricRow(MetricKind kind, QWidget* parent)
    : QWidget(parent),
      kind_(kind),
      row_{kind, true, {}, {}, {}, {}, {}},
      toggle_(new Switch(Switch::Size::mini, this)) {
  setFocusPolicy(Qt::StrongFocus);
  FocusRing::watchInput();
  setAccessibleName(titleOf(kind));
  toggle_->setAccessibleName(QStringLiteral("Show %1").arg(titleOf(kind)));
  connect(toggle_, &Switch::switchRequested, this,
          [this](bool on) { emit switchRequested(kind_, on); });
}

QFont MetricRow::titleFont(const QPaintDevice& device) {
  return roundedWindowFont(device, MetricListLayout::titleSize, QFont::Normal);
}

void MetricRow::place(const MetricListRow& row, bool switchEnabled, SectionPlace place) {
  row_ = row;
  shown_ = row.shown;
  setGeometry(toQRectF(row.frame).toAlignedRect());
  toggle_->setGeometry(local(row.toggle).toRect());
  toggle_->setOn(shown_);
  toggle_->setEnabled(switchEnabled);
  setCursor(shown_ ? Qt::OpenHandCursor : Qt::ArrowCursor);
  const QString where = QStringLiteral("%1 of %2").arg(place.position).arg(place.count);
  setAccessibleDescription(
      shown_
          ? QStringLiteral("Shown, %1. Drag, or press Alt+Up or Alt+Down, to move it.").arg(where)
          : QStringLiteral("Hidden, %1.").arg(where));
  update();
}

QRectF MetricRow::local(const Rect& rect) const {
  return toQRectF(rect).translated(-QPointF(pos()));
}

void MetricRow::setDragged(bool dragged) {
  if (dragged_ == dragged) return;
  dragged_ = dragged;
  setCursor(dragged_ ? Qt::ClosedHandCursor : (shown_ ? Qt::OpenHandCursor : Qt::ArrowCursor));
  update();
}

void MetricRow::keyPressEvent(QKeyEvent* event) {
  const bool modified = event->modifiers() & (Qt::AltModifier | Qt::ControlModifier);
  if (shown_ && modified && (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)) {
    emit moveRequested(kind_, event->key() == Qt::Key_Up ? -1 : 1);
    event->accept();
    return;
  }
  // Everything else goes on to the list and the window (Escape ends a drag, then closes).
  QWidget::keyPressEvent(event);
}

void MetricRow::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  update();
}

void MetricRow::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  update();
}

void MetricRow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  if (FocusRing::isShown(*this)) FocusRing::paint(painter, QRectF(rect()), focusRingRadius);
  if (dragged_) painter.setOpacity(draggedOpacity);
  const char* symbol = shown_ ? MetricListLayout::shownSymbol : MetricListLayout::hiddenSymbol;
  paintSymbol(painter, symbol, MetricListLayout::symbolSize, textColor(TextStyle::tertiary),
              local(row_.symbol).center());
  painter.setPen(textColor(shown_ ? TextStyle::primary : TextStyle::secondary));
  painter.setFont(titleFont(*this));
  painter.drawText(local(row_.title), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   titleOf(kind_));
}

}  // namespace brimly
