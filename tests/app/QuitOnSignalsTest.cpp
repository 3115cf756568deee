#include "app/QuitOnSignals.h"

#include <gtest/gtest.h>
#include <pthread.h>
#include <signal.h>
#include <sys/resource.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTimer>

namespace brimly {
namespace {

// Runs the application's event loop until something calls quit(), for at most `limitMs`: returns
// true when it was quit, false when the limit ended it.
bool eventLoopQuits(int limitMs = 5000) {
  bool timedOut = false;
  QTimer limit;
  limit.setSingleShot(true);
  QObject::connect(&limit, &QTimer::timeout, [&timedOut] {
    timedOut = true;
    QCoreApplication::exit(1);
  });
  limit.start(limitMs);
  const int status = QCoreApplication::exec();
  return !timedOut && status == 0;
}

struct sigaction currentAction(int signalNumber) {
  struct sigaction action {};
  ::sigaction(signalNumber, nullptr, &action);
  return action;
}

class QuitOnSignalsTest : public ::testing::TestWithParam<int> {};

TEST_P(QuitOnSignalsTest, SignalQuitsTheEventLoopOnTheMainThread) {
  QuitOnSignals quitOnSignals;
  ASSERT_TRUE(quitOnSignals.isActive());
  QSignalSpy requested(&quitOnSignals, &QuitOnSignals::quitRequested);
  QSignalSpy aboutToQuit(QCoreApplication::instance(), &QCoreApplication::aboutToQuit);

  ASSERT_EQ(::raise(GetParam()), 0);
  EXPECT_TRUE(eventLoopQuits());
  ASSERT_EQ(requested.count(), 1);
  EXPECT_EQ(requested.at(0).at(0).toInt(), GetParam());
  EXPECT_EQ(aboutToQuit.count(), 1);
}

INSTANTIATE_TEST_SUITE_P(EndingSignals, QuitOnSignalsTest,
                         ::testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const ::testing::TestParamInfo<int>& info) {
                           return std::string(info.param == SIGTERM  ? "SIGTERM"
                                              : info.param == SIGINT ? "SIGINT"
                                                                     : "SIGHUP");
                         });

TEST(QuitOnSignalsEdge, StormOfSignalsNeitherBlocksNorQuitsTwice) {
  QuitOnSignals quitOnSignals;
  QSignalSpy requested(&quitOnSignals, &QuitOnSignals::quitRequested);
  // Far more than the pipe holds: the handler must never wait for room.
  for (int i = 0; i < 70'000; ++i)
    ASSERT_EQ(::raise(SIGTERM), 0);
  EXPECT_TRUE(eventLoopQuits());
  EXPECT_EQ(requested.count(), 1);
}

TEST(QuitOnSignalsEdge, SignalHeldDuringStartUpQuitsOnceTakenOver) {
  QuitOnSignals::holdUntilTaken();
  ASSERT_EQ(::raise(SIGTERM), 0);  // held back: the default action would end this test program
  sigset_t pending;
  ASSERT_EQ(::sigpending(&pending), 0);
  EXPECT_TRUE(sigismember(&pending, SIGTERM));

  QuitOnSignals quitOnSignals;
  QSignalSpy requested(&quitOnSignals, &QuitOnSignals::quitRequested);
  EXPECT_TRUE(eventLoopQuits());
  ASSERT_EQ(requested.count(), 1);
  EXPECT_EQ(requested.at(0).at(0).toInt(), SIGTERM);
  sigset_t blocked;
  ASSERT_EQ(::pthread_sigmask(SIG_BLOCK, nullptr, &blocked), 0);
  EXPECT_FALSE(sigismember(&blocked, SIGTERM));
}

TEST(QuitOnSignalsEdge, SignalIgnoredAtStartStaysIgnored) {
  struct sigaction ignore {};
  ignore.sa_handler = SIG_IGN;
  struct sigaction before {};
  ASSERT_EQ(::sigaction(SIGHUP, &ignore, &before), 0);
  {
    QuitOnSignals quitOnSignals;
    EXPECT_EQ(currentAction(SIGHUP).sa_handler, SIG_IGN);
    EXPECT_NE(currentAction(SIGTERM).sa_handler, SIG_DFL);
  }
  ::sigaction(SIGHUP, &before, nullptr);
}

TEST(QuitOnSignalsEdge, PreviousHandlersComeBackWhenItGoes) {
  ASSERT_EQ(currentAction(SIGTERM).sa_handler, SIG_DFL);
  {
    QuitOnSignals quitOnSignals;
    EXPECT_NE(currentAction(SIGTERM).sa_handler, SIG_DFL);
  }
  EXPECT_EQ(currentAction(SIGTERM).sa_handler, SIG_DFL);
  EXPECT_EQ(currentAction(SIGINT).sa_handler, SIG_DFL);
  EXPECT_EQ(currentAction(SIGHUP).sa_handler, SIG_DFL);
}

TEST(QuitOnSignalsEdge, WithoutAPipeHeldSignalsGetTheirDefaultActionBack) {
  QuitOnSignals::holdUntilTaken({SIGUSR2});
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizers' runtime opens files of its own while it checks, and fails "
                  "without a descriptor to spare";
#endif
  // No descriptor left for the pipe: every one below the lowest free one is in use.
  const int lowestFree = ::dup(0);
  ASSERT_GE(lowestFree, 0);
  ::close(lowestFree);
  struct rlimit before {};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
  struct rlimit tight = before;
  tight.rlim_cur = static_cast<rlim_t>(lowestFree);
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &tight), 0);
  {
    QuitOnSignals quitOnSignals({SIGUSR2});
    ::setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_FALSE(quitOnSignals.isActive());
    EXPECT_EQ(currentAction(SIGUSR2).sa_handler, SIG_DFL);
  }
  sigset_t blocked;
  ASSERT_EQ(::pthread_sigmask(SIG_BLOCK, nullptr, &blocked), 0);
  EXPECT_FALSE(sigismember(&blocked, SIGUSR2));
}

TEST(QuitOnSignals, OnlyTheGivenSignalsAreTaken) {
  QuitOnSignals quitOnSignals({SIGUSR1});
  EXPECT_EQ(currentAction(SIGTERM).sa_handler, SIG_DFL);
  QSignalSpy requested(&quitOnSignals, &QuitOnSignals::quitRequested);
  ASSERT_EQ(::raise(SIGUSR1), 0);
  EXPECT_TRUE(eventLoopQuits());
  EXPECT_EQ(requested.count(), 1);
}

}  // namespace
}  // namespace brimly
