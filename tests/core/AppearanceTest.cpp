#include "core/Appearance.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace brimly {
namespace {

TEST(Appearance, AccentsComeInSwatchOrderWithGreenFirstAndSystemLast) {
  EXPECT_EQ(accentChoices.front(), AccentChoice::green);
  EXPECT_EQ(accentChoices.back(), AccentChoice::system);
  std::string shown;
  for (const AccentChoice accent : accentChoices) {
    shown += std::string(displayName(accent)) + " ";
  }
  EXPECT_EQ(shown, "Green Blue Indigo Purple Pink Orange Graphite System ");
}

TEST(Appearance, EveryAccentReadsBackFromItsStoredName) {
  std::set<std::string_view> names;
  for (const AccentChoice accent : accentChoices) {
    names.insert(storedName(accent));
    EXPECT_EQ(accentChoiceNamed(storedName(accent)), accent) << storedName(accent);
  }
  EXPECT_EQ(names.size(), accentChoices.size());
  EXPECT_EQ(storedName(AccentChoice::graphite), "graphite");
}

TEST(Appearance, UnknownOrMiscasedAccentNamesAreNoAccent) {
  for (const char* name : {"", "Blue", "teal", "green ", "system\n"}) {
    EXPECT_EQ(accentChoiceNamed(name), std::nullopt) << name;
  }
}

TEST(Appearance, PanelSizesHaveTheirNamesAndScales) {
  EXPECT_EQ(storedName(PanelSize::regular), "regular");
  EXPECT_EQ(storedName(PanelSize::large), "large");
  EXPECT_EQ(displayName(PanelSize::regular), "Regular");
  EXPECT_EQ(displayName(PanelSize::large), "Large");
  for (const PanelSize size : panelSizes) {
    EXPECT_EQ(panelSizeNamed(storedName(size)), size);
  }
  EXPECT_EQ(panelSizeNamed("Large"), std::nullopt);
  EXPECT_EQ(panelSizeNamed("huge"), std::nullopt);
  EXPECT_EQ(scaleOf(PanelSize::regular), 1.0);
  EXPECT_EQ(scaleOf(PanelSize::large), 1.25);
}

}  // namespace
}  // namespace brimly
