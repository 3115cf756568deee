#include "platform/qt/QtSamplingQueue.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTest>
#include <QThread>
#include <atomic>
#include <mutex>

#include "FakePlatform.h"
#include "sampling/SystemMonitor.h"

namespace brimly {
namespace {

// Facts about the ticks, written on the sampling thread and read on the test thread.
struct TickLog {
  std::atomic<int> count = 0;
  std::mutex mutex;
  QThread* thread = nullptr;
  QString threadName;

  void record() {
    {
      std::lock_guard lock(mutex);
      thread = QThread::currentThread();
      threadName = thread->objectName();
    }
    ++count;
  }
};

TEST(QtSamplingQueue, FirstTickComesAtOnceOnTheNamedSamplingThread) {
  TickLog log;  // outlives the queue, whose destruction waits for a running tick
  QtSamplingQueue queue;
  auto timer = queue.startRepeatingTimer(10.0, [&] { log.record(); });
  EXPECT_TRUE(QTest::qWaitFor([&] { return log.count.load() == 1; }, 2000));
  std::lock_guard lock(log.mutex);
  EXPECT_EQ(log.threadName, QStringLiteral("app.brimly.Brimly.sampler"));
  EXPECT_EQ(QtSamplingQueue::threadName(), QStringLiteral("app.brimly.Brimly.sampler"));
  EXPECT_EQ(log.thread, &queue.samplingThread());
  EXPECT_NE(log.thread, QCoreApplication::instance()->thread());
  EXPECT_EQ(timer->intervalSeconds(), 10.0);
}

TEST(QtSamplingQueue, TicksRepeatAtTheInterval) {
  TickLog log;  // outlives the queue, whose destruction waits for a running tick
  QtSamplingQueue queue;
  auto timer = queue.startRepeatingTimer(0.01, [&] { log.record(); });
  EXPECT_TRUE(QTest::qWaitFor([&] { return log.count.load() >= 4; }, 2000));
}

TEST(QtSamplingQueue, CancelledTimerTicksNoMore) {
  TickLog log;  // outlives the queue, whose destruction waits for a running tick
  QtSamplingQueue queue;
  auto timer = queue.startRepeatingTimer(0.01, [&] { log.record(); });
  ASSERT_TRUE(QTest::qWaitFor([&] { return log.count.load() >= 2; }, 2000));
  timer->cancel();
  QTest::qWait(20);  // lets a tick that was already running finish
  const int afterCancel = log.count.load();
  QTest::qWait(60);
  EXPECT_EQ(log.count.load(), afterCancel);
}

TEST(QtSamplingQueue, DestroyingTheHandleCancelsTheTimer) {
  TickLog log;  // outlives the queue, whose destruction waits for a running tick
  QtSamplingQueue queue;
  auto timer = queue.startRepeatingTimer(0.01, [&] { log.record(); });
  ASSERT_TRUE(QTest::qWaitFor([&] { return log.count.load() >= 1; }, 2000));
  timer.reset();
  QTest::qWait(20);
  const int afterReset = log.count.load();
  QTest::qWait(60);
  EXPECT_EQ(log.count.load(), afterReset);
}

TEST(QtSamplingQueue, TimerCancelledBeforeItsFirstTickNeverTicks) {
  TickLog log;  // outlives the queue, whose destruction waits for a running tick
  QtSamplingQueue queue;
  queue.startRepeatingTimer(0.01, [&] { log.record(); })->cancel();
  QTest::qWait(50);
  EXPECT_EQ(log.count.load(), 0);
}

TEST(QtSamplingQueue, PostedTasksRunOnTheMainThreadInOrder) {
  std::vector<int> order;
  std::vector<QThread*> threads;
  QtSamplingQueue queue;
  auto timer = queue.startRepeatingTimer(10.0, [&] {
    for (int i = 0; i < 3; ++i) {
      queue.postToMain([&, i] {
        order.push_back(i);
        threads.push_back(QThread::currentThread());
      });
    }
  });
  ASSERT_TRUE(QTest::qWaitFor([&] { return order.size() == 3; }, 2000));
  EXPECT_EQ(order, (std::vector<int>{0, 1, 2}));
  for (QThread* thread : threads)
    EXPECT_EQ(thread, QCoreApplication::instance()->thread());
}

TEST(QtSamplingQueue, HandleMayOutliveTheQueue) {
  TickLog log;
  std::unique_ptr<RepeatingTimer> timer;
  {
    QtSamplingQueue queue;
    timer = queue.startRepeatingTimer(0.005, [&] { log.record(); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return log.count.load() >= 1; }, 2000));
  }
  const int afterQueue = log.count.load();
  timer->cancel();
  timer.reset();
  QTest::qWait(20);
  EXPECT_EQ(log.count.load(), afterQueue);
}

TEST(QtSamplingQueue, CarriesAMonitorsSamplesToTheMainThread) {
  testing::FakePlatform platform;
  QtSamplingQueue queue;
  SystemMonitor monitor(platform, queue);
  int applied = 0;
  QObject::connect(&monitor, &SystemMonitor::sampleApplied, [&] {
    EXPECT_EQ(QThread::currentThread(), QCoreApplication::instance()->thread());
    ++applied;
  });
  monitor.start();
  ASSERT_TRUE(QTest::qWaitFor([&] { return applied == 1; }, 2000));
  EXPECT_EQ(monitor.current().batteryPercent, 81);
  EXPECT_EQ(monitor.current().temperatureC, 51.0);
  monitor.cancelTimer();
}

}  // namespace
}  // namespace brimly
