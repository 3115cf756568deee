// Every step of a value text's change, drawn in the panel's own faces at one and two device pixels
// a point: the glyphs of a step never overlap one another, stay inside the cell's header, and the
// grid paints nothing but these steps while a value changes.
#include "usage/views/ValueTextRenderer.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cctype>
#include <string>
#include <utility>
#include <vector>

#include "ReferenceTypography.h"
#include "panel/views/QtGeometry.h"
#include "usage/ValueTransition.h"
#include "usage/views/UsageView.h"

namespace brimly {
namespace {

struct Change {
  std::string from;
  std::string to;
};

constexpr double cellWidth = 172.0;
constexpr double headerHeight = UsageTypography::headerHeight;

QImage blankHeader(qreal ratio, QColor fill = Qt::transparent) {
  QImage image(QSize(static_cast<int>(cellWidth * ratio), static_cast<int>(headerHeight * ratio)),
               QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(fill);
  return image;
}

// The pixels one group of glyphs covers, drawn on its own.
QImage coverage(const ValueTextRenderer::Placed& placed, qreal ratio) {
  QImage image = blankHeader(ratio);
  QPainter painter(&image);
  painter.setPen(Qt::white);
  for (const QGlyphRun& run : placed.glyphs)
    painter.drawGlyphRun(placed.origin, run);
  return image;
}

class ValueTextRendererTest : public ::testing::TestWithParam<std::pair<Change, qreal>> {};

TEST_P(ValueTextRendererTest, NoStepHoldsOverlappingGlyphs) {
  const auto& [change, ratio] = GetParam();
  ValueTextRenderer renderer(testing::designedTypography());
  const CellGeometry cell = MetricGridLayout::cellLayout(cellWidth, headerHeight);
  const QImage device = blankHeader(ratio);
  for (long step = 0; step <= ValueTransition::steps; ++step) {
    const std::vector<ValueTextRenderer::Placed> placed =
        renderer.place(change.from, change.to, step, cell, device);
    ASSERT_FALSE(placed.empty()) << "step " << step;
    std::vector<QImage> layers;
    for (const ValueTextRenderer::Placed& group : placed)
      layers.push_back(coverage(group, ratio));
    const QImage& first = layers.front();
    int inked = 0;
    for (int y = 0; y < first.height(); ++y) {
      for (int x = 0; x < first.width(); ++x) {
        int covering = 0;
        for (const QImage& layer : layers)
          covering += qAlpha(layer.pixel(x, y)) > 0 ? 1 : 0;
        EXPECT_LE(covering, 1) << "step " << step << ": glyphs overlap at (" << x << ", " << y
                               << ") of \"" << change.from << "\" to \"" << change.to << "\"";
        if (covering > 1) return;
        inked += covering;
      }
    }
    EXPECT_GT(inked, 0) << "step " << step << " draws nothing";
    // Nothing is lost at the header's edges, where the grid's repaints would leave it behind.
    for (const QImage& layer : layers) {
      for (int x = 0; x < layer.width(); ++x) {
        EXPECT_EQ(qAlpha(layer.pixel(x, 0)), 0) << "step " << step << " touches the top";
        EXPECT_EQ(qAlpha(layer.pixel(x, layer.height() - 1)), 0) << "step " << step;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(
    Changes, ValueTextRendererTest,
    ::testing::Values(std::pair{Change{"98%", "100%"}, 1.0}, std::pair{Change{"98%", "100%"}, 2.0},
                      std::pair{Change{"9%", "10%"}, 1.0}, std::pair{Change{"9%", "10%"}, 2.0},
                      std::pair{Change{"\u2014", "42%"}, 1.0},
                      std::pair{Change{"\u2014", "42%"}, 2.0},
                      std::pair{Change{"1.0 TB", "999 GB"}, 1.0},
                      std::pair{Change{"1.0 TB", "999 GB"}, 2.0}),
    [](const ::testing::TestParamInfo<std::pair<Change, qreal>>& info) {
      std::string name;
      for (const char c : info.param.first.from + " to " + info.param.first.to) {
        if (std::isalnum(static_cast<unsigned char>(c))) name += c;
        if (c == ' ' || c == '.') name += '_';
        if (c == '%') name += "pct";
      }
      if (info.param.first.from == "\u2014") name = "dash" + name;
      return name + "_at_" + std::to_string(static_cast<int>(info.param.second)) + "x";
    });

TEST(ValueTextRendererRestTest, AtRestTheWholeTextIsDrawnAtOnce) {
  ValueTextRenderer renderer(testing::designedTypography());
  const CellGeometry cell = MetricGridLayout::cellLayout(cellWidth, headerHeight);
  const std::vector<ValueTextRenderer::Placed> placed =
      renderer.place("98%", "100%", ValueTransition::steps, cell, blankHeader(1.0));
  ASSERT_EQ(placed.size(), 1u);
  EXPECT_EQ(placed[0].opacity, 1.0);
}

TEST(ValueTextRendererRestTest, AChangeIsAsWideAsTheWiderOfItsTexts) {
  ValueTextRenderer renderer(testing::designedTypography());
  const QImage device = blankHeader(1.0);
  const double narrow = renderer.width("9%", "9%", device);
  const double wide = renderer.width("100%", "100%", device);
  EXPECT_GT(wide, narrow);
  EXPECT_EQ(renderer.width("9%", "100%", device), wide);
  EXPECT_EQ(renderer.width("100%", "9%", device), wide);
  EXPECT_EQ(renderer.width("", "9%", device), narrow);
}

TEST(ValueTextRendererRestTest, ThePlaceholderDashIsWiderThanAHyphen) {
  ValueTextRenderer renderer(testing::designedTypography());
  const CellGeometry cell = MetricGridLayout::cellLayout(cellWidth, headerHeight);
  const QImage device = blankHeader(1.0);
  const auto inkWidth = [&](const std::string& text) {
    const QImage ink =
        coverage(renderer.place(text, text, ValueTransition::steps, cell, device)[0], 1.0);
    int left = ink.width();
    int right = -1;
    for (int y = 0; y < ink.height(); ++y) {
      for (int x = 0; x < ink.width(); ++x) {
        if (qAlpha(ink.pixel(x, y)) < 128) continue;
        left = std::min(left, x);
        right = std::max(right, x);
      }
    }
    return right - left + 1;
  };
  // A monospaced em dash fills no more than its one cell, barely more than a hyphen does.
  EXPECT_GE(inkWidth("\u2014"), 2 * inkWidth("-"));
  EXPECT_GE(inkWidth("\u2014"), 9);
}

// The grid itself, pinned open: while the CPU figure changes, every frame it paints shows the value
// exactly as one of the renderer's steps does.
TEST(ValueTextInTheGridTest, EveryPaintedFrameIsOneOfTheSteps) {
  for (const auto& [from, to] : std::vector<std::pair<double, double>>{{0.98, 1.0}, {0.09, 0.10}}) {
    double now = 5.0;
    UsageView view(3, cellWidth, testing::designedTypography());
    view.frameTimer().setClock([&now] { return now; });
    view.setMetricOrder({MetricKind::cpu});
    MetricSample sample;
    sample.cpu = from;
    view.setSample(sample);
    view.show();
    const std::string before = view.cells()[0].primary;
    sample.cpu = to;
    view.setSample(sample);
    const std::string after = view.cells()[0].primary;
    const QRectF cellFrame = toQRectF(view.geometry().cells[0].frame);
    const CellGeometry cell = MetricGridLayout::cellLayout(cellWidth, view.headerHeight());

    // Each step drawn alone on the grid's black, with the label the header also holds.
    const auto valueOf = [&](const QImage& image) {
      return image.copy(QRect(QPoint(90, 0), QSize(82, static_cast<int>(view.headerHeight()))));
    };
    std::vector<QImage> steps;
    ValueTextRenderer renderer(testing::designedTypography());
    for (long step = 0; step <= ValueTransition::steps; ++step) {
      QImage image(cellFrame.size().toSize(), QImage::Format_ARGB32_Premultiplied);
      image.fill(Qt::black);
      QPainter painter(&image);
      renderer.paint(painter, before, after, step, cell);
      painter.end();
      steps.push_back(valueOf(image));
    }

    // The first step comes with the sample itself, the others each with a frame.
    int frames = 0;
    for (bool first = true; first || (view.isAnimating() && frames < 100); first = false) {
      if (!first) {
        now += view.frameTimer().msToNextFrame() / 1000.0;
        view.frameTimer().tick();
      }
      QImage grid(view.size(), QImage::Format_ARGB32_Premultiplied);
      grid.fill(Qt::black);
      view.render(&grid, QPoint(), QRegion(), QWidget::DrawChildren);
      const QImage shown = valueOf(grid.copy(cellFrame.toAlignedRect()));
      EXPECT_NE(std::find(steps.begin(), steps.end(), shown), steps.end())
          << "frame " << frames << " of " << before << " to " << after << " is no step";
      ++frames;
    }
    EXPECT_GE(frames, ValueTransition::steps);
  }
}

}  // namespace
}  // namespace brimly
