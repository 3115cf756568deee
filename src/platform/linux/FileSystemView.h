#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brimly {

// The outcome of reading one file: its bytes, or the errno of the failed open or read.
struct FileRead {
  std::string text;
  int error = 0;  // 0 on success

  bool ok() const { return error == 0; }
};

// Read-only access to the kernel's files (procfs and sysfs), addressed by paths relative to a root
// directory such as "proc/stat". Production reads below "/"; tests read fixture trees, or wrap a
// view to count or refuse reads.
class FileSystemView {
 public:
  virtual ~FileSystemView() = default;
  // The whole file (up to a size cap); a failed open or read gives its errno. Sysfs attributes
  // often fail only at read time (ENODEV, ENODATA, EIO), so callers must check.
  virtual FileRead read(std::string_view path) const = 0;
  // The entry names of a directory in natural order ("hwmon2" before "hwmon10"), hidden entries
  // left out; empty when the directory is missing or unreadable.
  virtual std::vector<std::string> list(std::string_view path) const = 0;
  // Whether the path names anything. Never reads the file, so it never wakes a device.
  virtual bool exists(std::string_view path) const = 0;
  // The target of a symbolic link, or empty when the path is not a link.
  virtual std::string linkTarget(std::string_view path) const = 0;
};

// Joins two relative path pieces with one slash.
std::string joinPath(std::string_view directory, std::string_view name);

}  // namespace brimly
