#include "TemporaryTree.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <vector>

namespace brimly::testing {

TemporaryTree::TemporaryTree() {
  const char* base = std::getenv("TMPDIR");
  std::string pattern =
      std::string(base != nullptr && *base != '\0' ? base : "/tmp") + "/brimly-tree-XXXXXX";
  std::vector<char> buffer(pattern.begin(), pattern.end());
  buffer.push_back('\0');
  if (::mkdtemp(buffer.data()) == nullptr) throw std::runtime_error("mkdtemp failed");
  root_ = buffer.data();
}

TemporaryTree::~TemporaryTree() {
  std::error_code ignored;
  std::filesystem::remove_all(root_, ignored);
}

std::string TemporaryTree::absolute(std::string_view path) const {
  return root_ + "/" + std::string(path);
}

void TemporaryTree::write(std::string_view path, std::string_view content) const {
  const std::filesystem::path file = absolute(path);
  std::filesystem::create_directories(file.parent_path());
  std::ofstream out(file, std::ios::binary);
  out.write(content.data(), static_cast<std::streamsize>(content.size()));
}

void TemporaryTree::makeDirectory(std::string_view path) const {
  std::filesystem::create_directories(absolute(path));
}

void TemporaryTree::makeSymlink(std::string_view path, std::string_view target) const {
  const std::filesystem::path link = absolute(path);
  std::filesystem::create_directories(link.parent_path());
  std::filesystem::create_symlink(std::string(target), link);
}

void TemporaryTree::makeFifo(std::string_view path) const {
  const std::filesystem::path fifo = absolute(path);
  std::filesystem::create_directories(fifo.parent_path());
  if (::mkfifo(fifo.c_str(), 0600) != 0) throw std::runtime_error("mkfifo failed");
}

void TemporaryTree::remove(std::string_view path) const {
  std::filesystem::remove_all(absolute(path));
}

}  // namespace brimly::testing
