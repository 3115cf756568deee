#include <gtest/gtest.h>
#include <mach/mach.h>

#include <cstdint>

#include "platform/SystemPlatform.h"
#include "sampling/MetricSampler.h"

// Ten thousand samples of the real machine through every macOS reader, the way the panel takes
// one a second: the program's resident size must not grow. CI also runs this program under
// `leaks --atExit`. Runs on macOS only.

namespace brimly {
namespace {

std::uint64_t residentBytes() {
  mach_task_basic_info_data_t info{};
  mach_msg_type_number_t count = MACH_TASK_BASIC_INFO_COUNT;
  if (task_info(mach_task_self(), MACH_TASK_BASIC_INFO, reinterpret_cast<task_info_t>(&info),
                &count) != KERN_SUCCESS) {
    return 0;
  }
  return info.resident_size;
}

TEST(MetricSamplerSoak, TenThousandSamplesDoNotGrowTheResidentSize) {
  const auto platform = makeSystemPlatform();
  MetricSampler sampler(*platform);
  // The first samples make the readers' clients, subscriptions and caches.
  constexpr int kWarmUp = 200;
  for (int i = 0; i < kWarmUp; ++i)
    sampler.sample();
  const std::uint64_t before = residentBytes();
  ASSERT_GT(before, 0u);

  constexpr int kSamples = 10'000;
  for (int i = 0; i < kSamples; ++i)
    sampler.sample();
  const std::uint64_t after = residentBytes();

  EXPECT_EQ(sampler.sampleCounter(), kWarmUp + kSamples);
  // Allocator pages come and go; a leak of even 200 bytes a sample would show as 2 MB.
  constexpr std::uint64_t kSlack = 2 * 1024 * 1024;
  EXPECT_LE(after, before + kSlack) << "resident size went from " << before << " to " << after
                                    << " bytes over " << kSamples << " samples";
}

}  // namespace
}  // namespace brimly
