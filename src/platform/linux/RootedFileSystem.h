#pragma once

#include <cstddef>
#include <string>

#include "platform/linux/FileSystemView.h"

namespace brimly {

// The real file system seen from a root directory ("/" in production, a fixture tree in tests).
// Every read opens, reads to the end (or the cap) and closes: nothing is held between readings.
class RootedFileSystem : public FileSystemView {
 public:
  // Files are read up to this many bytes; /proc/stat on a machine with hundreds of processors is
  // still far below it.
  static constexpr std::size_t kReadCap = 1 << 20;

  explicit RootedFileSystem(std::string root = "/");

  FileRead read(std::string_view path) const override;
  std::vector<std::string> list(std::string_view path) const override;
  bool exists(std::string_view path) const override;
  std::string linkTarget(std::string_view path) const override;

  const std::string& root() const { return root_; }
  // The absolute path of a relative one.
  std::string absolute(std::string_view path) const;

 private:
  std::string root_;
};

}  // namespace brimly
