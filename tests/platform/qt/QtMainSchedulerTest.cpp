#include "platform/qt/QtMainScheduler.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QThread>

namespace brimly {
namespace {

TEST(QtMainScheduler, TaskRunsOnTheMainThreadAfterItsDelay) {
  QtMainScheduler scheduler;
  QElapsedTimer clock;
  clock.start();
  bool ran = false;
  qint64 ranAfter = -1;
  QThread* thread = nullptr;
  auto handle = scheduler.runAfter(0.03, [&] {
    ran = true;
    ranAfter = clock.elapsed();
    thread = QThread::currentThread();
  });
  EXPECT_FALSE(ran);
  ASSERT_TRUE(QTest::qWaitFor([&] { return ran; }, 2000));
  EXPECT_GE(ranAfter, 25);
  EXPECT_EQ(thread, QCoreApplication::instance()->thread());
}

TEST(QtMainScheduler, ZeroDelayRunsFromTheEventLoopNotAtOnce) {
  QtMainScheduler scheduler;
  bool ran = false;
  auto handle = scheduler.runAfter(0.0, [&] { ran = true; });
  EXPECT_FALSE(ran);
  EXPECT_TRUE(QTest::qWaitFor([&] { return ran; }, 2000));
}

TEST(QtMainScheduler, CancelledTaskNeverRuns) {
  QtMainScheduler scheduler;
  bool ran = false;
  auto handle = scheduler.runAfter(0.01, [&] { ran = true; });
  handle->cancel();
  QTest::qWait(50);
  EXPECT_FALSE(ran);
}

TEST(QtMainScheduler, DroppedHandleDoesNotCancel) {
  QtMainScheduler scheduler;
  bool ran = false;
  scheduler.runAfter(0.01, [&] { ran = true; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return ran; }, 2000));
}

TEST(QtMainScheduler, TaskRunsOnceAndCancellingAfterwardsIsHarmless) {
  QtMainScheduler scheduler;
  int runs = 0;
  auto handle = scheduler.runAfter(0.005, [&] { ++runs; });
  ASSERT_TRUE(QTest::qWaitFor([&] { return runs == 1; }, 2000));
  QTest::qWait(30);
  EXPECT_EQ(runs, 1);
  handle->cancel();
  handle->cancel();
  QTest::qWait(10);
  EXPECT_EQ(runs, 1);
}

TEST(QtMainScheduler, ShorterDelayRunsFirst) {
  QtMainScheduler scheduler;
  std::string order;
  scheduler.runAfter(0.04, [&] { order += "late "; });
  scheduler.runAfter(0.01, [&] { order += "early "; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return order.size() == 11; }, 2000));
  EXPECT_EQ(order, "early late ");
}

TEST(QtMainScheduler, DestroyedSchedulerDropsItsTasks) {
  bool ran = false;
  std::shared_ptr<DeferredTask> handle;
  {
    QtMainScheduler scheduler;
    handle = scheduler.runAfter(0.01, [&] { ran = true; });
  }
  QTest::qWait(40);
  EXPECT_FALSE(ran);
  handle->cancel();  // after the scheduler is gone: harmless
}

}  // namespace
}  // namespace brimly
