// The hot zone on a real panel window of Qt's xcb platform, on a private Xvfb: what Qt does to the
// window between its creation and its first map must leave the zone as it was set.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QTest>
#include <vector>

#include "X11TestRequests.h"
#include "XvfbApplication.h"
#include "desktop/xwayland/XWaylandHotZone.h"
#include "panel/PanelState.h"
#include "panel/views/PanelWindow.h"
#include "platform/x11/X11Connection.h"

namespace brimly {
namespace {

using testing::xvfbDisplay;
using Zone = HoverZonePort::Zone;

constexpr int kWaitMs = 5000;
// The panel at the top centre of the 1512-wide screen, its closed outline 200 × 32 in its middle.
const QRect kFrame(456, 0, 600, 148);
const QRect kStrip(200, 0, 200, 32);
// The pixel at the window's bottom-right corner, which joins and leaves the zone frame by frame.
const QRect kCorner(599, 147, 1, 1);

bool isTheStrip(const std::vector<QRect>& shape) {
  return shape == std::vector<QRect>{kStrip} || shape == std::vector<QRect>{kStrip, kCorner};
}

class XWaylandHotZoneWindowTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (QGuiApplication::platformName() != "xcb") GTEST_SKIP() << "Xvfb is not installed";
    probe_ = std::make_unique<X11Connection>(xvfbDisplay());
    ASSERT_TRUE(probe_->isValid());
    movePointer(10, 500);
    window_.setGeometry(kFrame);
    window_.winId();
  }

  std::uint32_t nativeWindow() const { return static_cast<std::uint32_t>(window_.winId()); }
  std::vector<QRect> inputShape() const { return testing::inputShape(*probe_, nativeWindow()); }
  bool overridesRedirect() const { return testing::overridesRedirect(*probe_, nativeWindow()); }
  void movePointer(int x, int y) const { testing::movePointer(*probe_, x, y); }

  void showAndWait() {
    window_.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_, kWaitMs));
  }

  std::unique_ptr<X11Connection> probe_;
  PanelState state_;
  PanelWindow window_{state_, {200, 32}, false};
  XWaylandHotZone zone_{xvfbDisplay()};
};

TEST_F(XWaylandHotZoneWindowTest,
       BeforeTheFirstMapTheWindowIsOverrideRedirectWithTheClosedOutline) {
  zone_.attach(window_);
  EXPECT_EQ(zone_.watch(), PointerWatch::watching);
  EXPECT_TRUE(overridesRedirect());
  EXPECT_EQ(inputShape(), (std::vector<QRect>{kStrip}));
}

TEST_F(XWaylandHotZoneWindowTest, ShowingAndPlacingTheWindowKeepTheZone) {
  zone_.attach(window_);
  showAndWait();
  window_.setFrame({456, 0, 600, 148});
  window_.raise();
  QCoreApplication::processEvents();
  EXPECT_TRUE(overridesRedirect());
  EXPECT_TRUE(isTheStrip(inputShape()));
}

TEST_F(XWaylandHotZoneWindowTest, TheZoneFollowsTheTrackerAndTheRootView) {
  zone_.attach(window_);
  zone_.setZone(Zone::openCard);
  EXPECT_EQ(inputShape(), (std::vector<QRect>{QRect(0, 0, 600, 148)}));
  zone_.setZone(Zone::none);
  EXPECT_EQ(inputShape(), (std::vector<QRect>{QRect(-1, -1, 1, 1)}));
  zone_.setZone(Zone::closedOutline);
  window_.rebuildRootView({180, 40}, false);  // a taller top bar: the outline follows
  zone_.follow();
  EXPECT_EQ(inputShape(), (std::vector<QRect>{QRect(210, 0, 180, 40)}));
}

TEST_F(XWaylandHotZoneWindowTest, TheZoneFollowsALargerPanel) {
  zone_.attach(window_);
  window_.rebuildRootView({200, 32}, false, 1.25);
  window_.setFrame({381, 0, 750, 177});
  zone_.follow();
  zone_.setZone(Zone::openCard);
  EXPECT_EQ(inputShape(), (std::vector<QRect>{QRect(0, 0, 750, 177)}));
  zone_.setZone(Zone::closedOutline);  // the notch's own, centred on the larger window
  EXPECT_EQ(inputShape(), (std::vector<QRect>{QRect(275, 0, 200, 32)}));
}

TEST_F(XWaylandHotZoneWindowTest, EachFrameAnnouncesTheZoneAnewWithOrWithoutTheCornerPixel) {
  zone_.attach(window_);
  showAndWait();
  const auto frame = [&] {
    window_.repaint();
    return inputShape();
  };
  const std::vector<QRect> first = frame();
  const std::vector<QRect> second = frame();
  EXPECT_NE(first, second);
  EXPECT_TRUE(isTheStrip(first));
  EXPECT_TRUE(isTheStrip(second));
  zone_.setZone(Zone::none);
  EXPECT_NE(frame(), frame());
}

TEST_F(XWaylandHotZoneWindowTest, TheOpenCardIsLeftAsItIsAtEachFrame) {
  zone_.attach(window_);
  showAndWait();
  zone_.setZone(Zone::openCard);
  window_.repaint();
  const std::vector<QRect> open = inputShape();
  window_.repaint();
  EXPECT_EQ(inputShape(), open);
}

TEST_F(XWaylandHotZoneWindowTest, ThePointerIsSeenEnteringAndLeavingTheShownZone) {
  zone_.attach(window_);
  showAndWait();
  std::vector<bool> reports;
  ASSERT_TRUE(zone_.startWatching([&](bool inside) { reports.push_back(inside); }));
  movePointer(kFrame.x() + 300, 100);  // over the window, beside the closed outline: nothing
  movePointer(kFrame.x() + 300, 3);
  ASSERT_TRUE(QTest::qWaitFor([&] { return reports.size() == 1; }, kWaitMs));
  zone_.setZone(Zone::openCard);
  movePointer(kFrame.x() + 300, 100);  // over the open card: still inside
  movePointer(kFrame.x() + 300, 400);
  ASSERT_TRUE(QTest::qWaitFor([&] { return reports.size() == 2; }, kWaitMs));
  EXPECT_EQ(reports, (std::vector<bool>{true, false}));
  zone_.stopWatching();
}

TEST(XWaylandHotZoneEdge, WithoutAWindowNothingIsWatched) {
  XWaylandHotZone zone(":4711");
  EXPECT_EQ(zone.watch(), PointerWatch::noDisplay);
  EXPECT_FALSE(zone.startWatching([](bool) {}));
  zone.setZone(Zone::openCard);
  zone.follow();
  zone.stopWatching();
}

}  // namespace
}  // namespace brimly
