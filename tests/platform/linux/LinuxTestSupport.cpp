#include "LinuxTestSupport.h"

#include <algorithm>

#include "platform/linux/RootedFileSystem.h"

namespace brimly::testing {
namespace {

bool endsWith(std::string_view text, std::string_view suffix) {
  return text.size() >= suffix.size() && text.substr(text.size() - suffix.size()) == suffix;
}

}  // namespace

std::string fixturePath(std::string_view name) {
  return std::string(BRIMLY_LINUX_FIXTURES) + "/" + std::string(name);
}

RecordingFileSystem::RecordingFileSystem(std::string root)
    : inner_(std::make_unique<RootedFileSystem>(std::move(root))) {}

FileRead RecordingFileSystem::read(std::string_view path) const {
  reads_.emplace_back(path);
  for (const auto& [suffix, error] : refusals_) {
    if (endsWith(path, suffix)) return FileRead{{}, error};
  }
  return inner_->read(path);
}

std::vector<std::string> RecordingFileSystem::list(std::string_view path) const {
  listings_.emplace_back(path);
  return inner_->list(path);
}

bool RecordingFileSystem::exists(std::string_view path) const {
  return inner_->exists(path);
}

std::string RecordingFileSystem::linkTarget(std::string_view path) const {
  return inner_->linkTarget(path);
}

void RecordingFileSystem::refuse(std::string suffix, int error) {
  refusals_.emplace_back(std::move(suffix), error);
}

int RecordingFileSystem::readsOf(std::string_view path) const {
  return static_cast<int>(std::count(reads_.begin(), reads_.end(), path));
}

int RecordingFileSystem::listingsOf(std::string_view path) const {
  return static_cast<int>(std::count(listings_.begin(), listings_.end(), path));
}

std::vector<std::string> RecordingFileSystem::readsEndingIn(std::string_view suffix) const {
  std::vector<std::string> matching;
  for (const std::string& path : reads_) {
    if (endsWith(path, suffix)) matching.push_back(path);
  }
  return matching;
}

std::shared_ptr<RecordingFileSystem> recordingFixture(std::string_view name) {
  return std::make_shared<RecordingFileSystem>(fixturePath(name));
}

bool FakeNvml::open() {
  if (state_->open) return true;  // as the real library: initialising twice is a no-op here
  ++state_->opens;
  state_->open = state_->openSucceeds;
  return state_->open;
}

void FakeNvml::close() {
  if (!state_->open) return;
  ++state_->closes;
  state_->open = false;
}

std::optional<unsigned> FakeNvml::deviceCount() {
  if (!state_->open) return std::nullopt;
  return static_cast<unsigned>(state_->devices.size());
}

NvmlDeviceReading FakeNvml::readDevice(unsigned index) {
  ++state_->deviceReads;
  if (!state_->open || index >= state_->devices.size()) {
    NvmlDeviceReading unreachable;
    unreachable.index = index;
    return unreachable;
  }
  return state_->devices[index];
}

}  // namespace brimly::testing
