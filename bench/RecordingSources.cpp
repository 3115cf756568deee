#include "RecordingSources.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <array>

namespace brimly::bench {

RecordingFiles::RecordingFiles(std::shared_ptr<const FileSystemView> inner, std::string root,
                               AccessLog** log)
    : inner_(std::move(inner)), root_(std::move(root)), log_(log) {}

void RecordingFiles::note(KernelAccess::Kind kind, std::string_view path) const {
  if (*log_ == nullptr) return;
  std::string absolute = root_;
  if (absolute.empty() || absolute.back() != '/') absolute += '/';
  absolute.append(path);
  (*log_)->push_back({kind, std::move(absolute)});
}

FileRead RecordingFiles::read(std::string_view path) const {
  note(KernelAccess::Kind::read, path);
  return inner_->read(path);
}

std::vector<std::string> RecordingFiles::list(std::string_view path) const {
  note(KernelAccess::Kind::list, path);
  return inner_->list(path);
}

bool RecordingFiles::exists(std::string_view path) const {
  note(KernelAccess::Kind::exists, path);
  return inner_->exists(path);
}

std::string RecordingFiles::linkTarget(std::string_view path) const {
  note(KernelAccess::Kind::linkTarget, path);
  return inner_->linkTarget(path);
}

RecordingStats::RecordingStats(std::shared_ptr<const FileSystemStatsSource> inner, AccessLog** log)
    : inner_(std::move(inner)), log_(log) {}

std::optional<FileSystemStats> RecordingStats::statistics(const std::string& path) const {
  if (*log_ != nullptr) (*log_)->push_back({KernelAccess::Kind::statvfs, path});
  return inner_->statistics(path);
}

std::size_t replay(const AccessLog& log) {
  std::size_t bytes = 0;
  std::array<char, 1 << 16> buffer;
  for (const KernelAccess& access : log) {
    const char* path = access.path.c_str();
    switch (access.kind) {
      case KernelAccess::Kind::read: {
        const int fd = ::open(path, O_RDONLY | O_CLOEXEC);
        if (fd < 0) break;
        ssize_t got = 0;
        while ((got = ::read(fd, buffer.data(), buffer.size())) > 0)
          bytes += std::size_t(got);
        ::close(fd);
        break;
      }
      case KernelAccess::Kind::list: {
        DIR* dir = ::opendir(path);
        if (dir == nullptr) break;
        while (const dirent* entry = ::readdir(dir))
          bytes += entry->d_reclen;
        ::closedir(dir);
        break;
      }
      case KernelAccess::Kind::exists: {
        struct stat info {};
        bytes += ::stat(path, &info) == 0 ? 1 : 0;
        break;
      }
      case KernelAccess::Kind::linkTarget: {
        const ssize_t length = ::readlink(path, buffer.data(), buffer.size());
        bytes += length > 0 ? std::size_t(length) : 0;
        break;
      }
      case KernelAccess::Kind::statvfs: {
        struct statvfs info {};
        bytes += ::statvfs(path, &info) == 0 ? std::size_t(info.f_bavail & 1) + 1 : 0;
        break;
      }
    }
  }
  return bytes;
}

}  // namespace brimly::bench
