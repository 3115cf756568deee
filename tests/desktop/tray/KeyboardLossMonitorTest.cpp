#include "desktop/tray/KeyboardLossMonitor.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <vector>

namespace brimly {
namespace {

// The application's state as Qt announces it: active while one of Brimly's windows has the
// keyboard, inactive once another program's window took it. (The end-to-end tests under GNOME
// Shell and sway let real clicks move the keyboard.)
void keyboardMovesTo(Qt::ApplicationState state) {
  emit qGuiApp->applicationStateChanged(state);
}

class KeyboardLossMonitorTest : public ::testing::Test {
 protected:
  KeyboardLossMonitor monitor;
  std::vector<std::optional<Point>> clicks;
  std::function<void(std::optional<Point>)> record = [this](std::optional<Point> pointer) {
    clicks.push_back(pointer);
  };
};

TEST_F(KeyboardLossMonitorTest, TheKeyboardGoingToAnotherProgramIsAClickOfNoKnownPlace) {
  monitor.install(record);
  keyboardMovesTo(Qt::ApplicationInactive);
  EXPECT_EQ(clicks, std::vector<std::optional<Point>>{std::nullopt});
}

TEST_F(KeyboardLossMonitorTest, TheKeyboardComingToBrimlyIsNoClick) {
  monitor.install(record);
  keyboardMovesTo(Qt::ApplicationActive);
  EXPECT_TRUE(clicks.empty());
}

TEST_F(KeyboardLossMonitorTest, TheDesktopHidingBrimlyIsAClickToo) {
  monitor.install(record);
  keyboardMovesTo(Qt::ApplicationHidden);
  EXPECT_EQ(clicks.size(), 1u);
}

TEST_F(KeyboardLossMonitorTest, ARemovedMonitorHearsNothing) {
  const auto token = monitor.install(record);
  ASSERT_TRUE(token.has_value());
  monitor.remove(*token);
  keyboardMovesTo(Qt::ApplicationInactive);
  EXPECT_TRUE(clicks.empty());
}

TEST_F(KeyboardLossMonitorTest, AMonitorThatRemovesAnotherOnItsClickSilencesIt) {
  std::optional<OutsideClickMonitorPort::Token> second;
  monitor.install([&](std::optional<Point>) {
    if (second) monitor.remove(*second);
    clicks.push_back(Point{1, 1});
  });
  second = monitor.install(record);
  keyboardMovesTo(Qt::ApplicationInactive);
  EXPECT_EQ(clicks, (std::vector<std::optional<Point>>{Point{1, 1}}));
}

TEST_F(KeyboardLossMonitorTest, EveryMonitorHearsEachClickOnce) {
  monitor.install(record);
  monitor.install(record);
  keyboardMovesTo(Qt::ApplicationInactive);
  EXPECT_EQ(clicks.size(), 2u);
}

}  // namespace
}  // namespace brimly
