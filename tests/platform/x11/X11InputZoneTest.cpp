#include "platform/x11/X11InputZone.h"

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <QTest>
#include <vector>

#include "X11TestRequests.h"
#include "XvfbServer.h"
#include "platform/x11/X11Connection.h"

namespace brimly {
namespace {

using testing::inputShape;
using testing::movePointer;
using testing::overridesRedirect;
using testing::XvfbServer;

constexpr int kWaitMs = 5000;
// A panel-sized window at the top centre of a 1512-wide screen, and its hot strip.
const QRect kWindow(456, 0, 600, 148);
const QRect kStrip(200, 0, 200, 32);

xcb_window_t createWindow(const X11Connection& connection, const QRect& frame) {
  xcb_connection_t* c = connection.get();
  const xcb_window_t window = xcb_generate_id(c);
  xcb_create_window(c, XCB_COPY_FROM_PARENT, window, connection.rootWindow(),
                    static_cast<std::int16_t>(frame.x()), static_cast<std::int16_t>(frame.y()),
                    static_cast<std::uint16_t>(frame.width()),
                    static_cast<std::uint16_t>(frame.height()), 0, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                    XCB_COPY_FROM_PARENT, 0, nullptr);
  xcb_flush(c);
  return window;
}

void map(const X11Connection& connection, xcb_window_t window) {
  xcb_connection_t* c = connection.get();
  xcb_generic_error_t* error = xcb_request_check(c, xcb_map_window_checked(c, window));
  ASSERT_EQ(error, nullptr);
}

class X11InputZoneTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { server_ = new XvfbServer(1512, 982); }
  static void TearDownTestSuite() {
    delete server_;
    server_ = nullptr;
  }
  void SetUp() override {
    if (!server_->isRunning()) GTEST_SKIP() << "Xvfb is not installed or did not start";
    client_ = std::make_unique<X11Connection>(server_->display());
    ASSERT_TRUE(client_->isValid());
    movePointer(*client_, 10, 500);  // far from the window
    window_ = createWindow(*client_, kWindow);
  }
  void TearDown() override {
    if (client_) xcb_destroy_window(client_->get(), window_);
    if (client_) xcb_flush(client_->get());
  }

  // A zone on the window, mapped with the strip as its input region, watched into `reports`.
  std::unique_ptr<X11InputZone> watchedStrip() {
    auto zone = std::make_unique<X11InputZone>(window_, server_->display());
    EXPECT_TRUE(zone->setInputRegion({kStrip}));
    map(*client_, window_);
    EXPECT_TRUE(zone->startWatching([this](bool inside) { reports.push_back(inside); }));
    return zone;
  }
  void moveTo(int x, int y) { movePointer(*client_, x, y); }
  bool waitForReports(std::size_t count) {
    return QTest::qWaitFor([&] { return reports.size() >= count; }, kWaitMs);
  }

  static XvfbServer* server_;
  std::unique_ptr<X11Connection> client_;
  xcb_window_t window_ = 0;
  std::vector<bool> reports;
};
XvfbServer* X11InputZoneTest::server_ = nullptr;

TEST(X11InputZoneEdge, UnreachableDisplayDoesNothing) {
  X11InputZone zone(42, ":4711");
  EXPECT_EQ(zone.failure(), X11InputZone::Failure::noDisplay);
  EXPECT_FALSE(zone.bypassWindowManager());
  EXPECT_FALSE(zone.setInputRegion({kStrip}));
  EXPECT_FALSE(zone.startWatching([](bool) {}));
  zone.stopWatching();
}

TEST_F(X11InputZoneTest, AWindowThatIsNotThereRefusesEverything) {
  X11InputZone zone(window_ + 1000, server_->display());
  EXPECT_EQ(zone.failure(), X11InputZone::Failure::none);
  EXPECT_FALSE(zone.bypassWindowManager());
  EXPECT_FALSE(zone.setInputRegion({kStrip}));
  EXPECT_FALSE(zone.startWatching([](bool) {}));
}

TEST_F(X11InputZoneTest, BypassingTheWindowManagerMakesTheWindowOverrideRedirect) {
  X11InputZone zone(window_, server_->display());
  EXPECT_FALSE(overridesRedirect(*client_, window_));
  EXPECT_TRUE(zone.bypassWindowManager());
  EXPECT_TRUE(overridesRedirect(*client_, window_));
}

TEST_F(X11InputZoneTest, TheInputRegionIsOnTheServerWhenTheCallReturns) {
  X11InputZone zone(window_, server_->display());
  ASSERT_TRUE(zone.setInputRegion({kStrip}));
  EXPECT_EQ(inputShape(*client_, window_), (std::vector<QRect>{kStrip}));
  ASSERT_TRUE(zone.setInputRegion({QRect(0, 0, 600, 148)}));
  EXPECT_EQ(inputShape(*client_, window_), (std::vector<QRect>{QRect(0, 0, 600, 148)}));
}

TEST_F(X11InputZoneTest, AnEmptyRegionTakesNoInputAtAll) {
  X11InputZone zone(window_, server_->display());
  ASSERT_TRUE(zone.setInputRegion({QRect(), QRect(5, 5, 0, 10)}));
  EXPECT_TRUE(inputShape(*client_, window_).empty());
}

TEST_F(X11InputZoneTest, ThePointerIsSeenOnlyOverTheRegion) {
  const auto zone = watchedStrip();
  moveTo(kWindow.x() + 300, 100);  // over the window, beside the strip: nothing
  moveTo(kWindow.x() + 300, 5);    // into the strip
  ASSERT_TRUE(waitForReports(1));
  moveTo(kWindow.x() + 300, 100);  // out of it, still over the window
  ASSERT_TRUE(waitForReports(2));
  EXPECT_EQ(reports, (std::vector<bool>{true, false}));
}

TEST_F(X11InputZoneTest, GrowingTheRegionUnderThePointerKeepsItInside) {
  const auto zone = watchedStrip();
  moveTo(kWindow.x() + 300, 5);
  ASSERT_TRUE(waitForReports(1));
  ASSERT_TRUE(zone->setInputRegion({QRect(0, 0, 600, 148)}));
  moveTo(kWindow.x() + 300, 100);  // still over the region, now the whole card
  moveTo(kWindow.x() + 300, 400);  // away
  ASSERT_TRUE(waitForReports(2));
  EXPECT_EQ(reports, (std::vector<bool>{true, false}));
}

TEST_F(X11InputZoneTest, EmptyingTheRegionUnderThePointerCountsAsLeaving) {
  const auto zone = watchedStrip();
  moveTo(kWindow.x() + 300, 5);
  ASSERT_TRUE(waitForReports(1));
  ASSERT_TRUE(zone->setInputRegion({}));  // the Leave comes while the server answers the call
  ASSERT_TRUE(waitForReports(2));
  EXPECT_EQ(reports, (std::vector<bool>{true, false}));
}

TEST_F(X11InputZoneTest, AStoppedZoneTellsNothingMore) {
  const auto zone = watchedStrip();
  zone->stopWatching();
  X11InputZone other(window_, server_->display());
  int otherReports = 0;
  ASSERT_TRUE(other.startWatching([&](bool) { ++otherReports; }));
  moveTo(kWindow.x() + 300, 5);
  ASSERT_TRUE(QTest::qWaitFor([&] { return otherReports > 0; }, kWaitMs));
  QCoreApplication::processEvents();
  EXPECT_TRUE(reports.empty());
}

TEST_F(X11InputZoneTest, TheListenerMayStopTheWatchFromInsideItsCall) {
  auto zone = std::make_unique<X11InputZone>(window_, server_->display());
  ASSERT_TRUE(zone->setInputRegion({kStrip}));
  map(*client_, window_);
  ASSERT_TRUE(zone->startWatching([&](bool inside) {
    reports.push_back(inside);
    zone->stopWatching();
  }));
  moveTo(kWindow.x() + 300, 5);
  ASSERT_TRUE(waitForReports(1));
  moveTo(kWindow.x() + 300, 400);
  QCoreApplication::processEvents();
  EXPECT_EQ(reports, (std::vector<bool>{true}));
}

}  // namespace
}  // namespace brimly
