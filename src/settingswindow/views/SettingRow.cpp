#include "settingswindow/views/SettingRow.h"

#include <QPainter>
#include <cmath>
#include <utility>

#include "artwork/Symbols.h"
#include "panel/views/QtGeometry.h"
#include "settingswindow/views/TextMeasure.h"
#include "ui/Switch.h"
#include "ui/TextStyle.h"
#include "ui/WindowFonts.h"

namespace brimly {

namespace {

QFont titleFont(const QPaintDevice& device) {
  return windowFont(device, SettingRowLayout::titleSize, QFont::Normal);
}

}  // namespace

SettingRow::SettingRow(QString icon, QString title, QWidget* parent)
    : QWidget(parent),
      icon_(std::move(icon)),
      title_(std::move(title)),
      toggle_(new Switch(Switch::Size::small, this)) {
  // The switch carries the title: the row around it adds nothing to read.
  toggle_->setAccessibleName(title_);
  connect(toggle_, &Switch::switchRequested, this, [this](bool on) {
    if (set) set(on);
  });
  relayout();
}

bool SettingRow::isOn() const {
  return toggle_->isOn();
}

void SettingRow::setOn(bool on) {
  toggle_->setOn(on);
}

double SettingRow::rowHeight() const {
  return geometry_.size.height;
}

QSize SettingRow::sizeHint() const {
  return QSize(width(), static_cast<int>(std::ceil(rowHeight())));
}

void SettingRow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  relayout();
}

void SettingRow::relayout() {
  geometry_ = SettingRowLayout::layout(width(), measuredText(titleFont(*this), title_, *this),
                                       toSize(toggle_->sizeHint()));
  toggle_->setGeometry(toQRectF(geometry_.toggle).toRect());
  update();
}

void SettingRow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  paintSymbol(painter, icon_, SettingRowLayout::symbolSize, textColor(TextStyle::secondary),
              toQRectF(geometry_.symbol).center());
  painter.setPen(textColor(TextStyle::primary));
  painter.setFont(titleFont(*this));
  const QRectF title = toQRectF(geometry_.title);
  painter.drawText(title, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(title_, Qt::ElideRight,
                                                    static_cast<int>(std::ceil(title.width()))));
}

}  // namespace brimly
