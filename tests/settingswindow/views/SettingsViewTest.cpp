#include "settingswindow/views/SettingsView.h"

#include <gtest/gtest.h>

#include <QTest>

#include "InstalledFaces.h"
#include "ReferenceImage.h"
#include "SettingsWorld.h"
#include "settingswindow/SettingsTheme.h"
#include "settingswindow/views/AppearanceTab.h"
#include "settingswindow/views/GeneralTab.h"
#include "settingswindow/views/MetricsTab.h"
#include "settingswindow/views/TabButton.h"
#include "ui/AccentFollower.h"
#include "ui/TextStyle.h"
#include "usage/AccentColors.h"
#include "usage/views/QtColor.h"

namespace brimly {
namespace {

using testing::near;
using testing::over;
using testing::referencePath;
using testing::rendered;
using testing::SettingsWorld;

class SettingsViewTest : public ::testing::Test {
 protected:
  SettingsViewTest() { view.show(); }

  SettingsWorld world;
  SettingsView view{world.settings, world.control, world.monitor};
};

TEST_F(SettingsViewTest, StartsOnGeneralWithOnlyItsContentShown) {
  EXPECT_EQ(view.tab(), SettingsTab::general);
  EXPECT_EQ(&view.content(), &view.generalTab());
  EXPECT_TRUE(view.generalTab().isVisible());
  EXPECT_TRUE(view.metricsTab().isHidden());
  EXPECT_TRUE(view.appearanceTab().isHidden());
  EXPECT_TRUE(view.tabButton(SettingsTab::general).isSelected());
  EXPECT_FALSE(view.tabButton(SettingsTab::metrics).isSelected());
}

TEST_F(SettingsViewTest, ClickingATabShowsItsContent) {
  QTest::mouseClick(&view.tabButton(SettingsTab::appearance), Qt::LeftButton);
  EXPECT_EQ(view.tab(), SettingsTab::appearance);
  EXPECT_TRUE(view.generalTab().isHidden());
  EXPECT_FALSE(view.appearanceTab().isHidden());
  EXPECT_TRUE(view.tabButton(SettingsTab::appearance).isSelected());
  EXPECT_FALSE(view.tabButton(SettingsTab::general).isSelected());
  QTest::mouseClick(&view.tabButton(SettingsTab::metrics), Qt::LeftButton);
  EXPECT_EQ(&view.content(), &view.metricsTab());
  EXPECT_FALSE(view.metricsTab().isHidden());
  EXPECT_TRUE(view.appearanceTab().isHidden());
}

TEST_F(SettingsViewTest, SpaceOrReturnOnAFocusedTabSelectsIt) {
  TabButton& metrics = view.tabButton(SettingsTab::metrics);
  QTest::keyClick(&metrics, Qt::Key_Space);
  EXPECT_EQ(view.tab(), SettingsTab::metrics);
  QTest::keyClick(&view.tabButton(SettingsTab::appearance), Qt::Key_Return);
  EXPECT_EQ(view.tab(), SettingsTab::appearance);
  QTest::keyClick(&view.tabButton(SettingsTab::general), Qt::Key_Enter);
  EXPECT_EQ(view.tab(), SettingsTab::general);
}

TEST_F(SettingsViewTest, TabsAreReachedWithTabInTheBarsOrder) {
  for (const SettingsTab tab : SettingsTab::allCases()) {
    EXPECT_TRUE(view.tabButton(tab).focusPolicy() & Qt::TabFocus) << tab.rawValue();
  }
  EXPECT_EQ(view.tabButton(SettingsTab::general).nextInFocusChain(),
            &view.tabButton(SettingsTab::metrics));
  EXPECT_EQ(view.tabButton(SettingsTab::metrics).nextInFocusChain(),
            &view.tabButton(SettingsTab::appearance));
}

TEST_F(SettingsViewTest, TabsAreNamedByTheirTitles) {
  EXPECT_EQ(view.tabButton(SettingsTab::general).accessibleName(), QStringLiteral("General"));
  EXPECT_EQ(view.tabButton(SettingsTab::metrics).accessibleName(), QStringLiteral("Metrics"));
  EXPECT_EQ(view.tabButton(SettingsTab::appearance).accessibleName(), QStringLiteral("Appearance"));
}

TEST_F(SettingsViewTest, TabButtonsShareTheBarAndContentSitsBelowTheRule) {
  const SettingsViewGeometry& geometry = view.placement();
  for (const TabButtonGeometry& placed : geometry.tabs) {
    const QRect button = view.tabButton(placed.tab).geometry();
    EXPECT_LE(std::abs(button.width() - 105), 2) << placed.tab.rawValue();
  }
  EXPECT_EQ(view.generalTab().geometry().top(), static_cast<int>(geometry.content.y));
  EXPECT_EQ(view.generalTab().geometry().left(), 18);
  EXPECT_EQ(view.generalTab().width(), 324);
  EXPECT_EQ(view.generalTab().geometry().bottom() + 1, 468 - 18);
}

TEST_F(SettingsViewTest, SurfaceRuleAndSelectedTabColours) {
  const QImage image = rendered(view);
  const QColor surface = toQColor(SettingsTheme::surface);
  EXPECT_TRUE(near(image.pixelColor(4, 4), surface));
  EXPECT_TRUE(near(image.pixelColor(180, static_cast<int>(view.placement().rule.y)),
                   over(toQColor(SettingsTheme::hairline), surface)));
  // Inside each button, clear of its label: the accent wash behind the selected tab only.
  const Rect general = view.placement().tabs[0].frame;
  const Rect metrics = view.placement().tabs[1].frame;
  EXPECT_TRUE(
      near(image.pixelColor(static_cast<int>(general.x + 5), static_cast<int>(general.midY())),
           over(toQColor(Theme::accent.withOpacity(0.16)), surface)));
  EXPECT_TRUE(
      near(image.pixelColor(static_cast<int>(metrics.x + 5), static_cast<int>(metrics.midY())),
           over(QColor::fromRgbF(1, 1, 1, 0.04f), surface)));
}

TEST_F(SettingsViewTest, SelectedTabIsDrawnInTheAccentTheOthersSecondary) {
  EXPECT_EQ(view.tabButton(SettingsTab::general).foreground(), toQColor(Theme::accent));
  EXPECT_EQ(view.tabButton(SettingsTab::metrics).foreground(), textColor(TextStyle::secondary));
}

TEST_F(SettingsViewTest, GeneralMatchesItsReference) {
  world.control.setPinned(true);
  world.control.setUseFahrenheit(true);
  EXPECT_TRUE(testing::matchesReference(rendered(view), referencePath("settings-general.png"),
                                        testing::windowFaces));
}

TEST_F(SettingsViewTest, MetricsWithOneMetricHiddenMatchesItsReference) {
  world.settings.setMetric(MetricKind::disk, false);
  view.setTab(SettingsTab::metrics);
  EXPECT_TRUE(testing::matchesReference(rendered(view), referencePath("settings-metrics.png"),
                                        testing::windowFaces));
}

TEST_F(SettingsViewTest, GeneralAndMetricsMatchTheirReferencesAtTwoTimes) {
  // The symbols of both tabs and the tab bar, drawn for a screen of two pixels a point.
  world.control.setPinned(true);
  EXPECT_TRUE(testing::matchesReference(
      rendered(view, 2.0), referencePath("settings-general-2x.png"), testing::windowFaces));
  world.settings.setMetric(MetricKind::disk, false);
  view.setTab(SettingsTab::metrics);
  EXPECT_TRUE(testing::matchesReference(
      rendered(view, 2.0), referencePath("settings-metrics-2x.png"), testing::windowFaces));
}

TEST_F(SettingsViewTest, AppearanceMatchesItsReference) {
  view.setTab(SettingsTab::appearance);
  EXPECT_TRUE(testing::matchesReference(rendered(view), referencePath("settings-appearance.png"),
                                        testing::windowFaces));
}

// The window in each fixed accent: the selected tab, the header symbol, the chosen swatch's ring
// and the chosen size all take it.
TEST_F(SettingsViewTest, AppearanceInEachAccentMatchesItsReference) {
  AccentFollower follower(world.settings);
  view.setTab(SettingsTab::appearance);
  for (const AccentChoice accent : accentChoices) {
    if (accent == AccentChoice::system) continue;
    world.settings.setAccentColor(accent);
    const std::string name = "settings-accent-" + std::string(storedName(accent)) + ".png";
    EXPECT_TRUE(testing::matchesReference(rendered(view), referencePath(name.c_str()),
                                          testing::windowFaces))
        << name;
  }
  world.settings.setAccentColor(AccentChoice::green);
}

TEST_F(SettingsViewTest, TheTabsAndTheHeaderFollowTheAccentAtOnce) {
  AccentFollower follower(world.settings);
  world.settings.setAccentColor(AccentChoice::orange);
  EXPECT_EQ(view.tabButton(SettingsTab::general).foreground(),
            toQColor(AccentColors::of(AccentChoice::orange)));
  EXPECT_EQ(view.palette().color(QPalette::Highlight),
            toQColor(AccentColors::of(AccentChoice::orange)));
  world.settings.setAccentColor(AccentChoice::green);
  EXPECT_EQ(view.tabButton(SettingsTab::general).foreground(), toQColor(Theme::accent));
}

}  // namespace
}  // namespace brimly
