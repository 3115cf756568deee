#include "app/StandardOutput.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <functional>
#include <iostream>
#include <string>

namespace brimly {
namespace {

// What a child process with standard output set up by `prepareOutput` said on standard error,
// and its exit status, after printing `text` (through stdio and std::cout, half each) with
// writeToStandardOutput().
struct ChildRun {
  int status = -1;
  std::string standardError;
};

ChildRun printInAChild(const std::function<void()>& prepareOutput, const std::string& text,
                       bool* printRan = nullptr) {
  int errors[2];
  int ran[2];
  if (::pipe(errors) != 0 || ::pipe(ran) != 0) return {};
  const pid_t child = ::fork();
  if (child == 0) {
    ::dup2(errors[1], STDERR_FILENO);
    ::close(errors[0]);
    ::close(ran[0]);
    prepareOutput();
    ::_exit(writeToStandardOutput([&] {
      [[maybe_unused]] const ssize_t told = ::write(ran[1], "r", 1);
      std::fputs(text.substr(0, text.size() / 2).c_str(), stdout);
      std::cout << text.substr(text.size() / 2);
      return 7;
    }));
  }
  ::close(errors[1]);
  ::close(ran[1]);
  ChildRun run;
  char buffer[256];
  for (ssize_t got; (got = ::read(errors[0], buffer, sizeof buffer)) > 0;)
    run.standardError.append(buffer, static_cast<std::size_t>(got));
  char flag = 0;
  if (printRan != nullptr) *printRan = ::read(ran[0], &flag, 1) == 1;
  ::close(errors[0]);
  ::close(ran[0]);
  int status = 0;
  ::waitpid(child, &status, 0);
  run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return run;
}

void outputTo(const char* path) {
  const int fd = ::open(path, O_WRONLY);
  ::dup2(fd, STDOUT_FILENO);
  ::close(fd);
}

TEST(StandardOutputEdge, FullDeviceGivesItsOwnStatusAndOneLine) {
  const ChildRun run = printInAChild([] { outputTo("/dev/full"); }, std::string(100, 'x') + "\n");
  EXPECT_EQ(run.status, kOutputFailedExitStatus);
  EXPECT_EQ(run.standardError,
            "Brimly: cannot write to standard output: No space left on device\n");
}

TEST(StandardOutputEdge, TextLargerThanTheBufferIsCaughtToo) {
  const ChildRun run = printInAChild([] { outputTo("/dev/full"); }, std::string(1 << 20, 'x'));
  EXPECT_EQ(run.status, kOutputFailedExitStatus);
  EXPECT_EQ(run.standardError.rfind("Brimly: cannot write to standard output", 0), 0u);
  EXPECT_EQ(std::count(run.standardError.begin(), run.standardError.end(), '\n'), 1);
}

TEST(StandardOutputEdge, ClosedOutputIsNeverWrittenAndSaysSo) {
  bool printRan = true;
  const ChildRun run = printInAChild([] { ::close(STDOUT_FILENO); }, "text\n", &printRan);
  EXPECT_EQ(run.status, kOutputFailedExitStatus);
  EXPECT_EQ(run.standardError, "Brimly: cannot write to standard output: Bad file descriptor\n");
  EXPECT_FALSE(printRan);
}

TEST(StandardOutput, TextThatArrivesGivesThePrintersStatusAndNoLine) {
  const ChildRun run = printInAChild([] { outputTo("/dev/null"); }, "text\n");
  EXPECT_EQ(run.status, 7);
  EXPECT_EQ(run.standardError, "");
}

}  // namespace
}  // namespace brimly
