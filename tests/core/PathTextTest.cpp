#include "core/PathText.h"

#include <gtest/gtest.h>

#include <string>

namespace brimly {
namespace {

using namespace std::string_literals;

TEST(PathTextEdge, MalformedSequencesAreNoUtf8) {
  EXPECT_FALSE(isUtf8("\xff"));
  EXPECT_FALSE(isUtf8("caf\xe9"));           // Latin-1
  EXPECT_FALSE(isUtf8("\xc3"));              // cut short
  EXPECT_FALSE(isUtf8("\xc0\xaf"));          // overlong '/'
  EXPECT_FALSE(isUtf8("\xe0\x80\xaf"));      // overlong '/'
  EXPECT_FALSE(isUtf8("\xed\xa0\x80"));      // a surrogate
  EXPECT_FALSE(isUtf8("\xf4\x90\x80\x80"));  // above U+10FFFF
  EXPECT_FALSE(isUtf8("\x80"));              // a continuation alone
}

TEST(PathText, WellFormedTextIsUtf8) {
  EXPECT_TRUE(isUtf8(""));
  EXPECT_TRUE(isUtf8("/home/zoë/.config"));
  EXPECT_TRUE(isUtf8("\xed\x9f\xbf"));      // U+D7FF, the last before the surrogates
  EXPECT_TRUE(isUtf8("\xf4\x8f\xbf\xbf"));  // U+10FFFF
  EXPECT_TRUE(isUtf8("a\0b"s));
}

TEST(PathText, PrintablePathShowsEveryByteThatIsNoTextAsAnEscape) {
  EXPECT_EQ(printablePath("/home/zoë/brimly"), "/home/zoë/brimly");
  EXPECT_EQ(printablePath("/opt/caf\xe9/brimly"), "/opt/caf\\xe9/brimly");
  EXPECT_EQ(printablePath("\xff\xfe"), "\\xff\\xfe");
  EXPECT_EQ(printablePath("\xc3"), "\\xc3");
}

}  // namespace
}  // namespace brimly
