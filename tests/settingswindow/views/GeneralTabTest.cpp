#include "settingswindow/views/GeneralTab.h"

#include <gtest/gtest.h>

#include <QTest>
#include <vector>

#include "SettingsWorld.h"
#include "controlpanel/views/ControlPanelView.h"
#include "settingswindow/views/SettingRow.h"
#include "ui/SectionLabel.h"
#include "ui/Switch.h"

namespace brimly {
namespace {

TEST(GeneralTab, ASwitchWhoseCallbackIsEmptyStaysAsItWas) {
  ControlPanelModel control(false, false, false, "1");
  GeneralTab tab(control);
  QTest::mouseClick(&tab.pinRow().toggle(), Qt::LeftButton);
  QTest::mouseClick(&tab.launchRow().toggle(), Qt::LeftButton);
  EXPECT_FALSE(tab.pinRow().isOn());
  EXPECT_FALSE(tab.launchRow().isOn());
}

TEST(GeneralTab, ASwitchShowsItsNewStateOnlyOnceTheModelHasIt) {
  ControlPanelModel control(false, false, false, "1");
  std::vector<bool> asked;
  control.onToggleLaunch = [&](bool on) { asked.push_back(on); };  // registering failed
  GeneralTab tab(control);
  QTest::mouseClick(&tab.launchRow().toggle(), Qt::LeftButton);
  EXPECT_EQ(asked, std::vector<bool>{true});
  EXPECT_FALSE(tab.launchRow().isOn());
  control.setLaunchAtLogin(true);
  EXPECT_TRUE(tab.launchRow().isOn());
}

TEST(GeneralTab, ThreeRowsWithTheirSymbolsAndTitles) {
  ControlPanelModel control(false, false, false, "1");
  GeneralTab tab(control);
  EXPECT_EQ(tab.pinRow().icon(), QStringLiteral("pin"));
  EXPECT_EQ(tab.pinRow().title(), QStringLiteral("Keep panel visible"));
  EXPECT_EQ(tab.launchRow().icon(), QStringLiteral("power"));
  EXPECT_EQ(tab.launchRow().title(), QStringLiteral("Launch at login"));
  EXPECT_EQ(tab.fahrenheitRow().icon(), QStringLiteral("thermometer.medium"));
  // Not the card's "Show in Fahrenheit".
  EXPECT_EQ(tab.fahrenheitRow().title(), QStringLiteral("Show temperature in °F"));
}

TEST(GeneralTab, SwitchesAreNamedByTheirRowsTitles) {
  ControlPanelModel control(false, false, false, "1");
  GeneralTab tab(control);
  for (SettingRow* row : {&tab.pinRow(), &tab.launchRow(), &tab.fahrenheitRow()}) {
    EXPECT_EQ(row->toggle().accessibleName(), row->title());
    // The switch alone carries the title: the row around it is not read out a second time.
    EXPECT_TRUE(row->accessibleName().isEmpty());
    EXPECT_TRUE(row->toggle().focusPolicy() & Qt::TabFocus);
  }
}

TEST(GeneralTab, RowsShowTheModel) {
  ControlPanelModel control(true, false, true, "1");
  GeneralTab tab(control);
  EXPECT_FALSE(tab.pinRow().isOn());
  EXPECT_TRUE(tab.launchRow().isOn());
  EXPECT_TRUE(tab.fahrenheitRow().isOn());
}

TEST(GeneralTab, EachSwitchCallsItsOwnCallbackWithTheNewValue) {
  ControlPanelModel control(true, false, false, "1");
  std::vector<std::pair<const char*, bool>> calls;
  control.onTogglePin = [&](bool on) { calls.emplace_back("pin", on); };
  control.onToggleLaunch = [&](bool on) { calls.emplace_back("launch", on); };
  control.onToggleFahrenheit = [&](bool on) { calls.emplace_back("fahrenheit", on); };
  GeneralTab tab(control);
  QTest::mouseClick(&tab.pinRow().toggle(), Qt::LeftButton);
  QTest::keyClick(&tab.launchRow().toggle(), Qt::Key_Space);
  QTest::keyClick(&tab.fahrenheitRow().toggle(), Qt::Key_Return);
  ASSERT_EQ(calls.size(), 3u);
  EXPECT_STREQ(calls[0].first, "pin");
  EXPECT_TRUE(calls[0].second);
  EXPECT_STREQ(calls[1].first, "launch");
  EXPECT_TRUE(calls[1].second);
  EXPECT_STREQ(calls[2].first, "fahrenheit");
  EXPECT_FALSE(calls[2].second);  // it was on
}

TEST(GeneralTab, TheCardAndTheTabStayInStepBothWays) {
  ControlPanelModel control(false, false, false, "1");
  int pinCalls = 0;
  // As the application's pin action does: pin the panel, then write the pin back to the model.
  control.onTogglePin = [&](bool on) {
    ++pinCalls;
    control.setPinned(on);
  };
  GeneralTab tab(control);
  ControlPanelView card(control);

  QTest::mouseClick(&tab.pinRow().toggle(), Qt::LeftButton);
  EXPECT_EQ(pinCalls, 1);
  EXPECT_TRUE(control.isPinned());
  EXPECT_TRUE(tab.pinRow().isOn());
  EXPECT_TRUE(card.pinSwitch().isOn());

  QTest::mouseClick(&card.pinSwitch(), Qt::LeftButton);
  EXPECT_EQ(pinCalls, 2);
  EXPECT_FALSE(card.pinSwitch().isOn());
  EXPECT_FALSE(tab.pinRow().isOn());
}

TEST(GeneralTab, CaptionThenRows12BelowIt14Apart) {
  ControlPanelModel control(false, false, false, "1");
  GeneralTab tab(control);
  tab.resize(324, 329);
  tab.show();
  const GeneralTabGeometry& geometry = tab.placement();
  ASSERT_EQ(geometry.rows.size(), 3u);
  EXPECT_EQ(geometry.sectionLabel.y, 0.0);
  EXPECT_EQ(geometry.rows[0].y, geometry.sectionLabel.maxY() + 12.0);
  EXPECT_EQ(geometry.rows[1].y, geometry.rows[0].maxY() + 14.0);
  EXPECT_EQ(geometry.rows[2].y, geometry.rows[1].maxY() + 14.0);
  EXPECT_EQ(tab.pinRow().width(), 324);
  // The small switch sits at the trailing edge of its row.
  const QRect toggle = tab.pinRow().toggle().geometry();
  EXPECT_EQ(toggle.right() + 1, 324);
  EXPECT_EQ(toggle.size(), tab.pinRow().toggle().sizeHint());
}

}  // namespace
}  // namespace brimly
