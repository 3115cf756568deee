#pragma once

#include <QGlyphRun>
#include <QList>
#include <QPointF>
#include <string>
#include <vector>

#include "usage/MetricGridLayout.h"
#include "usage/views/ShapedLines.h"
#include "usage/views/UsageTypography.h"

class QPainter;
class QPaintDevice;

namespace brimly {

// The large value of a metric cell, at the trailing edge of its header: at rest, or at one step of
// its change from the previous text (see `ValueTransition`).
class ValueTextRenderer {
 public:
  // Glyphs to draw together: a whole text at rest, or one character of a changing one.
  struct Placed {
    QList<QGlyphRun> glyphs;
    QPointF origin;  // where the glyph runs' own origin goes, in the cell
    double opacity = 1.0;
  };

  explicit ValueTextRenderer(UsageTypography typography);

  // What the cell's header shows of its value at `step`: from 0 (`previous` as it was) to
  // `ValueTransition::steps` (`current` at rest, whatever `previous` is).
  std::vector<Placed> place(const std::string& previous, const std::string& current, long step,
                            const CellGeometry& cell, const QPaintDevice& device);
  // Draws them in the primary colour.
  void paint(QPainter& painter, const std::string& previous, const std::string& current, long step,
             const CellGeometry& cell);

 private:
  const ShapedLines::Line& line(const std::string& text, const QPaintDevice& device);
  QPointF lineOrigin(const ShapedLines::Line& line, const CellGeometry& cell, double lift) const;

  UsageTypography typography_;
  ShapedLines lines_{true};
};

}  // namespace brimly
