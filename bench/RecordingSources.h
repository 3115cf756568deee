#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/linux/FileSystemStats.h"
#include "platform/linux/FileSystemView.h"

namespace brimly::bench {

// One access the Linux backend made to the kernel's files, with the absolute path it touched.
struct KernelAccess {
  enum class Kind { read, list, exists, linkTarget, statvfs };
  Kind kind;
  std::string path;
};

// The accesses of one `sample()` call, in order.
using AccessLog = std::vector<KernelAccess>;

// Wraps the backend's file view and statvfs source and writes down every access while `log`
// points somewhere, so that a baseline can replay exactly the same kernel work.
class RecordingFiles final : public FileSystemView {
 public:
  RecordingFiles(std::shared_ptr<const FileSystemView> inner, std::string root, AccessLog** log);
  FileRead read(std::string_view path) const override;
  std::vector<std::string> list(std::string_view path) const override;
  bool exists(std::string_view path) const override;
  std::string linkTarget(std::string_view path) const override;

 private:
  void note(KernelAccess::Kind kind, std::string_view path) const;

  std::shared_ptr<const FileSystemView> inner_;
  std::string root_;
  AccessLog** log_;
};

class RecordingStats final : public FileSystemStatsSource {
 public:
  RecordingStats(std::shared_ptr<const FileSystemStatsSource> inner, AccessLog** log);
  std::optional<FileSystemStats> statistics(const std::string& path) const override;

 private:
  std::shared_ptr<const FileSystemStatsSource> inner_;
  AccessLog** log_;
};

// Replays one call's accesses with plain system calls: open, read to the end and close each file;
// open and walk each directory; stat, readlink and statvfs. Returns the bytes read, so that the
// work cannot be optimised away.
std::size_t replay(const AccessLog& log);

}  // namespace brimly::bench
