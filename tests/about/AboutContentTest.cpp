#include "about/AboutContent.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(AboutContentTest, WithoutAVersionItReadsDev) {
  EXPECT_EQ(AboutContent::forVersion(std::nullopt).version, "vdev");
  EXPECT_EQ(AboutContent::forVersion("").version, "vdev");
}

TEST(AboutContentTest, TheVersionFollowsAV) {
  EXPECT_EQ(AboutContent::forVersion("0.1.0").version, "v0.1.0");
  EXPECT_EQ(AboutContent::forVersion("2.10 beta").version, "v2.10 beta");
}

TEST(AboutContentTest, SaysWhatTheProductIsAndWhoMadeIt) {
  const AboutContent content = AboutContent::forVersion("1.0");
  EXPECT_EQ(content.name, "Brimly");
  EXPECT_EQ(content.tagline, "Glance-able system stats in your notch.");
  EXPECT_EQ(content.by, "by");
  EXPECT_EQ(content.brandName, "Korvel");
  EXPECT_FALSE(content.footer.empty());
  EXPECT_EQ(content.footer.find('\n'), std::string::npos);
}

}  // namespace
}  // namespace brimly
