#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QList>
#include <QPointF>
#include <QString>
#include <limits>
#include <optional>
#include <vector>

class QPainter;
class QPaintDevice;

namespace brimly {

// Lines of text in one font, shaped once and then drawn as often as needed. Finding a line's glyphs
// and their places costs far more than drawing them, and a cell's texts change at most once a
// sample while its animations draw them again on every frame.
class ShapedLines {
 public:
  static constexpr double unlimited = std::numeric_limits<double>::infinity();

  // One character of a line and its own glyphs, for drawing characters one by one.
  struct Character {
    char32_t code = 0;
    double x = 0.0;  // where it starts, from the line's start
    QList<QGlyphRun> glyphs;
  };
  struct Line {
    double advance = 0.0;  // how far the pen moves over the line
    double layoutAscent = 0.0;
    QList<QGlyphRun> glyphs;
    std::vector<Character> characters;  // only when shaped by character
  };

  // With `byCharacter`, every line also keeps each character's own glyphs.
  explicit ShapedLines(bool byCharacter = false) : byCharacter_(byCharacter) {}

  // `text` in `font` on `device`, no wider than `maxWidth`, with any em dash in `dashFont` where
  // one is given. The font's ascent and height are those of every line of it.
  const Line& line(const QString& text, const QFont& font, const QPaintDevice& device,
                   double maxWidth = unlimited, const std::optional<QFont>& dashFont = {});
  double ascent() const { return metrics_ ? metrics_->ascent() : 0.0; }
  double height() const { return metrics_ ? metrics_->height() : 0.0; }

  // Draws `line` in the painter's pen with its baseline starting at `baseline`.
  static void draw(QPainter& painter, QPointF baseline, const Line& line);

 private:
  // Values change every sample, so the set is emptied now and then rather than growing.
  static constexpr qsizetype capacity = 64;

  bool byCharacter_;
  std::optional<QFont> font_;
  std::optional<QFont> dashFont_;
  double maxWidth_ = unlimited;
  std::optional<QFontMetricsF> metrics_;  // of `font_` on the device last drawn on
  QHash<QString, Line> lines_;
};

}  // namespace brimly
