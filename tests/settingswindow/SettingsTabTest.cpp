#include "settingswindow/SettingsTab.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(SettingsTab, TabBarListsGeneralMetricsAppearanceInThatOrder) {
  const std::vector<SettingsTab>& tabs = SettingsTab::allCases();
  ASSERT_EQ(tabs.size(), 3u);
  EXPECT_EQ(tabs[0], SettingsTab::general);
  EXPECT_EQ(tabs[1], SettingsTab::metrics);
  EXPECT_EQ(tabs[2], SettingsTab::appearance);
}

TEST(SettingsTab, RawValuesTitlesAndSymbols) {
  const SettingsTab general = SettingsTab::general;
  const SettingsTab metrics = SettingsTab::metrics;
  const SettingsTab appearance = SettingsTab::appearance;
  EXPECT_EQ(general.rawValue(), "general");
  EXPECT_EQ(general.title(), "General");
  EXPECT_EQ(general.symbolName(), "gearshape");
  EXPECT_EQ(metrics.rawValue(), "metrics");
  EXPECT_EQ(metrics.title(), "Metrics");
  EXPECT_EQ(metrics.symbolName(), "square.grid.2x2");
  EXPECT_EQ(appearance.rawValue(), "appearance");
  EXPECT_EQ(appearance.title(), "Appearance");
  EXPECT_EQ(appearance.symbolName(), "paintpalette");
}

TEST(SettingsTab, RawValueIdentifiesEachTabExactly) {
  for (const SettingsTab tab : SettingsTab::allCases()) {
    EXPECT_EQ(SettingsTab::fromRawValue(tab.rawValue()), tab);
  }
  EXPECT_EQ(SettingsTab::fromRawValue("General"), std::nullopt);
  EXPECT_EQ(SettingsTab::fromRawValue(" metrics"), std::nullopt);
  EXPECT_EQ(SettingsTab::fromRawValue(""), std::nullopt);
}

}  // namespace
}  // namespace brimly
