#include "controlpanel/views/ActionButton.h"

#include <QKeyEvent>
#include <QPainter>

#include "controlpanel/ControlPanelLayout.h"
#include "ui/FocusRing.h"
#include "ui/TextStyle.h"
#include "ui/WindowFonts.h"
#include "usage/Color.h"
#include "usage/views/QtColor.h"

namespace brimly {
namespace {

constexpr Color destructiveRed = Color::displayP3(0.95, 0.43, 0.43);

}  // namespace

ActionButton::ActionButton(const QString& title, bool destructive, QWidget* parent)
    : QAbstractButton(parent), destructive_(destructive) {
  setText(title);
  setAccessibleName(title);
  setFont(windowFont(*this, fontSize, QFont::Medium));
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_Hover);
  FocusRing::watchInput();
}

QColor ActionButton::foreground() const {
  if (destructive_) return toQColor(destructiveRed.withOpacity(hovering_ ? 1.0 : 0.82));
  return textColor(hovering_ ? TextStyle::primary : TextStyle::secondary);
}

void ActionButton::enterEvent(QEnterEvent* event) {
  hovering_ = true;
  update();
  QAbstractButton::enterEvent(event);
}

void ActionButton::leaveEvent(QEvent* event) {
  hovering_ = false;
  update();
  QAbstractButton::leaveEvent(event);
}

void ActionButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
    event->accept();
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

void ActionButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF bounds = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  const double radius = ControlPanelLayout::buttonCornerRadius;
  if (hovering_) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgbF(1, 1, 1, 0.08f));
    painter.drawRoundedRect(bounds, radius, radius);
  }
  if (FocusRing::isShown(*this)) FocusRing::paint(painter, QRectF(rect()), radius);
  painter.setPen(foreground());
  painter.setFont(font());
  painter.drawText(rect(), Qt::AlignCenter, text());
}

}  // namespace brimly
