#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/linux/FileSystemStats.h"
#include "platform/linux/FileSystemView.h"
#include "platform/linux/NvmlLibrary.h"

namespace brimly::testing {

// The absolute path of a fixture tree under tests/platform/linux/fixtures.
std::string fixturePath(std::string_view name);

// A view of the real file system that records every read and every listing, and can refuse chosen
// paths, as an ordinary user is refused RAPL's energy_uj.
class RecordingFileSystem : public FileSystemView {
 public:
  explicit RecordingFileSystem(std::string root);

  FileRead read(std::string_view path) const override;
  std::vector<std::string> list(std::string_view path) const override;
  bool exists(std::string_view path) const override;
  std::string linkTarget(std::string_view path) const override;

  // Reads of paths ending in `suffix` fail with `error`.
  void refuse(std::string suffix, int error);
  // How often `path` was read.
  int readsOf(std::string_view path) const;
  // Every path read that ends in `suffix`.
  std::vector<std::string> readsEndingIn(std::string_view suffix) const;
  int totalReads() const { return static_cast<int>(reads_.size()); }
  // How often the directory `path` was listed.
  int listingsOf(std::string_view path) const;
  void forget() {
    reads_.clear();
    listings_.clear();
  }

 private:
  std::unique_ptr<FileSystemView> inner_;
  std::vector<std::pair<std::string, int>> refusals_;
  mutable std::vector<std::string> reads_;
  mutable std::vector<std::string> listings_;
};

std::shared_ptr<RecordingFileSystem> recordingFixture(std::string_view name);

// What a fake NVML reports and what was asked of it.
struct FakeNvmlState {
  bool openSucceeds = true;
  std::vector<NvmlDeviceReading> devices;
  int opens = 0;
  int closes = 0;
  int deviceReads = 0;
  bool open = false;
};

class FakeNvml : public NvmlLibrary {
 public:
  explicit FakeNvml(std::shared_ptr<FakeNvmlState> state) : state_(std::move(state)) {}
  bool open() override;
  void close() override;
  bool isOpen() const override { return state_->open; }
  std::optional<unsigned> deviceCount() override;
  NvmlDeviceReading readDevice(unsigned index) override;
  std::string lastError() const override { return state_->openSucceeds ? "" : "fake failure"; }

 private:
  std::shared_ptr<FakeNvmlState> state_;
};

// statvfs figures handed out as configured; records the paths asked about.
class FakeFileSystemStats : public FileSystemStatsSource {
 public:
  explicit FakeFileSystemStats(std::optional<FileSystemStats> stats) : stats_(stats) {}
  std::optional<FileSystemStats> statistics(const std::string& path) const override {
    paths_.push_back(path);
    return stats_;
  }
  const std::vector<std::string>& paths() const { return paths_; }

 private:
  std::optional<FileSystemStats> stats_;
  mutable std::vector<std::string> paths_;
};

}  // namespace brimly::testing
