#include "usage/views/ShapedLines.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>

namespace brimly {

namespace {

constexpr QChar emDash(0x2014);

}  // namespace

const ShapedLines::Line& ShapedLines::line(const QString& text, const QFont& font,
                                           const QPaintDevice& device, double maxWidth,
                                           const std::optional<QFont>& dashFont) {
  // A different font (another screen's resolution) or width shapes every line anew.
  if (font_ != font || dashFont_ != dashFont || maxWidth != maxWidth_ ||
      lines_.size() >= capacity) {
    font_ = font;
    dashFont_ = dashFont;
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
  QTextLayout layout(shown, font, &device);
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  layout.setTextOption(option);
  if (dashFont) {
    // A monospaced face squeezes the dash into one narrow cell, where it reads as a hyphen.
    QList<QTextLayout::FormatRange> dashes;
    for (qsizetype i = shown.indexOf(emDash); i >= 0; i = shown.indexOf(emDash, i + 1)) {
      QTextLayout::FormatRange dash{static_cast<int>(i), 1, {}};
      dash.format.setFont(*dashFont);
      dashes.append(dash);
    }
    layout.setFormats(dashes);
  }
  layout.beginLayout();
  QTextLine textLine = layout.createLine();
  layout.endLayout();
  if (!textLine.isValid()) return *lines_.insert(text, std::move(shaped));
  shaped.advance = textLine.horizontalAdvance();
  shaped.layoutAscent = textLine.ascent();
  shaped.glyphs = textLine.glyphRuns();
  for (qsizetype i = 0; byCharacter_ && i < shown.size(); ++i) {
    const int at = static_cast<int>(i);
    shaped.characters.push_back(
        {shown.at(i).unicode(), textLine.cursorToX(at), textLine.glyphRuns(at, 1)});
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
