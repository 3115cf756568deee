#pragma once

#include <QGlyphRun>
#include <QList>
#include <QPointF>
#include <string>
#include <vector>

#include "usage/MetricGridLayout.h"
#include "usage/ValueTransition.h"
#include "usage/views/ShapedLines.h"
#include "usage/views/UsageFonts.h"
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
  // How wide the value is at any step from `previous` to `current` on `device`: the wider text.
  double width(const std::string& previous, const std::string& current, const QPaintDevice& device);
  // Draws them in the primary colour.
  void paint(QPainter& painter, const std::string& previous, const std::string& current, long step,
             const CellGeometry& cell);

 private:
  // A change from one text to another, as shaped on one device: worked out once, then drawn at
  // each of its steps.
  struct Change {
    std::string from;
    std::string to;
    int dpi = 0;  // the resolution they were shaped for
    ShapedLines::Line before;
    ShapedLines::Line after;
    ValueTransition transition;
  };

  const ShapedLines::Line& line(const std::string& text, const QPaintDevice& device);
  const Change& change(const std::string& previous, const std::string& current,
                       const QPaintDevice& device);
  QPointF lineOrigin(const ShapedLines::Line& line, const CellGeometry& cell, double lift) const;

  // Every cell's value can be changing at once.
  static constexpr std::size_t keptChanges = 6;

  UsageFonts fonts_;
  ShapedLines lines_{true};
  std::vector<Change> changes_;  // the last ones drawn, the latest last
};

}  // namespace brimly
