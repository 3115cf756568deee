#include "platform/linux/DynamicNvmlLibrary.h"

#include <dlfcn.h>

#include <utility>

namespace brimly {
namespace {

// The few declarations of nvml.h that are used, with NVML's own layouts.
using NvmlReturn = int;  // nvmlReturn_t; 0 is success
using NvmlDevice = struct NvmlDeviceOpaque*;
struct NvmlUtilization {
  unsigned int gpu;
  unsigned int memory;
};
constexpr NvmlReturn kNvmlSuccess = 0;
constexpr unsigned kNameBufferSize = 96;  // NVML_DEVICE_NAME_V2_BUFFER_SIZE

template <typename Function>
Function symbol(void* handle, const char* name) {
  return reinterpret_cast<Function>(::dlsym(handle, name));
}

}  // namespace

struct DynamicNvmlLibrary::Functions {
  NvmlReturn (*init)() = nullptr;
  NvmlReturn (*shutdown)() = nullptr;
  NvmlReturn (*getCount)(unsigned int*) = nullptr;
  NvmlReturn (*getHandleByIndex)(unsigned int, NvmlDevice*) = nullptr;
  NvmlReturn (*getUtilizationRates)(NvmlDevice, NvmlUtilization*) = nullptr;
  NvmlReturn (*getName)(NvmlDevice, char*, unsigned int) = nullptr;
};

DynamicNvmlLibrary::DynamicNvmlLibrary(std::string libraryName)
    : libraryName_(std::move(libraryName)) {}

DynamicNvmlLibrary::~DynamicNvmlLibrary() {
  close();
  functions_.reset();
  if (handle_ != nullptr) ::dlclose(handle_);
}

bool DynamicNvmlLibrary::load() {
  if (functions_ != nullptr) return true;
  if (handle_ == nullptr) {
    handle_ = ::dlopen(libraryName_.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle_ == nullptr) {
      const char* reason = ::dlerror();
      lastError_ = reason != nullptr ? reason : libraryName_ + " could not be loaded";
      return false;
    }
  }
  auto functions = std::make_unique<Functions>();
  // nvml.h maps the plain names onto these versioned entry points; the unversioned ones are
  // the old behaviour (initialising every GPU at once).
  functions->init = symbol<decltype(functions->init)>(handle_, "nvmlInit_v2");
  functions->shutdown = symbol<decltype(functions->shutdown)>(handle_, "nvmlShutdown");
  functions->getCount = symbol<decltype(functions->getCount)>(handle_, "nvmlDeviceGetCount_v2");
  functions->getHandleByIndex =
      symbol<decltype(functions->getHandleByIndex)>(handle_, "nvmlDeviceGetHandleByIndex_v2");
  functions->getUtilizationRates =
      symbol<decltype(functions->getUtilizationRates)>(handle_, "nvmlDeviceGetUtilizationRates");
  functions->getName = symbol<decltype(functions->getName)>(handle_, "nvmlDeviceGetName");
  if (functions->init == nullptr || functions->shutdown == nullptr ||
      functions->getCount == nullptr || functions->getHandleByIndex == nullptr ||
      functions->getUtilizationRates == nullptr) {
    lastError_ = libraryName_ + " lacks the functions needed";
    return false;
  }
  functions_ = std::move(functions);
  return true;
}

bool DynamicNvmlLibrary::open() {
  if (initialised_) return true;
  if (!load()) return false;
  const NvmlReturn result = functions_->init();
  if (result != kNvmlSuccess) {
    lastError_ = "nvmlInit_v2 returned " + std::to_string(result);
    return false;
  }
  initialised_ = true;
  lastError_.clear();
  return true;
}

void DynamicNvmlLibrary::close() {
  if (!initialised_) return;
  functions_->shutdown();
  initialised_ = false;
}

std::optional<unsigned> DynamicNvmlLibrary::deviceCount() {
  if (!initialised_) return std::nullopt;
  unsigned int count = 0;
  if (functions_->getCount(&count) != kNvmlSuccess) return std::nullopt;
  return count;
}

NvmlDeviceReading DynamicNvmlLibrary::readDevice(unsigned index) {
  NvmlDeviceReading reading;
  reading.index = index;
  if (!initialised_) return reading;
  NvmlDevice device = nullptr;
  if (functions_->getHandleByIndex(index, &device) != kNvmlSuccess) return reading;
  reading.reachable = true;
  if (functions_->getName != nullptr) {
    char name[kNameBufferSize] = {};
    if (functions_->getName(device, name, kNameBufferSize) == kNvmlSuccess) {
      name[kNameBufferSize - 1] = '\0';
      reading.name = std::string(name);
    }
  }
  NvmlUtilization utilization{};
  if (functions_->getUtilizationRates(device, &utilization) == kNvmlSuccess) {
    reading.gpuPercent = utilization.gpu;
    reading.memoryPercent = utilization.memory;
  }
  return reading;
}

}  // namespace brimly
