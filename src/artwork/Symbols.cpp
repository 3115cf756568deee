#include "artwork/Symbols.h"

#include "platform/SystemSymbols.h"

#include <QCache>
#include <QPaintEngine>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>
#include <array>
#include <cmath>
#include <mutex>
#include <optional>
#include <utility>

// The resources live in a static library, whose registration the linker would drop unless
// something refers to it: this does, and must sit outside any namespace.
static void registerArtworkResources() {
  Q_INIT_RESOURCE(artwork);
}

namespace brimly {

namespace {

// Each symbol name the code uses, and the file of our drawing for it.
constexpr std::array<std::pair<const char*, const char*>, 11> symbolFiles{{
    {"gauge.with.dots.needle.bottom.50percent", "gauge"},
    {"speedometer", "gauge"},
    {"pin", "pin"},
    {"power", "power"},
    {"thermometer.medium", "thermometer"},
    {"gearshape", "gear"},
    {"square.grid.2x2", "grid"},
    {"paintpalette", "palette"},
    {"chart.xyaxis.line", "trend"},
    {"line.3.horizontal", "drag-handle"},
    {"eye.slash", "eye-slash"},
}};

// A handful of symbols in a few sizes and colours is all the windows show at once.
constexpr int cachedRenderings = 128;

void ensureResources() {
  static std::once_flag once;
  std::call_once(once, [] { registerArtworkResources(); });
}

QString resourceOf(const QString& symbolName) {
  for (const auto& [name, file] : symbolFiles) {
    if (symbolName == QLatin1String(name)) {
      return QStringLiteral(":/artwork/symbols/%1.svg").arg(QLatin1String(file));
    }
  }
  return {};
}

QImage renderSvg(const QString& resource, int pixels) {
  QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QSvgRenderer renderer(resource);
  if (!renderer.isValid()) return {};
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  renderer.render(&painter, QRectF(0, 0, pixels, pixels));
  return image;
}

// The system's own symbol of that name where it has one (macOS), else our drawing.
QImage coverage(const QString& symbolName, const QString& resource, int pixels) {
  if (const std::optional<SymbolBitmap> system =
          renderSystemSymbol(symbolName.toStdString(), pixels)) {
    const QImage borrowed(system->rgba.data(), system->pixelSize, system->pixelSize,
                          system->pixelSize * 4, QImage::Format_RGBA8888_Premultiplied);
    return borrowed.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  }
  return renderSvg(resource, pixels);
}

QImage drawSymbol(const QString& symbolName, const QString& resource, int pixels,
                  const QColor& colour) {
  QImage image = coverage(symbolName, resource, pixels);
  if (image.isNull()) return {};
  // The drawings come in one colour; keeping only their coverage and filling it with the colour
  // lets one drawing serve every text style and tint.
  QPainter painter(&image);
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(image.rect(), colour);
  return image;
}

}  // namespace

bool hasSymbol(const QString& symbolName) {
  return !resourceOf(symbolName).isEmpty();
}

QImage renderSymbol(const QString& symbolName, double pointSize, const QColor& colour,
                    qreal devicePixelRatio) {
  const QString resource = resourceOf(symbolName);
  const double points = std::round(pointSize);
  const double exactPixels = points * devicePixelRatio;
  if (resource.isEmpty() || !std::isfinite(exactPixels)) return {};
  const long pixels = std::lround(exactPixels);
  if (pixels < 1) return {};
  ensureResources();

  static QCache<QString, QImage> cache(cachedRenderings);
  const QString key = QStringLiteral("%1|%2|%3|%4")
                          .arg(symbolName)
                          .arg(points)
                          .arg(static_cast<qulonglong>(colour.rgba64()), 0, 16)
                          .arg(devicePixelRatio);
  if (const QImage* cached = cache.object(key)) return *cached;

  QImage image = drawSymbol(symbolName, resource, static_cast<int>(pixels), colour);
  if (image.isNull()) return {};
  image.setDevicePixelRatio(devicePixelRatio);
  cache.insert(key, new QImage(image));
  return image;
}

void paintSymbol(QPainter& painter, const QString& symbolName, double pointSize,
                 const QColor& colour, QPointF centre) {
  const QPaintEngine* engine = painter.paintEngine();
  const qreal ratio =
      engine && engine->paintDevice() ? engine->paintDevice()->devicePixelRatioF() : 1.0;
  const QImage symbol = renderSymbol(symbolName, pointSize, colour, ratio);
  if (symbol.isNull()) return;
  const QSizeF size = symbol.deviceIndependentSize();
  const QPointF wanted = centre - QPointF(size.width(), size.height()) / 2.0;
  // Where the top-left corner lands in device pixels, rounded to a whole one and taken back.
  const QTransform& toDevice = painter.deviceTransform();
  const QPointF onDevice = toDevice.map(wanted);
  const QPointF snapped(std::round(onDevice.x()), std::round(onDevice.y()));
  painter.drawImage(toDevice.inverted().map(snapped), symbol);
}

QIcon applicationIcon() {
  ensureResources();
  static const QIcon icon = [] {
    QIcon made;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
      made.addPixmap(QPixmap::fromImage(renderSvg(QStringLiteral(":/artwork/app-icon.svg"), size)));
    }
    return made;
  }();
  return icon;
}

}  // namespace brimly
