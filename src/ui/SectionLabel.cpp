#include "ui/SectionLabel.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>
#include <utility>

#include "ui/TextStyle.h"
#include "ui/WindowFonts.h"

namespace brimly {

SectionLabel::SectionLabel(QString text, QWidget* parent)
    : QWidget(parent), text_(std::move(text)) {
  setAccessibleName(text_);
  setFont(windowFont(*this, fontSize, QFont::DemiBold, tracking));
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize SectionLabel::sizeHint() const {
  const QFontMetricsF metrics(font(), this);
  return QSize(static_cast<int>(std::ceil(metrics.horizontalAdvance(text_))),
               static_cast<int>(std::ceil(metrics.height())));
}

void SectionLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(textColor(TextStyle::tertiary));
  painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, text_);
}

}  // namespace brimly
