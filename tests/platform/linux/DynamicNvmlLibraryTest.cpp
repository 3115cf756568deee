#include "platform/linux/DynamicNvmlLibrary.h"

#include <dlfcn.h>
#include <gtest/gtest.h>

#include <cstdlib>

namespace brimly {
namespace {

int fakeCounter(const char* name) {
  void* handle = ::dlopen(BRIMLY_FAKE_NVML, RTLD_NOW | RTLD_NOLOAD);
  if (handle == nullptr) return -1;
  auto* counter = reinterpret_cast<int (*)()>(::dlsym(handle, name));
  const int value = counter != nullptr ? counter() : -1;
  ::dlclose(handle);
  return value;
}

TEST(DynamicNvmlLibrary, AMissingLibraryFailsQuietly) {
  DynamicNvmlLibrary nvml("libbrimly-no-such-library.so.1");
  EXPECT_FALSE(nvml.open());
  EXPECT_FALSE(nvml.isOpen());
  EXPECT_FALSE(nvml.lastError().empty());
  EXPECT_EQ(nvml.deviceCount(), std::nullopt);
  EXPECT_FALSE(nvml.readDevice(0).reachable);
  nvml.close();
}

TEST(DynamicNvmlLibrary, ALibraryWithoutTheFunctionsFailsQuietly) {
  DynamicNvmlLibrary nvml("libc.so.6");
  EXPECT_FALSE(nvml.open());
  EXPECT_NE(nvml.lastError().find("lacks"), std::string::npos);
}

TEST(DynamicNvmlLibrary, ReadsDevicesThroughTheLoadedLibrary) {
  DynamicNvmlLibrary nvml(BRIMLY_FAKE_NVML);
  ASSERT_TRUE(nvml.open());
  EXPECT_TRUE(nvml.lastError().empty());
  const int initialisations = fakeCounter("brimlyFakeNvmlInitialisations");
  EXPECT_TRUE(nvml.open());  // already open: not initialised again
  EXPECT_EQ(fakeCounter("brimlyFakeNvmlInitialisations"), initialisations);
  EXPECT_EQ(nvml.deviceCount(), 2u);
  const NvmlDeviceReading first = nvml.readDevice(0);
  EXPECT_TRUE(first.reachable);
  EXPECT_EQ(first.name, "Fake GPU");
  EXPECT_EQ(first.gpuPercent, 42u);
  EXPECT_EQ(first.memoryPercent, 7u);
  const NvmlDeviceReading second = nvml.readDevice(1);
  EXPECT_FALSE(second.reachable);
  EXPECT_EQ(second.index, 1u);
  EXPECT_EQ(second.gpuPercent, std::nullopt);

  const int shutdowns = fakeCounter("brimlyFakeNvmlShutdowns");
  nvml.close();
  EXPECT_FALSE(nvml.isOpen());
  EXPECT_EQ(fakeCounter("brimlyFakeNvmlShutdowns"), shutdowns + 1);
  nvml.close();  // closing twice shuts down once
  EXPECT_EQ(fakeCounter("brimlyFakeNvmlShutdowns"), shutdowns + 1);
  EXPECT_EQ(nvml.deviceCount(), std::nullopt);
  EXPECT_TRUE(nvml.open());  // and it can be opened again
}

TEST(DynamicNvmlLibrary, AFailedInitialisationIsReported) {
  ::setenv("BRIMLY_FAKE_NVML_INIT_FAILS", "1", 1);
  DynamicNvmlLibrary nvml(BRIMLY_FAKE_NVML);
  EXPECT_FALSE(nvml.open());
  ::unsetenv("BRIMLY_FAKE_NVML_INIT_FAILS");
  EXPECT_EQ(nvml.lastError(), "nvmlInit_v2 returned 9");
  EXPECT_EQ(nvml.deviceCount(), std::nullopt);
}

}  // namespace
}  // namespace brimly
