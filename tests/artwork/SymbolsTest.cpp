#include "artwork/Symbols.h"

#include <gtest/gtest.h>

#include <QPainter>
#include <QStringList>
#include <cmath>
#include <cstdlib>

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
    "line.3.horizontal",
    "eye.slash",
};

// One name for each of our nine drawings ("speedometer" shares the gauge).
const QStringList oneNamePerDrawing{
    "gauge.with.dots.needle.bottom.50percent",
    "pin",
    "power",
    "thermometer.medium",
    "gearshape",
    "square.grid.2x2",
    "paintpalette",
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

  // 12.5 × 1.5 = 18.75 physical pixels, rounded to 19.
  EXPECT_EQ(renderSymbol("power", 12.5, orange, 1.5).size(), QSize(19, 19));
}

TEST(SymbolsTest, EverySymbolIsDrawnInsideItsSquareAroundTheCentre) {
  if (systemDrawsTheSymbols) GTEST_SKIP() << systemSymbolsReason;
  for (const QString& name : allNames) {
    const QImage image = renderSymbol(name, 48, orange, 1.0);
    ASSERT_FALSE(image.isNull()) << name.toStdString();
    const Coverage coverage = coverageOf(image);
    // A line drawing: some ink, far from a filled square.
    EXPECT_GT(coverage.inked, 0.05) << name.toStdString();
    EXPECT_LT(coverage.inked, 0.6) << name.toStdString();
    EXPECT_NEAR(coverage.centreX, 24.0, 48 * 0.1) << name.toStdString();
    EXPECT_NEAR(coverage.centreY, 24.0, 48 * 0.1) << name.toStdString();
    // No glyph runs into the edge of its square.
    EXPECT_TRUE(QRect(1, 1, 46, 46).contains(coverage.bounds)) << name.toStdString();
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

TEST(SymbolsTest, MatchesTheReferenceRow) {
  // Every drawing at 24 points, white on the windows' surface, on a screen of ratio 2.
  constexpr int step = 32;
  constexpr int margin = 8;
  const int count = static_cast<int>(oneNamePerDrawing.size());
  QImage row(QSize(margin * 2 + count * step - (step - 24), 24 + margin * 2) * 2,
             QImage::Format_ARGB32_Premultiplied);
  row.setDevicePixelRatio(2.0);
  row.fill(toQColor(Theme::surface));
  {
    QPainter painter(&row);
    for (int i = 0; i < count; ++i) {
      painter.drawImage(QPointF(margin + i * step, margin),
                        renderSymbol(oneNamePerDrawing[i], 24, Qt::white, 2.0));
    }
  }
  EXPECT_TRUE(testing::matchesReference(row, QString(BRIMLY_REFERENCE_DIR) + "/symbols-24pt.png"));
}

}  // namespace
}  // namespace brimly
