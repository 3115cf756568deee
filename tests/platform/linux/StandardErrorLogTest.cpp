#include <gtest/gtest.h>

#include <string>

#include "platform/SystemLog.h"

namespace brimly {
namespace {

TEST(StandardErrorLog, AnEmptyLineIsJustANewline) {
  testing::internal::CaptureStderr();
  writeSystemLogLine("");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "\n");
}

TEST(StandardErrorLog, WritesTheLineAsItIsAndEndsIt) {
  testing::internal::CaptureStderr();
  writeSystemLogLine("Brimly: login item toggle failed \u2014 Operation not permitted");
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Brimly: login item toggle failed \u2014 Operation not permitted\n");
}

TEST(StandardErrorLog, EachLineEndsBeforeTheNext) {
  testing::internal::CaptureStderr();
  writeSystemLogLine("first");
  writeSystemLogLine("second");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "first\nsecond\n");
}

TEST(StandardErrorLog, ALineBreakInsideStaysOneLine) {
  testing::internal::CaptureStderr();
  writeSystemLogLine("Brimly: login item toggle failed \u2014 /home/a\nb/.config\r is a file");
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "Brimly: login item toggle failed \u2014 /home/a b/.config  is a file\n");
}

TEST(StandardErrorLog, ALongLineArrivesWhole) {
  const std::string line(100'000, 'x');
  testing::internal::CaptureStderr();
  writeSystemLogLine(line);
  EXPECT_EQ(testing::internal::GetCapturedStderr(), line + "\n");
}

}  // namespace
}  // namespace brimly
