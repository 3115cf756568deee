#include "platform/SystemFonts.h"

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace brimly {
namespace {

TEST(MacSystemFontsTest, TheSystemsRoundedDesignIsAFontFileOnThisMac) {
  const std::optional<std::string> file = roundedSystemFontFile();
  ASSERT_TRUE(file.has_value());
  struct stat status {};
  ASSERT_EQ(stat(file->c_str(), &status), 0) << *file;
  EXPECT_TRUE(S_ISREG(status.st_mode)) << *file;
  EXPECT_GT(status.st_size, 0) << *file;
}

}  // namespace
}  // namespace brimly
