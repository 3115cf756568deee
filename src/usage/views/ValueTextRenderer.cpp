#include "usage/views/ValueTextRenderer.h"

#include <QPainter>
#include <QString>
#include <algorithm>
#include <utility>

#include "usage/Theme.h"
#include "usage/views/QtColor.h"

namespace brimly {

namespace {

// The characters of a laid-out text, placed from its trailing edge, where values line up.
std::vector<ValueTransition::Character> charactersOf(const ShapedLines::Line& line) {
  std::vector<ValueTransition::Character> characters;
  characters.reserve(line.characters.size());
  for (const ShapedLines::Character& character : line.characters) {
    characters.push_back({character.code, line.advance - character.x});
  }
  return characters;
}

}  // namespace

ValueTextRenderer::ValueTextRenderer(UsageTypography typography) : fonts_(std::move(typography)) {}

std::vector<ValueTextRenderer::Placed> ValueTextRenderer::place(const std::string& previous,
                                                                const std::string& current,
                                                                long step, const CellGeometry& cell,
                                                                const QPaintDevice& device) {
  if (step >= ValueTransition::steps) {
    const ShapedLines::Line& rest = line(current, device);
    return {{rest.glyphs, lineOrigin(rest, cell, 0.0), 1.0}};
  }
  const Change& shown = change(previous, current, device);
  std::vector<Placed> placed;
  for (const ValueTransition::Drawn& drawn : shown.transition.at(static_cast<int>(step))) {
    const ShapedLines::Line& from =
        drawn.source == ValueTransition::Source::previous ? shown.before : shown.after;
    placed.push_back(
        {from.characters[drawn.index].glyphs, lineOrigin(from, cell, drawn.lift), drawn.opacity});
  }
  return placed;
}

double ValueTextRenderer::width(const std::string& previous, const std::string& current,
                                const QPaintDevice& device) {
  // The change the frames to come will draw: worked out here once, and found again when painted.
  const Change& shown = change(previous, current, device);
  return std::max(shown.before.advance, shown.after.advance);
}

void ValueTextRenderer::paint(QPainter& painter, const std::string& previous,
                              const std::string& current, long step, const CellGeometry& cell) {
  static const QColor primary = toQColor(Theme::primaryForeground);
  for (const Placed& placed : place(previous, current, step, cell, *painter.device())) {
    QColor colour = primary;
    colour.setAlphaF(static_cast<float>(colour.alphaF() * placed.opacity));
    painter.setPen(colour);
    for (const QGlyphRun& run : placed.glyphs)
      painter.drawGlyphRun(placed.origin, run);
  }
}

const ShapedLines::Line& ValueTextRenderer::line(const std::string& text,
                                                 const QPaintDevice& device) {
  const UsageFontSet& fonts = fonts_.on(device);
  return lines_.line(QString::fromStdString(text), fonts.value, device, ShapedLines::unlimited,
                     fonts.dash);
}

const ValueTextRenderer::Change& ValueTextRenderer::change(const std::string& previous,
                                                           const std::string& current,
                                                           const QPaintDevice& device) {
  fonts_.on(device);
  for (const Change& known : changes_) {
    if (known.from == previous && known.to == current && known.dpi == fonts_.dpi()) return known;
  }
  // Copies: shaping the second text may make room in the cache by dropping the first.
  ShapedLines::Line before = line(previous, device);
  ShapedLines::Line after = line(current, device);
  ValueTransition transition(charactersOf(before), charactersOf(after));
  if (changes_.size() == keptChanges) changes_.erase(changes_.begin());
  changes_.push_back({previous, current, fonts_.dpi(), std::move(before), std::move(after),
                      std::move(transition)});
  return changes_.back();
}

QPointF ValueTextRenderer::lineOrigin(const ShapedLines::Line& line, const CellGeometry& cell,
                                      double lift) const {
  // The glyph runs are placed with the line's top at 0 and its baseline at the line's own ascent.
  const Rect frame = cell.primaryFrame({line.advance, lines_.height()});
  return {frame.x, frame.y + lines_.ascent() - line.layoutAscent - lift * lines_.height()};
}

}  // namespace brimly
