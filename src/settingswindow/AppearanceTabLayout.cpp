#include "settingswindow/AppearanceTabLayout.h"

namespace brimly::AppearanceTabLayout {

namespace {

Rect captionAt(const Rect& area, double y, const Parts& parts) {
  return Rect{area.x, y, area.width, parts.caption.height};
}

}  // namespace

AppearanceTabGeometry layout(const Rect& area, const Parts& parts) {
  AppearanceTabGeometry tab;
  tab.previewLabel = captionAt(area, area.y, parts);
  tab.preview = Rect{area.x, tab.previewLabel.maxY() + captionGap, area.width, parts.previewHeight};

  tab.accentLabel = captionAt(area, tab.preview.maxY() + groupGap, parts);
  tab.accentName = Rect{area.maxX() - parts.accentName.width,
                        tab.accentLabel.midY() - parts.accentName.height / 2.0,
                        parts.accentName.width, parts.accentName.height};
  // The swatches' rooms start at the edge, so that each disc sits a little inside it.
  const double swatchesTop = tab.accentLabel.maxY() + captionGap;
  for (std::size_t i = 0; i < parts.swatchCount; ++i) {
    const double x = area.x + static_cast<double>(i) * (parts.swatch.width + swatchSpacing);
    tab.swatches.push_back(Rect{x, swatchesTop, parts.swatch.width, parts.swatch.height});
  }

  tab.sizeLabel = captionAt(area, swatchesTop + parts.swatch.height + groupGap, parts);
  const double count = static_cast<double>(parts.sizeCount);
  const double sizeWidth =
      parts.sizeCount == 0 ? 0.0 : (area.width - (count - 1.0) * sizeSpacing) / count;
  for (std::size_t i = 0; i < parts.sizeCount; ++i) {
    tab.sizes.push_back(Rect{area.x + static_cast<double>(i) * (sizeWidth + sizeSpacing),
                             tab.sizeLabel.maxY() + captionGap, sizeWidth, sizeHeight});
  }

  tab.trendRow = Rect{area.x, tab.sizeLabel.maxY() + captionGap + sizeHeight + groupGap, area.width,
                      parts.trendRowHeight};
  return tab;
}

}  // namespace brimly::AppearanceTabLayout
