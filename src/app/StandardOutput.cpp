#include "app/StandardOutput.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <iostream>
#include <string>
#include <system_error>

#include "platform/StandardErrorLine.h"

namespace brimly {
namespace {

// Says that the text did not arrive, with the system's reason when it is still known (0 when not:
// a write that failed while the text was printed leaves none behind).
int failed(int error) {
  std::string line = "Brimly: cannot write to standard output";
  if (error != 0) line += ": " + std::generic_category().message(error);
  writeStandardErrorLine(line);
  return kOutputFailedExitStatus;
}

}  // namespace

int writeToStandardOutput(const std::function<int()>& print) {
  if (::fcntl(STDOUT_FILENO, F_GETFD) == -1) return failed(errno);
  const int status = print();
  errno = 0;
  std::cout.flush();
  const bool streamFailed = !std::cout.good();
  const bool stdioFailed = std::fflush(stdout) != 0 || std::ferror(stdout) != 0;
  if (streamFailed || stdioFailed) return failed(errno);
  return status;
}

}  // namespace brimly
