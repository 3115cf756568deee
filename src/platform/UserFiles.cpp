#include "platform/UserFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <system_error>
#include <vector>

#include "core/PathText.h"

namespace brimly {
namespace {

std::string systemMessage(int error) {
  return std::generic_category().message(error);
}

std::string failure(const char* action, const std::string& path, int error) {
  return std::string(action) + " " + printablePath(path) + ": " + systemMessage(error);
}

// Why a file with `status` may not be read or replaced by this user, or nothing when it may.
std::optional<std::string> reasonToRefuse(const std::string& path, const struct stat& status) {
  if (S_ISLNK(status.st_mode)) return printablePath(path) + " is a symbolic link";
  if (!S_ISREG(status.st_mode)) return printablePath(path) + " is not a regular file";
  if (status.st_uid != ::geteuid()) return printablePath(path) + " belongs to another user";
  return std::nullopt;
}

class Descriptor {
 public:
  explicit Descriptor(int fd) : fd_(fd) {}
  ~Descriptor() {
    if (fd_ >= 0) ::close(fd_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int get() const { return fd_; }
  // Closes now and answers the error close() reported (some file systems report a failed write
  // only there), or 0.
  int closeReportingError() {
    const int result = ::close(fd_);
    fd_ = -1;
    return result == 0 ? 0 : errno;
  }

 private:
  int fd_;
};

// Writes all of `contents` to `fd`; the error that stopped it, or 0.
int writeAll(int fd, std::string_view contents) {
  while (!contents.empty()) {
    const ssize_t written = ::write(fd, contents.data(), contents.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return errno;
    if (written == 0) return EIO;
    contents.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

}  // namespace

UserFileRead readUserFile(const std::string& path, std::size_t maxBytes) {
  UserFileRead result;
  // Looked at before it is opened: opening a device or a FIFO can have effects of its own.
  struct stat status {};
  if (::stat(path.c_str(), &status) != 0) {
    const int error = errno;
    if (error == ENOENT || error == ENOTDIR) return result;
    result.outcome = UserFileRead::Outcome::refused;
    result.problem = failure("cannot read", path, error);
    return result;
  }
  result.outcome = UserFileRead::Outcome::refused;
  if (const std::optional<std::string> reason = reasonToRefuse(path, status)) {
    result.problem = *reason;
    return result;
  }
  // Something else may have taken its place since: it is checked again once open.
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (file.get() < 0) {
    result.problem = failure("cannot read", path, errno);
    return result;
  }
  if (::fstat(file.get(), &status) != 0) {
    result.problem = failure("cannot read", path, errno);
    return result;
  }
  if (const std::optional<std::string> reason = reasonToRefuse(path, status)) {
    result.problem = *reason;
    return result;
  }
  const std::string tooLarge =
      printablePath(path) + " is larger than " + std::to_string(maxBytes / 1024) + " KiB";
  if (static_cast<std::size_t>(status.st_size) > maxBytes) {
    result.problem = tooLarge;
    return result;
  }
  // One byte more than allowed tells a file that grew since fstat.
  std::vector<char> buffer(maxBytes + 1);
  std::size_t got = 0;
  while (got < buffer.size()) {
    const ssize_t count = ::read(file.get(), buffer.data() + got, buffer.size() - got);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) {
      result.problem = failure("cannot read", path, errno);
      return result;
    }
    if (count == 0) break;
    got += static_cast<std::size_t>(count);
  }
  if (got > maxBytes) {
    result.problem = tooLarge;
    return result;
  }
  result.outcome = UserFileRead::Outcome::read;
  result.contents.assign(buffer.data(), got);
  return result;
}

std::optional<std::string> replaceUserFile(const std::string& path, std::string_view contents) {
  mode_t mode = 0600;
  struct stat status {};
  if (::lstat(path.c_str(), &status) == 0) {
    if (const std::optional<std::string> reason = reasonToRefuse(path, status)) return reason;
    mode = status.st_mode & 07777;
  } else if (errno != ENOENT) {
    return failure("cannot write", path, errno);
  }

  // mkstemp makes the new file for its owner alone and never through a link.
  std::string scratch = path + ".XXXXXX";
  Descriptor file(::mkstemp(scratch.data()));
  if (file.get() < 0) return failure("cannot write", path, errno);
  ::fcntl(file.get(), F_SETFD, FD_CLOEXEC);
  int error = writeAll(file.get(), contents);
  if (error == 0 && ::fchmod(file.get(), mode) != 0) error = errno;
  if (error == 0 && ::fsync(file.get()) != 0) error = errno;
  const int closeError = file.closeReportingError();
  if (error == 0) error = closeError;
  // rename() replaces whatever is at the path now, a link planted meanwhile included, and never
  // writes through it.
  if (error == 0 && ::rename(scratch.c_str(), path.c_str()) != 0) error = errno;
  if (error != 0) {
    ::unlink(scratch.c_str());
    return failure("cannot write", path, error);
  }
  return std::nullopt;
}

std::optional<std::string> makeUserFolders(const std::string& path) {
  std::size_t next = 1;  // the root itself always exists
  while (next <= path.size()) {
    std::size_t end = path.find('/', next);
    if (end == std::string::npos) end = path.size();
    const std::string prefix = path.substr(0, end);
    next = end + 1;
    if (prefix.empty() || prefix.back() == '/') continue;

    struct stat status {};
    if (::stat(prefix.c_str(), &status) == 0) {
      if (S_ISDIR(status.st_mode)) continue;
      return failure("cannot create", prefix, ENOTDIR);
    }
    if (errno != ENOENT) return failure("cannot create", prefix, errno);
    if (::mkdir(prefix.c_str(), 0700) != 0) {
      const int error = errno;
      // Someone else may have made it in the meantime.
      if (error == EEXIST && ::stat(prefix.c_str(), &status) == 0 && S_ISDIR(status.st_mode)) {
        continue;
      }
      return failure("cannot create", prefix, error);
    }
  }
  return std::nullopt;
}

std::string parentFolder(const std::string& path) {
  const std::size_t slash = path.find_last_of('/');
  if (slash == std::string::npos) return ".";
  if (slash == 0) return "/";
  return path.substr(0, slash);
}

}  // namespace brimly
