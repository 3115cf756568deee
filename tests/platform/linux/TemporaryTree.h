#pragma once

#include <string>
#include <string_view>

namespace brimly::testing {

// A directory tree made for one test under the temporary directory and removed with it, for
// cases too small or too odd to keep as a fixture (FIFOs, unreadable files, oversized files).
class TemporaryTree {
 public:
  TemporaryTree();
  ~TemporaryTree();
  TemporaryTree(const TemporaryTree&) = delete;
  TemporaryTree& operator=(const TemporaryTree&) = delete;

  const std::string& root() const { return root_; }
  // Writes a file, creating its parent directories.
  void write(std::string_view path, std::string_view content) const;
  void makeDirectory(std::string_view path) const;
  void makeSymlink(std::string_view path, std::string_view target) const;
  void makeFifo(std::string_view path) const;
  // Removes a file, or a directory with everything in it.
  void remove(std::string_view path) const;

 private:
  std::string absolute(std::string_view path) const;
  std::string root_;
};

}  // namespace brimly::testing
