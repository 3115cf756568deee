#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "about/AboutContent.h"
#include "core/Geometry.h"
#include "usage/Color.h"
#include "usage/Theme.h"

namespace brimly {

// How a line of the About window is set: its size in points, its weight and its colour.
struct AboutTextStyle {
  double size = 11.0;
  bool semibold = false;
  Color colour = Theme::secondaryForeground;

  bool operator==(const AboutTextStyle&) const = default;
};

// One line of text and the frame it is drawn in (its line box; the view elides a text wider
// than its frame).
struct PlacedText {
  std::string text;
  AboutTextStyle style;
  Rect frame;

  bool operator==(const PlacedText&) const = default;
};

// Everything the About view draws, in its own coordinates (origin at the top left, points).
struct AboutGeometry {
  Size size;
  Rect icon;
  PlacedText name;
  PlacedText version;
  PlacedText tagline;
  Rect rule;
  Rect brandRow;  // "by" and the maker's mark, side by side
  PlacedText by;
  std::optional<Rect> logo;             // the logo's frame, when there is a logo
  std::optional<PlacedText> brandName;  // the maker's name in text, when there is none
  PlacedText footer;

  // Every text, top to bottom and leading to trailing.
  std::vector<PlacedText> texts() const;

  bool operator==(const AboutGeometry&) const = default;
};

// The About window's layout: a column centred in a frame exactly 300 points wide, padded 32 left
// and right, 28 at the top and 24 at the bottom, whose height follows its content:
//   the application icon, 72 × 72;
//   the name (19, semibold, primary), 10 below the icon;
//   the version (11, secondary), 2 below;
//   the tagline (11, secondary), 10 below;
//   a rule 160 × 1, with 16 above and below;
//   the brand row: "by" (11, secondary), 7 apart from the logo framed 20 high with its aspect
//     ratio kept, or, without a logo, the maker's name (15, semibold, primary); both centred
//     vertically in the row;
//   the footer (10, tertiary), 10 below the brand row.
// Every item is centred horizontally, its origin rounded to a whole point so that text and the
// rule fall on whole pixels.
namespace AboutLayout {

inline constexpr double width = 300.0;
inline constexpr double horizontalPadding = 32.0;
inline constexpr double topPadding = 28.0;
inline constexpr double bottomPadding = 24.0;
inline constexpr double contentWidth = width - 2.0 * horizontalPadding;

inline constexpr double iconSize = 72.0;
inline constexpr double nameGap = 10.0;
inline constexpr double versionGap = 2.0;
inline constexpr double taglineGap = 10.0;
inline constexpr double ruleGap = 16.0;  // above and below the rule
inline constexpr double ruleWidth = 160.0;
inline constexpr double ruleHeight = 1.0;
inline constexpr double brandSpacing = 7.0;
inline constexpr double logoHeight = 20.0;
inline constexpr double footerGap = 10.0;

inline constexpr AboutTextStyle nameStyle{19.0, true, Theme::primaryForeground};
inline constexpr AboutTextStyle versionStyle{11.0, false, Theme::secondaryForeground};
inline constexpr AboutTextStyle taglineStyle{11.0, false, Theme::secondaryForeground};
inline constexpr AboutTextStyle byStyle{11.0, false, Theme::secondaryForeground};
inline constexpr AboutTextStyle brandNameStyle{15.0, true, Theme::primaryForeground};
inline constexpr AboutTextStyle footerStyle{10.0, false, Theme::tertiaryForeground};

// The size of `text`'s line box when set in `style`, as the fonts at hand measure it.
using MeasureText = std::function<Size(const std::string& text, const AboutTextStyle& style)>;

// The layout of `content`, its texts measured by `measure`. `logoSize` is the logo's size in
// pixels (only its aspect ratio counts); without it the brand row spells out the maker's name.
// A text wider than the 236-point column is framed at the column's width.
AboutGeometry layout(const AboutContent& content, const MeasureText& measure,
                     std::optional<Size> logoSize);

}  // namespace AboutLayout

}  // namespace brimly
