#include "artwork/Symbols.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QStringList>
#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include "ReferenceImage.h"
#include "usage/Theme.h"
#include "usage/views/QtColor.h"

namespace brimly {
namespace {

// On macOS the windows show the system's own symbols by these names; the checks of the shapes of
// our drawings then have nothing to look at.
#ifdef __APPLE__
constexpr bool systemDrawsTheSymbols = true;
#else
constexpr bool systemDrawsTheSymbols = false;
#endif
constexpr const char* systemSymbolsReason =
    "macOS draws its own system symbols in place of Brimly's drawings";

// Every symbol name the windows ask for.
const QStringList allNames{
    "gauge.with.dots.needle.bottom.50percent",
    "speedometer",
    "pin",
    "power",
    "thermometer.medium",
    "gearshape",
    "square.grid.2x2",
    "paintpalette",
    "chart.xyaxis.line",
    "line.3.horizontal",
    "eye.slash",
};

// One name for each of our ten drawings ("speedometer" shares the gauge).
const QStringList oneNamePerDrawing{
    "gauge.with.dots.needle.bottom.50percent",
    "pin",
    "power",
    "thermometer.medium",
    "gearshape",
    "square.grid.2x2",
    "paintpalette",
    "chart.xyaxis.line",
    "line.3.horizontal",
    "eye.slash",
};

const QColor orange(255, 128, 0);

struct Coverage {
  double inked = 0.0;  // the fraction of pixels with any alpha
  double centreX = 0.0;
  double centreY = 0.0;  // alpha-weighted centre, in pixels
  QRect bounds;          // the smallest rectangle holding every inked pixel
};

Coverage coverageOf(const QImage& image) {
  Coverage result;
  double weight = 0.0;
  long inked = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const int alpha = qAlpha(image.pixel(x, y));
      if (alpha == 0) continue;
      ++inked;
      weight += alpha;
      result.centreX += alpha * (x + 0.5);
      result.centreY += alpha * (y + 0.5);
      result.bounds |= QRect(x, y, 1, 1);
    }
  }
  result.inked = static_cast<double>(inked) / (image.width() * image.height());
  if (weight > 0) {
    result.centreX /= weight;
    result.centreY /= weight;
  }
  return result;
}

TEST(SymbolsTest, AnUnknownNameHasNoSymbol) {
  for (const QString& name : QStringList{"", "gearshape.fill", "Gearshape", "gear", "eye"}) {
    EXPECT_FALSE(hasSymbol(name)) << name.toStdString();
    EXPECT_TRUE(renderSymbol(name, 24, orange, 1.0).isNull()) << name.toStdString();
  }
}

TEST(SymbolsTest, ASizeUnderOnePixelGivesNoImage) {
  EXPECT_TRUE(renderSymbol("pin", 0, orange, 1.0).isNull());
  EXPECT_TRUE(renderSymbol("pin", -4, orange, 1.0).isNull());
  EXPECT_TRUE(renderSymbol("pin", 0.2, orange, 2.0).isNull());
  EXPECT_TRUE(renderSymbol("pin", std::nan(""), orange, 1.0).isNull());
}

TEST(SymbolsTest, EveryNameHasASymbol) {
  for (const QString& name : allNames)
    EXPECT_TRUE(hasSymbol(name)) << name.toStdString();
}

TEST(SymbolsTest, SizeAndPixelRatioAreHonoured) {
  const QImage plain = renderSymbol("power", 11, orange, 1.0);
  EXPECT_EQ(plain.size(), QSize(11, 11));
  EXPECT_EQ(plain.devicePixelRatio(), 1.0);

  const QImage retina = renderSymbol("power", 11, orange, 2.0);
  EXPECT_EQ(retina.size(), QSize(22, 22));
  EXPECT_EQ(retina.devicePixelRatio(), 2.0);
  EXPECT_EQ(retina.deviceIndependentSize(), QSizeF(11, 11));
}

TEST(SymbolsTest, ASizeBetweenWholePointsIsDrawnInTheWholePointsNearest) {
  // 12.5 points, the switch rows' size, is drawn in 13: the grid their drawings are made on.
  EXPECT_EQ(renderSymbol("power", 12.5, orange, 1.0).size(), QSize(13, 13));
  EXPECT_EQ(renderSymbol("power", 12.5, orange, 2.0).size(), QSize(26, 26));
  // 13 × 1.5 = 19.5 physical pixels, rounded to 20.
  EXPECT_EQ(renderSymbol("power", 12.5, orange, 1.5).size(), QSize(20, 20));
  EXPECT_EQ(renderSymbol("power", 12.5, orange, 1.0), renderSymbol("power", 13, orange, 1.0));
  EXPECT_EQ(renderSymbol("power", 12.4, orange, 1.0).size(), QSize(12, 12));
}

// Each drawing at the size the windows show it at.
struct SymbolInUse {
  const char* name;
  double pointSize;
};
const std::vector<SymbolInUse> symbolsInUse{
    {"gauge.with.dots.needle.bottom.50percent", 16},
    {"pin", 12.5},
    {"power", 12.5},
    {"thermometer.medium", 12.5},
    {"gearshape", 11},
    {"square.grid.2x2", 11},
    {"paintpalette", 11},
    {"chart.xyaxis.line", 12.5},
    {"line.3.horizontal", 11},
    {"eye.slash", 11},
};

TEST(SymbolsTest, EverySymbolFillsItsSquareAroundTheCentreAsTheSystemsSymbolsDo) {
  if (systemDrawsTheSymbols) GTEST_SKIP() << systemSymbolsReason;
  for (const SymbolInUse& symbol : symbolsInUse) {
    for (const double ratio : {1.0, 2.0}) {
      const QImage image = renderSymbol(symbol.name, symbol.pointSize, orange, ratio);
      ASSERT_FALSE(image.isNull()) << symbol.name;
      const Coverage coverage = coverageOf(image);
      const double side = image.width();
      SCOPED_TRACE(std::string(symbol.name) + " at " + std::to_string(ratio));
      // A line drawing: some ink, far from a filled square.
      EXPECT_GT(coverage.inked, 0.1);
      EXPECT_LT(coverage.inked, 0.75);
      EXPECT_NEAR(coverage.centreX, side / 2, side * 0.1);
      EXPECT_NEAR(coverage.centreY, side / 2, side * 0.12);
      // As tall or as wide as the square, or nearly: not a small drawing in a wide margin.
      EXPECT_GE(std::max(coverage.bounds.width(), coverage.bounds.height()), side * 0.9);
      EXPECT_TRUE(image.rect().contains(coverage.bounds));
    }
  }
}

// The fraction of a drawing's inked pixels that are inked fully (or nearly): pixels that a
// stroke only grazes make a line look soft.
double solidShare(const QImage& image) {
  long inked = 0;
  long solid = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const int alpha = qAlpha(image.pixel(x, y));
      if (alpha == 0) continue;
      ++inked;
      if (alpha >= 230) ++solid;
    }
  }
  return inked == 0 ? 0.0 : static_cast<double>(solid) / static_cast<double>(inked);
}

TEST(SymbolsTest, TheStraightStrokesFallOnWholePixelsAtOneAndTwoTimes) {
  if (systemDrawsTheSymbols) GTEST_SKIP() << systemSymbolsReason;
  // Drawings made of straight lines: nearly every pixel they touch is inked fully. Only the grid's
  // rounded corners and the pin's slanted shoulders are drawn in part.
  struct Straight {
    const char* name;
    double pointSize;
    double solid;  // the least share of fully inked pixels
  };
  for (const Straight& symbol :
       {Straight{"line.3.horizontal", 11, 1.0}, Straight{"square.grid.2x2", 11, 0.75},
        Straight{"pin", 12.5, 0.7}}) {
    for (const double ratio : {1.0, 2.0}) {
      EXPECT_GE(solidShare(renderSymbol(symbol.name, symbol.pointSize, orange, ratio)),
                symbol.solid)
          << symbol.name << " at " << ratio;
    }
  }
}

TEST(SymbolsTest, EverySymbolIsFilledWithTheColourOnly) {
  for (const QColor& colour : {orange, QColor(Qt::white), QColor(20, 200, 140)}) {
    for (const QString& name : allNames) {
      const QImage image = renderSymbol(name, 24, colour, 2.0);
      ASSERT_EQ(image.format(), QImage::Format_ARGB32_Premultiplied);
      int wrong = 0;
      for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
          // Stored premultiplied: at coverage a, each channel is the colour's times a.
          const QRgb pixel = image.pixel(x, y);
          const int alpha = qAlpha(pixel);
          const auto expected = [alpha](int channel) { return channel * alpha / 255.0; };
          if (std::abs(qRed(pixel) - expected(colour.red())) > 1 ||
              std::abs(qGreen(pixel) - expected(colour.green())) > 1 ||
              std::abs(qBlue(pixel) - expected(colour.blue())) > 1) {
            ++wrong;
          }
        }
      }
      EXPECT_EQ(wrong, 0) << name.toStdString();
    }
  }
}

TEST(SymbolsTest, TheColoursOpacityFadesTheGlyph) {
  const QImage opaque = renderSymbol("gearshape", 24, QColor(255, 255, 255), 1.0);
  const QImage faded = renderSymbol("gearshape", 24, QColor(255, 255, 255, 128), 1.0);
  for (int y = 0; y < 24; ++y) {
    for (int x = 0; x < 24; ++x) {
      EXPECT_NEAR(qAlpha(faded.pixel(x, y)), qAlpha(opaque.pixel(x, y)) * 128 / 255.0, 1.0);
    }
  }
}

TEST(SymbolsTest, TheGaugeHasTwoNames) {
  if (systemDrawsTheSymbols) GTEST_SKIP() << systemSymbolsReason;
  EXPECT_EQ(renderSymbol("speedometer", 24, orange, 1.0),
            renderSymbol("gauge.with.dots.needle.bottom.50percent", 24, orange, 1.0));
}

TEST(SymbolsTest, EveryDrawingIsDifferent) {
  for (int i = 0; i < oneNamePerDrawing.size(); ++i) {
    for (int j = i + 1; j < oneNamePerDrawing.size(); ++j) {
      EXPECT_NE(renderSymbol(oneNamePerDrawing[i], 24, orange, 1.0),
                renderSymbol(oneNamePerDrawing[j], 24, orange, 1.0))
          << oneNamePerDrawing[i].toStdString() << " and " << oneNamePerDrawing[j].toStdString();
    }
  }
}

TEST(SymbolsTest, ARepeatedRenderingComesFromTheCache) {
  const QImage first = renderSymbol("paintpalette", 30, orange, 2.0);
  EXPECT_EQ(renderSymbol("paintpalette", 30, orange, 2.0).cacheKey(), first.cacheKey());
  // Another colour, size or ratio is another rendering.
  EXPECT_NE(renderSymbol("paintpalette", 30, Qt::white, 2.0).cacheKey(), first.cacheKey());
  EXPECT_NE(renderSymbol("paintpalette", 31, orange, 2.0).cacheKey(), first.cacheKey());
  EXPECT_NE(renderSymbol("paintpalette", 30, orange, 1.0).cacheKey(), first.cacheKey());
}

// Every drawing at the size the windows show it at, and the palette at the Appearance tab's 30
// points, white on the windows' surface, on a screen of `ratio`.
QImage contactSheet(double ratio) {
  constexpr int step = 24;
  constexpr int margin = 8;
  const int count = static_cast<int>(symbolsInUse.size()) + 1;
  const QSize points(margin * 2 + count * step + 30 - step, margin * 2 + 30);
  QImage sheet(points * ratio, QImage::Format_ARGB32_Premultiplied);
  sheet.setDevicePixelRatio(ratio);
  sheet.fill(toQColor(Theme::surface));
  QPainter painter(&sheet);
  const double middle = margin + 15;
  for (int i = 0; i < count - 1; ++i) {
    paintSymbol(painter, symbolsInUse[i].name, symbolsInUse[i].pointSize, Qt::white,
                QPointF(margin + i * step + 8, middle));
  }
  paintSymbol(painter, "paintpalette", 30, Qt::white,
              QPointF(margin + (count - 1) * step + 15, middle));
  return sheet;
}

TEST(SymbolsTest, MatchesTheReferenceSheetsAtOneAndTwoTimes) {
  if (systemDrawsTheSymbols) GTEST_SKIP() << systemSymbolsReason;
  EXPECT_TRUE(testing::matchesReference(contactSheet(1.0),
                                        QString(BRIMLY_REFERENCE_DIR) + "/symbols-1x.png"));
  EXPECT_TRUE(testing::matchesReference(contactSheet(2.0),
                                        QString(BRIMLY_REFERENCE_DIR) + "/symbols-2x.png"));
}

// paintSymbol draws the symbol at its own size with its corner on a whole device pixel, at the
// device's pixel ratio.
QImage paintedAt(QPointF centre, double ratio) {
  QImage canvas(QSize(40, 40) * ratio, QImage::Format_ARGB32_Premultiplied);
  canvas.setDevicePixelRatio(ratio);
  canvas.fill(Qt::transparent);
  QPainter painter(&canvas);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  paintSymbol(painter, "pin", 12.5, orange, centre);
  return canvas;
}

TEST(SymbolsTest, APaintedSymbolKeepsItsPixelsWhereverItsCentreFalls) {
  for (const double ratio : {1.0, 2.0}) {
    const QImage symbol = renderSymbol("pin", 12.5, orange, ratio);
    const QImage painted = paintedAt(QPointF(20.3, 19.8), ratio);
    // The 13-point square centred on (20.3, 19.8) starts at (13.8, 13.3): moved to the nearest
    // whole device pixel, and copied there pixel for pixel.
    const QPoint corner = ratio == 1.0 ? QPoint(14, 13) : QPoint(28, 27);
    EXPECT_EQ(painted.copy(QRect(corner, symbol.size())), symbol.convertToFormat(painted.format()))
        << "at " << ratio;
    EXPECT_TRUE(QRect(corner, symbol.size()).contains(coverageOf(painted).bounds))
        << "at " << ratio;
  }
}

TEST(SymbolsTest, APaintedSymbolFollowsThePaintersTranslation) {
  QImage canvas(40, 40, QImage::Format_ARGB32_Premultiplied);
  canvas.fill(Qt::transparent);
  {
    QPainter painter(&canvas);
    painter.translate(5, 3);
    paintSymbol(painter, "power", 11, orange, QPointF(10.5, 10.5));
  }
  // Centred on (15.5, 13.5) of the canvas: the 11-pixel square from (10, 8).
  const QImage symbol = renderSymbol("power", 11, orange, 1.0);
  EXPECT_EQ(canvas.copy(QRect(QPoint(10, 8), symbol.size())), symbol);
}

TEST(SymbolsTest, AnUnknownSymbolPaintsNothing) {
  QImage canvas(20, 20, QImage::Format_ARGB32_Premultiplied);
  canvas.fill(Qt::transparent);
  {
    QPainter painter(&canvas);
    paintSymbol(painter, "gear", 11, orange, QPointF(10, 10));
  }
  EXPECT_EQ(coverageOf(canvas).inked, 0.0);
}

}  // namespace
}  // namespace brimly
