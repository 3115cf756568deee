#include "usage/views/ShapedLines.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

namespace brimly {

const ShapedLines::Line& ShapedLines::line(const QString& text, const QFont& font,
                                           const QPaintDevice& device, double maxWidth) {
  // A different font (another screen's resolution) or width shapes every line anew.
  if (font_ != font || maxWidth != maxWidth_ || lines_.size() >= capacity) {
    font_ = font;
    maxWidth_ = maxWidth;
    metrics_.emplace(font, &device);
    lines_.clear();
  }
  const auto found = lines_.constFind(text);
  if (found != lines_.constEnd()) return *found;

  const QFontMetricsF& metrics = *metrics_;
  Line shaped;
  // Cut with an ellipsis where it does not fit.
  const QString shown =
      maxWidth == unlimited ? text : metrics.elidedText(text, Qt::ElideRight, maxWidth);
  shaped.advance = metrics.horizontalAdvance(shown);
  QTextLayout layout(shown, font, &device);
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  layout.setTextOption(option);
  layout.beginLayout();
  QTextLine textLine = layout.createLine();
  layout.endLayout();
  if (textLine.isValid()) {
    shaped.layoutAscent = textLine.ascent();
    shaped.glyphs = textLine.glyphRuns();
  }
  return *lines_.insert(text, std::move(shaped));
}

void ShapedLines::draw(QPainter& painter, QPointF baseline, const Line& line) {
  // The runs are placed with the line's top at 0 and its baseline at the line's own ascent.
  const QPointF origin(baseline.x(), baseline.y() - line.layoutAscent);
  for (const QGlyphRun& run : line.glyphs)
    painter.drawGlyphRun(origin, run);
}

}  // namespace brimly
