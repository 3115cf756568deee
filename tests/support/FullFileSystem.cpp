#include "FullFileSystem.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <vector>

#ifdef __linux__
#include <sched.h>
#include <sys/mount.h>
#endif

namespace brimly::testing {
namespace {

// Mounts a private tmpfs on `folder` in a mount namespace of this process's own.
bool mountFileSystemOfOurOwn(const std::string& folder) {
#ifdef __linux__
  return ::unshare(CLONE_NEWNS) == 0 &&
         ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
         ::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=64k,mode=0700") == 0;
#else
  (void)folder;
  return false;
#endif
}

void writeAll(int fd, const std::string& text) {
  std::size_t done = 0;
  while (done < text.size()) {
    const ssize_t written = ::write(fd, text.data() + done, text.size() - done);
    if (written <= 0) return;
    done += static_cast<std::size_t>(written);
  }
}

}  // namespace

std::string runWithAFullFileSystem(
    const std::function<std::string(const std::string& folder)>& body) {
  const char* tmp = std::getenv("TMPDIR");
  std::string folder =
      std::string(tmp != nullptr && tmp[0] == '/' ? tmp : "/tmp") + "/brimly-full-XXXXXX";
  if (::mkdtemp(folder.data()) == nullptr) return kNoFileSystemOfOurOwn;
  int toParent[2];
  if (::pipe(toParent) != 0) return kNoFileSystemOfOurOwn;
  const pid_t child = ::fork();
  if (child == 0) {
    ::close(toParent[0]);
    writeAll(toParent[1], mountFileSystemOfOurOwn(folder) ? body(folder) : kNoFileSystemOfOurOwn);
    ::_exit(0);
  }
  ::close(toParent[1]);
  std::string report;
  char buffer[512];
  for (;;) {
    const ssize_t got = ::read(toParent[0], buffer, sizeof buffer);
    if (got < 0 && errno == EINTR) continue;
    if (got <= 0) break;
    report.append(buffer, static_cast<std::size_t>(got));
  }
  ::close(toParent[0]);
  ::waitpid(child, nullptr, 0);
  ::rmdir(folder.c_str());
  return report;
}

void fillUp(const std::string& folder) {
  const int fd = ::open((folder + "/filler").c_str(), O_WRONLY | O_CREAT | O_APPEND, 0600);
  if (fd < 0) return;
  const std::vector<char> block(4096, 'x');
  for (std::size_t size = block.size(); size > 0; size /= 2) {
    while (::write(fd, block.data(), size) == static_cast<ssize_t>(size)) {
    }
  }
  ::close(fd);
}

}  // namespace brimly::testing
