#include "desktop/xwayland/XWaylandZoneRefresh.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QWidget>
#include <vector>

namespace brimly {
namespace {

// A window that records, in order, each frame it paints and each announcement of its shape.
class RecordingWindow : public QWidget {
 public:
  std::vector<char> events;  // 'f' frame, 'a' announcement

 protected:
  void paintEvent(QPaintEvent*) override { events.push_back('f'); }
};

class XWaylandZoneRefreshTest : public ::testing::Test {
 protected:
  XWaylandZoneRefreshTest() {
    window.resize(60, 20);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.events.clear();
  }

  // Waits until the events are `expected` (the settle timers are immediate here).
  bool eventsBecome(const std::vector<char>& expected) {
    return QTest::qWaitFor([&] { return window.events == expected; }, 2000);
  }

  RecordingWindow window;
  XWaylandZoneRefresh refresh{window, [this] { window.events.push_back('a'); }, 0, 0};
};

TEST_F(XWaylandZoneRefreshTest, EachFrameIsAnnouncedThenTheLastIsFollowedByACarriedAnnouncement) {
  window.repaint();
  window.repaint();
  // Each frame right after its announcement; once the frames stop, an announcement, then a frame
  // with none of its own.
  EXPECT_TRUE(eventsBecome({'a', 'f', 'a', 'f', 'a', 'f'}));
  QCoreApplication::processEvents();
  EXPECT_EQ(window.events.size(), 6u);  // the carrying frame starts nothing new
}

TEST_F(XWaylandZoneRefreshTest, DisabledItAnnouncesNothing) {
  refresh.setEnabled(false);
  window.repaint();
  QCoreApplication::processEvents();
  EXPECT_EQ(window.events, (std::vector<char>{'f'}));
}

TEST_F(XWaylandZoneRefreshTest, DisablingItCancelsTheAnnouncementAfterTheFrames) {
  window.repaint();
  refresh.setEnabled(false);
  QCoreApplication::processEvents();
  QCoreApplication::processEvents();
  EXPECT_EQ(window.events, (std::vector<char>{'a', 'f'}));
}

}  // namespace
}  // namespace brimly
