#include "platform/x11/X11PointerPort.h"

#include <gtest/gtest.h>

#include <QTest>

#include "X11TestRequests.h"
#include "XvfbServer.h"
#include "platform/x11/X11Connection.h"

namespace brimly {
namespace {

using testing::XvfbServer;

constexpr int kWidth = 1512;
constexpr int kHeight = 982;
constexpr int kWaitMs = 5000;

// The desktop of a single screen, flipped around its bottom edge.
std::optional<Point> flipped(Point rootPixels) {
  return Point{rootPixels.x, kHeight - rootPixels.y};
}

void fakeMotion(const std::string& display, int x, int y) {
  testing::movePointer(X11Connection(display), x, y);
}

class X11PointerPortTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { server_ = new XvfbServer(kWidth, kHeight); }
  static void TearDownTestSuite() {
    delete server_;
    server_ = nullptr;
  }
  void SetUp() override {
    if (!server_->isRunning()) GTEST_SKIP() << "Xvfb is not installed or did not start";
  }
  static const std::string& display() { return server_->display(); }

  static XvfbServer* server_;
};
XvfbServer* X11PointerPortTest::server_ = nullptr;

TEST(X11PointerPortEdge, UnreachableDisplayRefusesToWatchAndKnowsNoPosition) {
  X11PointerPort port(flipped, ":4711");
  int calls = 0;
  EXPECT_FALSE(port.startWatching([&] { ++calls; }));
  EXPECT_EQ(port.lastFailure(), X11PointerPort::Failure::noDisplay);
  EXPECT_EQ(port.location(), std::nullopt);
  EXPECT_EQ(calls, 0);
}

TEST_F(X11PointerPortTest, LocationIsFlippedToBottomLeftOrigin) {
  fakeMotion(display(), 700, 10);
  X11PointerPort port(flipped, display());
  EXPECT_EQ(port.location(), (Point{700, kHeight - 10}));
}

TEST_F(X11PointerPortTest, ConverterSeesRootPixelsFromTheTopLeft) {
  fakeMotion(display(), 700, 82);
  std::optional<Point> seen;
  X11PointerPort port(
      [&](Point rootPixels) {
        seen = rootPixels;
        return std::optional<Point>(Point{1, 2});
      },
      display());
  EXPECT_EQ(port.location(), (Point{1, 2}));
  EXPECT_EQ(seen, (Point{700, 82}));
}

TEST_F(X11PointerPortTest, PositionTheDesktopDoesNotKnowIsNoPosition) {
  fakeMotion(display(), 5, 5);
  X11PointerPort port([](Point) { return std::optional<Point>(); }, display());
  EXPECT_EQ(port.location(), std::nullopt);
}

TEST_F(X11PointerPortTest, MovementCallsTheListenerAndThePositionFollows) {
  fakeMotion(display(), 10, 500);
  X11PointerPort port(flipped, display());
  int calls = 0;
  ASSERT_TRUE(port.startWatching([&] { ++calls; }));
  EXPECT_EQ(port.lastFailure(), X11PointerPort::Failure::none);

  fakeMotion(display(), 756, 5);
  EXPECT_TRUE(QTest::qWaitFor([&] { return calls > 0; }, kWaitMs));
  EXPECT_EQ(port.location(), (Point{756, kHeight - 5}));
}

TEST_F(X11PointerPortTest, StoppedPortIsNotCalledWhileAnotherStillHearsTheMove) {
  X11PointerPort stopped(flipped, display());
  X11PointerPort watching(flipped, display());
  int stoppedCalls = 0;
  int watchingCalls = 0;
  ASSERT_TRUE(stopped.startWatching([&] { ++stoppedCalls; }));
  ASSERT_TRUE(watching.startWatching([&] { ++watchingCalls; }));
  stopped.stopWatching();

  fakeMotion(display(), 300, 300);
  fakeMotion(display(), 301, 300);
  ASSERT_TRUE(QTest::qWaitFor([&] { return watchingCalls > 0; }, kWaitMs));
  QCoreApplication::processEvents();
  EXPECT_EQ(stoppedCalls, 0);
}

TEST_F(X11PointerPortTest, ListenerMayStopTheWatchFromInsideItsCall) {
  X11PointerPort port(flipped, display());
  int calls = 0;
  ASSERT_TRUE(port.startWatching([&] {
    ++calls;
    port.stopWatching();
  }));
  fakeMotion(display(), 400, 400);
  ASSERT_TRUE(QTest::qWaitFor([&] { return calls > 0; }, kWaitMs));
  fakeMotion(display(), 410, 400);
  QCoreApplication::processEvents();
  EXPECT_EQ(calls, 1);
}

TEST_F(X11PointerPortTest, StartingAgainReplacesTheListener) {
  X11PointerPort port(flipped, display());
  int first = 0;
  int second = 0;
  ASSERT_TRUE(port.startWatching([&] { ++first; }));
  ASSERT_TRUE(port.startWatching([&] { ++second; }));
  fakeMotion(display(), 500, 200);
  ASSERT_TRUE(QTest::qWaitFor([&] { return second > 0; }, kWaitMs));
  EXPECT_EQ(first, 0);
}

}  // namespace
}  // namespace brimly
