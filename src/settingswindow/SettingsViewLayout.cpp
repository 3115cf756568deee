#include "settingswindow/SettingsViewLayout.h"

#include <algorithm>
#include <cstddef>

namespace brimly::SettingsViewLayout {

SettingsViewGeometry layout(const TextSizes& texts) {
  SettingsViewGeometry geometry;
  const double innerWidth = width - 2.0 * padding;

  const double columnHeight = texts.name.height + nameVersionSpacing + texts.version.height;
  geometry.header = Rect{padding, padding, innerWidth, std::max(headerSymbolSize, columnHeight)};
  geometry.headerSymbol = Rect{padding, geometry.header.midY() - headerSymbolSize / 2.0,
                               headerSymbolSize, headerSymbolSize};
  const double columnX = geometry.headerSymbol.maxX() + headerSpacing;
  const double columnY = geometry.header.midY() - columnHeight / 2.0;
  geometry.name = Rect{columnX, columnY, texts.name.width, texts.name.height};
  geometry.version = Rect{columnX, geometry.name.maxY() + nameVersionSpacing, texts.version.width,
                          texts.version.height};

  const std::vector<SettingsTab>& tabs = SettingsTab::allCases();
  double titleHeight = 0.0;
  for (const Size& title : texts.tabTitles)
    titleHeight = std::max(titleHeight, title.height);
  const double labelHeight = std::max(tabSymbolSize, titleHeight);
  geometry.tabBar = Rect{padding, geometry.header.maxY() + tabBarTop, innerWidth,
                         labelHeight + 2.0 * tabVerticalPadding};
  const auto count = static_cast<double>(tabs.size());
  const double buttonWidth = (innerWidth - (count - 1.0) * tabSpacing) / count;
  for (std::size_t i = 0; i < tabs.size(); ++i) {
    const Size title = i < texts.tabTitles.size() ? texts.tabTitles[i] : Size{};
    TabButtonGeometry button{tabs[i], {}, {}, {}};
    button.frame = Rect{padding + static_cast<double>(i) * (buttonWidth + tabSpacing),
                        geometry.tabBar.y, buttonWidth, geometry.tabBar.height};
    const double labelWidth = tabSymbolSize + tabLabelSpacing + title.width;
    const double labelX = button.frame.midX() - labelWidth / 2.0;
    button.symbol =
        Rect{labelX, button.frame.midY() - tabSymbolSize / 2.0, tabSymbolSize, tabSymbolSize};
    button.title = Rect{button.symbol.maxX() + tabLabelSpacing,
                        button.frame.midY() - title.height / 2.0, title.width, title.height};
    geometry.tabs.push_back(button);
  }

  geometry.rule = Rect{padding, geometry.tabBar.maxY() + ruleTop, innerWidth, ruleHeight};
  const double contentY = geometry.rule.maxY() + contentTop;
  geometry.content =
      Rect{padding, contentY, innerWidth, std::max(height - padding - contentY, 0.0)};
  return geometry;
}

}  // namespace brimly::SettingsViewLayout
