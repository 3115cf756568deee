#include "settingswindow/views/AccentSwatch.h"

#include <QConicalGradient>
#include <QPainter>
#include <cmath>

#include "ui/FocusRing.h"
#include "ui/TextStyle.h"
#include "usage/AccentColors.h"
#include "usage/views/QtColor.h"

namespace brimly {

namespace {

QString nameOf(AccentChoice choice) {
  const std::string_view name = displayName(choice);
  return QStringLiteral("Accent colour: ") +
         QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

// The fixed swatches around the System disc, as a wheel.
QConicalGradient swatchWheel(const QPointF& centre) {
  QConicalGradient wheel(centre, 90.0);
  const double step = 1.0 / static_cast<double>(accentChoices.size() - 1);
  double at = 0.0;
  for (const AccentChoice choice : accentChoices) {
    if (choice == AccentChoice::system) continue;
    wheel.setColorAt(at, toQColor(AccentColors::of(choice)));
    at += step;
  }
  wheel.setColorAt(1.0, toQColor(AccentColors::of(accentChoices.front())));
  return wheel;
}

}  // namespace

AccentSwatch::AccentSwatch(AccentChoice choice, QWidget* parent)
    : ChoiceButton(parent), choice_(choice), color_(AccentColors::of(choice)) {
  setAccessibleName(nameOf(choice));
  setToolTip(QString::fromUtf8(displayName(choice).data(),
                               static_cast<qsizetype>(displayName(choice).size())));
}

void AccentSwatch::setColor(const Color& color) {
  if (color == color_) return;
  color_ = color;
  update();
}

QSize AccentSwatch::sizeHint() const {
  const int side = static_cast<int>(std::ceil(diameter + 2.0 * margin));
  return QSize(side, side);
}

void AccentSwatch::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPointF centre = QRectF(rect()).center();
  const double radius = diameter / 2.0;
  painter.setPen(Qt::NoPen);
  if (choice_ == AccentChoice::system) {
    painter.setBrush(swatchWheel(centre));
    painter.drawEllipse(centre, radius, radius);
    painter.setBrush(toQColor(color_));
    painter.drawEllipse(centre, radius - 4.0, radius - 4.0);
  } else {
    painter.setBrush(toQColor(color_));
    painter.drawEllipse(centre, radius, radius);
  }
  if (isDown()) {
    painter.setBrush(QColor::fromRgbF(0, 0, 0, 0.2f));
    painter.drawEllipse(centre, radius, radius);
  }
  const double ring = radius + ringGap + ringWidth / 2.0;
  if (isChosen()) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(textColor(TextStyle::primary), ringWidth));
    painter.drawEllipse(centre, ring, ring);
  }
  if (FocusRing::isShown(*this)) {
    const double outer = radius + margin;
    FocusRing::paint(painter, QRectF(centre - QPointF(outer, outer), QSizeF(2 * outer, 2 * outer)),
                     outer);
  }
}

}  // namespace brimly
