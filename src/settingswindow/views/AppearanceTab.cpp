#include "settingswindow/views/AppearanceTab.h"

#include <QPainter>

#include "artwork/Symbols.h"
#include "panel/views/QtGeometry.h"
#include "settingswindow/SettingsTheme.h"
#include "settingswindow/views/TextMeasure.h"
#include "ui/TextStyle.h"
#include "ui/WindowFonts.h"
#include "usage/views/QtColor.h"

namespace brimly {

namespace {

QFont titleFont(const QPaintDevice& device) {
  return windowFont(device, AppearanceTabLayout::titleSize, QFont::Medium);
}

QFont subtitleFont(const QPaintDevice& device) {
  return windowFont(device, AppearanceTabLayout::subtitleSize, QFont::Normal);
}

}  // namespace

AppearanceTab::AppearanceTab(QWidget* parent) : QWidget(parent) {}

AppearanceTabGeometry AppearanceTab::placement() const {
  return AppearanceTabLayout::layout(
      Rect{0.0, 0.0, static_cast<double>(width()), static_cast<double>(height())},
      measuredText(titleFont(*this), title, *this),
      measuredText(subtitleFont(*this), subtitle, *this));
}

std::vector<DrawnText> AppearanceTab::drawnTexts() const {
  const AppearanceTabGeometry placed = placement();
  return {DrawnText{title, {}, toQRectF(placed.title)},
          DrawnText{subtitle, {}, toQRectF(placed.subtitle)}};
}

void AppearanceTab::paintEvent(QPaintEvent*) {
  const AppearanceTabGeometry placed = placement();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  paintSymbol(painter, symbolName, AppearanceTabLayout::symbolSize,
              toQColor(SettingsTheme::accent.withOpacity(AppearanceTabLayout::symbolOpacity)),
              toQRectF(placed.symbol).center());
  painter.setPen(textColor(TextStyle::primary));
  painter.setFont(titleFont(*this));
  painter.drawText(toQRectF(placed.title), Qt::AlignCenter | Qt::TextSingleLine, title);
  painter.setPen(textColor(TextStyle::secondary));
  painter.setFont(subtitleFont(*this));
  painter.drawText(toQRectF(placed.subtitle), Qt::AlignCenter | Qt::TextSingleLine, subtitle);
}

}  // namespace brimly
