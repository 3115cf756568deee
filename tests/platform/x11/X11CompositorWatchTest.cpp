#include "platform/x11/X11CompositorWatch.h"

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <cstdlib>
#include <functional>
#include <memory>
#include <vector>

#include "XvfbServer.h"
#include "platform/x11/X11Connection.h"

namespace brimly {
namespace {

using testing::XvfbServer;

// A stand-in compositing manager: a client of its own that takes the selection and can give it
// up, lose its window or go away altogether.
class FakeCompositor {
 public:
  explicit FakeCompositor(const std::string& display)
      : connection_(std::make_unique<X11Connection>(display)) {}

  bool isValid() const { return connection_ && connection_->isValid(); }

  void takeSelection() {
    xcb_connection_t* c = connection_->get();
    window_ = xcb_generate_id(c);
    xcb_create_window(c, XCB_COPY_FROM_PARENT, window_, connection_->rootWindow(), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_set_selection_owner(c, window_, connection_->atom("_NET_WM_CM_S0"), XCB_CURRENT_TIME);
    sync();
  }
  void destroyWindow() {
    xcb_destroy_window(connection_->get(), window_);
    sync();
  }
  // As when the manager is killed: its connection closes and the server drops what it owned.
  void quit() { connection_.reset(); }

 private:
  // A round trip: everything sent has reached the server.
  void sync() {
    xcb_connection_t* c = connection_->get();
    std::free(xcb_get_input_focus_reply(c, xcb_get_input_focus(c), nullptr));
  }

  std::unique_ptr<X11Connection> connection_;
  xcb_window_t window_ = 0;
};

// Runs the event loop until `done` holds, for at most five seconds.
bool eventually(const std::function<bool()>& done) {
  const QDeadlineTimer deadline(5000);
  while (!done() && !deadline.hasExpired())
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
  return done();
}

class X11CompositorWatchTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!server_.isRunning()) GTEST_SKIP() << "Xvfb is not installed or did not start";
  }
  XvfbServer server_{320, 240};
  std::vector<bool> changes_;
};

TEST(X11CompositorWatchEdge, UnreachableDisplayCannotBeFollowed) {
  X11CompositorWatch watch(":4711");
  EXPECT_FALSE(watch.start([](bool) {}));
  EXPECT_FALSE(watch.isPresent());
  EXPECT_FALSE(watch.refresh());
}

TEST_F(X11CompositorWatchTest, ManagerKilledWhileFollowedIsSeenGone) {
  FakeCompositor compositor(server_.display());
  ASSERT_TRUE(compositor.isValid());
  compositor.takeSelection();
  X11CompositorWatch watch(server_.display());
  EXPECT_TRUE(watch.isPresent());
  ASSERT_TRUE(watch.start([this](bool present) { changes_.push_back(present); }));

  compositor.quit();
  EXPECT_TRUE(eventually([&] { return !watch.isPresent(); }));
  EXPECT_EQ(changes_, std::vector<bool>{false});
}

TEST_F(X11CompositorWatchTest, ManagerStartedLaterIsSeenComing) {
  X11CompositorWatch watch(server_.display());
  EXPECT_FALSE(watch.isPresent());
  ASSERT_TRUE(watch.start([this](bool present) { changes_.push_back(present); }));
  EXPECT_TRUE(watch.isFollowing());

  FakeCompositor compositor(server_.display());
  ASSERT_TRUE(compositor.isValid());
  compositor.takeSelection();
  EXPECT_TRUE(eventually([&] { return watch.isPresent(); }));
  EXPECT_EQ(changes_, std::vector<bool>{true});
}

TEST_F(X11CompositorWatchTest, ManagerComingAndGoingIsFollowedEachTime) {
  X11CompositorWatch watch(server_.display());
  ASSERT_TRUE(watch.start([this](bool present) { changes_.push_back(present); }));
  for (int round = 0; round < 3; ++round) {
    FakeCompositor compositor(server_.display());
    compositor.takeSelection();
    ASSERT_TRUE(eventually([&] { return watch.isPresent(); })) << "round " << round;
    compositor.destroyWindow();
    ASSERT_TRUE(eventually([&] { return !watch.isPresent(); })) << "round " << round;
  }
  EXPECT_EQ(changes_, (std::vector<bool>{true, false, true, false, true, false}));
}

TEST_F(X11CompositorWatchTest, RefreshAsksTheServerWithoutEvents) {
  X11CompositorWatch watch(server_.display());
  FakeCompositor compositor(server_.display());
  compositor.takeSelection();
  EXPECT_TRUE(watch.refresh());
  compositor.destroyWindow();
  EXPECT_FALSE(watch.refresh());
}

}  // namespace
}  // namespace brimly
