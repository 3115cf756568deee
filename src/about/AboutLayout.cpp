#include "about/AboutLayout.h"

#include <algorithm>
#include <cmath>

namespace brimly {

namespace {

// The left edge that centres `itemWidth` in the window, on a whole point.
double centredX(double itemWidth) {
  return std::round((AboutLayout::width - itemWidth) / 2.0);
}

// The frame of a measured text, at most the column's width.
Size fitted(Size measured) {
  return {std::min(measured.width, AboutLayout::contentWidth), measured.height};
}

// `text` in `style`, centred in the window with its top at `top`.
PlacedText centredLine(const std::string& text, const AboutTextStyle& style, double top,
                       const AboutLayout::MeasureText& measure) {
  const Size size = fitted(measure(text, style));
  return {text, style, Rect{centredX(size.width), top, size.width, size.height}};
}

}  // namespace

std::vector<PlacedText> AboutGeometry::texts() const {
  std::vector<PlacedText> all{name, version, tagline, by};
  if (brandName) all.push_back(*brandName);
  all.push_back(footer);
  return all;
}

AboutGeometry AboutLayout::layout(const AboutContent& content, const MeasureText& measure,
                                  std::optional<Size> logoSize) {
  AboutGeometry geometry;
  geometry.icon = Rect{centredX(iconSize), topPadding, iconSize, iconSize};
  geometry.name = centredLine(content.name, nameStyle, geometry.icon.maxY() + nameGap, measure);
  geometry.version =
      centredLine(content.version, versionStyle, geometry.name.frame.maxY() + versionGap, measure);
  geometry.tagline = centredLine(content.tagline, taglineStyle,
                                 geometry.version.frame.maxY() + taglineGap, measure);
  geometry.rule =
      Rect{centredX(ruleWidth), geometry.tagline.frame.maxY() + ruleGap, ruleWidth, ruleHeight};

  // The brand row: "by", then the logo or the maker's name, centred on one line together.
  const double rowTop = geometry.rule.maxY() + ruleGap;
  const Size by = fitted(measure(content.by, byStyle));
  Size mark;
  const bool hasLogo = logoSize && logoSize->width > 0.0 && logoSize->height > 0.0;
  if (hasLogo) {
    mark = Size{logoHeight * logoSize->width / logoSize->height, logoHeight};
  } else {
    mark = measure(content.brandName, brandNameStyle);
  }
  // A row wider than the column gives up the excess from its mark.
  double rowWidth = by.width + brandSpacing + mark.width;
  if (rowWidth > contentWidth) {
    rowWidth = contentWidth;
    mark.width = std::max(0.0, contentWidth - by.width - brandSpacing);
  }
  const double rowHeight = std::max(by.height, mark.height);
  geometry.brandRow = Rect{centredX(rowWidth), rowTop, rowWidth, rowHeight};
  // Centred vertically in the row, on a whole point.
  const auto middled = [&](double x, Size size) {
    return Rect{x, rowTop + std::round((rowHeight - size.height) / 2.0), size.width, size.height};
  };
  geometry.by = {content.by, byStyle, middled(geometry.brandRow.x, by)};
  const Rect markFrame = middled(geometry.by.frame.maxX() + brandSpacing, mark);
  if (hasLogo) {
    geometry.logo = markFrame;
  } else {
    geometry.brandName = PlacedText{content.brandName, brandNameStyle, markFrame};
  }

  geometry.footer =
      centredLine(content.footer, footerStyle, geometry.brandRow.maxY() + footerGap, measure);
  geometry.size = Size{width, geometry.footer.frame.maxY() + bottomPadding};
  return geometry;
}

}  // namespace brimly
