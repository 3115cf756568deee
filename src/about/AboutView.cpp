#include "about/AboutView.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QIcon>
#include <QPainter>
#include <cmath>
#include <utility>

#include "about/AboutTheme.h"
#include "about/KorvelBrand.h"
#include "artwork/Symbols.h"
#include "panel/views/QtGeometry.h"
#include "ui/WindowFonts.h"
#include "usage/views/QtColor.h"

namespace brimly {

namespace {

std::optional<std::string> applicationVersion() {
  const QString version = QCoreApplication::applicationVersion();
  if (version.isEmpty()) return std::nullopt;
  return version.toStdString();
}

QIcon iconToShow() {
  const QIcon icon = QGuiApplication::windowIcon();
  return icon.isNull() ? applicationIcon() : icon;
}

}  // namespace

AboutView::AboutView(QString fontFamily, std::optional<QImage> logo, QWidget* parent)
    : QWidget(parent), fontFamily_(std::move(fontFamily)), logo_(std::move(logo)) {
  if (fontFamily_.isEmpty()) fontFamily_ = windowFamily();
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  resize(sizeHint());
}

std::optional<QImage> AboutView::defaultLogo() {
  return KorvelBrand::logo();
}

QFont AboutView::fontFor(const AboutTextStyle& style) const {
  // Sizes are device-independent pixels; Qt's point sizes depend on the device's logical DPI.
  QFont font(fontFamily_);
  font.setStyleHint(QFont::SansSerif);
  font.setWeight(style.semibold ? QFont::DemiBold : QFont::Normal);
  const int dpi = logicalDpiY() > 0 ? logicalDpiY() : 96;
  font.setPointSizeF(style.size * 72.0 / dpi);
  return font;
}

Size AboutView::measure(const std::string& text, const AboutTextStyle& style) const {
  const QFontMetricsF metrics(fontFor(style), this);
  // Line boxes in whole points keep every line below on whole pixels.
  return {metrics.horizontalAdvance(QString::fromStdString(text)), std::ceil(metrics.height())};
}

AboutGeometry AboutView::currentLayout() const {
  return layoutFor(AboutContent::forVersion(applicationVersion()));
}

AboutGeometry AboutView::layoutFor(const AboutContent& content) const {
  std::optional<Size> logoSize;
  if (logo_) {
    logoSize = Size{static_cast<double>(logo_->width()), static_cast<double>(logo_->height())};
  }
  return AboutLayout::layout(
      content,
      [this](const std::string& text, const AboutTextStyle& style) { return measure(text, style); },
      logoSize);
}

QSize AboutView::sizeHint() const {
  const Size size = currentLayout().size;
  return QSize(static_cast<int>(std::ceil(size.width)), static_cast<int>(std::ceil(size.height)));
}

std::vector<DrawnText> AboutView::drawnTexts() const {
  const AboutContent content = AboutContent::forVersion(applicationVersion());
  const AboutGeometry geometry = layoutFor(content);
  std::vector<DrawnText> texts;
  for (const PlacedText& line : geometry.texts()) {
    texts.push_back(DrawnText{QString::fromStdString(line.text), {}, toQRectF(line.frame)});
  }
  if (geometry.logo) {
    // The mark is read after "by" and before the footer, where the maker's name would be.
    const auto mark = texts.end() - 1;
    texts.insert(mark, DrawnText{QString::fromStdString(content.brandName),
                                 {},
                                 toQRectF(*geometry.logo),
                                 QAccessible::Graphic});
  }
  return texts;
}

void AboutView::paintEvent(QPaintEvent*) {
  const AboutGeometry geometry = layoutFor(AboutContent::forVersion(applicationVersion()));

  QPainter painter(this);
  painter.fillRect(rect(), toQColor(AboutTheme::surface));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);

  const QRectF iconFrame = toQRectF(geometry.icon);
  iconToShow().paint(&painter, iconFrame.toAlignedRect());

  for (const PlacedText& line : geometry.texts()) {
    const QFont font = fontFor(line.style);
    const QFontMetricsF metrics(font, this);
    const QRectF frame = toQRectF(line.frame);
    // Half a point of slack: a frame is the text's own measured width, which must not elide it.
    const QString text =
        metrics.elidedText(QString::fromStdString(line.text), Qt::ElideRight, frame.width() + 0.5);
    painter.setFont(font);
    painter.setPen(toQColor(line.style.colour));
    // The text sits at the top of its line box (which is rounded up to a whole point).
    painter.drawText(QPointF(frame.x(), frame.y() + metrics.ascent()), text);
  }

  painter.fillRect(toQRectF(geometry.rule), toQColor(AboutTheme::rule));
  if (geometry.logo && logo_) {
    const QRectF frame = toQRectF(*geometry.logo);
    const qreal ratio = devicePixelRatioF();
    const QSize pixels(qRound(frame.width() * ratio), qRound(frame.height() * ratio));
    painter.drawImage(frame, logoAt(pixels));
  }
}

const QImage& AboutView::logoAt(QSize pixels) {
  if (scaledLogo_.size() != pixels) {
    scaledLogo_ = logo_->scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
  }
  return scaledLogo_;
}

}  // namespace brimly
