#include "ui/Switch.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include "ui/FocusRing.h"

#include "ui/Accent.h"
#include "usage/views/QtColor.h"

namespace brimly {
namespace {

// Room around the track for the focus ring's band; its inner line lies on the track's edge.
constexpr int focusMargin = static_cast<int>(FocusRing::bandWidth);

}  // namespace

Switch::Switch(Size size, QWidget* parent) : QAbstractButton(parent), size_(size) {
  setCheckable(true);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  FocusRing::watchInput();
  connect(this, &QAbstractButton::clicked, this, [this] { emit switchRequested(!isOn()); });
}

QSize Switch::trackSize(Size size) {
  return size == Size::small ? QSize(30, 18) : QSize(24, 14);
}

QSize Switch::sizeHint() const {
  return trackSize(size_) + QSize(2 * focusMargin, 2 * focusMargin);
}

void Switch::addAccessibleState(QAccessible::State& state) const {
  state.checkable = true;
  state.checked = isOn();
}

void Switch::keyPressEvent(QKeyEvent* event) {
  // Space is the button's own key; Return and Enter act the same, as in a form's switches.
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    if (isEnabled()) click();
    event->accept();
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

void Switch::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QSize track = trackSize(size_);
  const QRectF trackRect(
      QPointF((width() - track.width()) / 2.0, (height() - track.height()) / 2.0), QSizeF(track));
  const double radius = trackRect.height() / 2.0;
  if (!isEnabled()) painter.setOpacity(0.4);

  const QColor off = QColor::fromRgbF(1, 1, 1, isDown() ? 0.24f : 0.16f);
  painter.setPen(Qt::NoPen);
  painter.setBrush(isOn() ? toQColor(Accent::current()) : off);
  painter.drawRoundedRect(trackRect, radius, radius);

  const double inset = track.height() >= 18 ? 2.0 : 1.5;
  const double knob = trackRect.height() - 2 * inset;
  const double knobX = isOn() ? trackRect.right() - inset - knob : trackRect.left() + inset;
  const QRectF knobRect(knobX, trackRect.top() + inset, knob, knob);
  painter.setBrush(QColor::fromRgbF(0, 0, 0, 0.18f));
  painter.drawEllipse(knobRect.translated(0, 0.5));
  painter.setBrush(Qt::white);
  painter.drawEllipse(knobRect);

  if (FocusRing::isShown(*this)) {
    const double margin = FocusRing::bandWidth;
    FocusRing::paint(painter, trackRect.adjusted(-margin, -margin, margin, margin),
                     radius + margin);
  }
}

}  // namespace brimly
