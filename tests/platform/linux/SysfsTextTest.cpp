#include "platform/linux/SysfsText.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(SysfsString, DropsOneTrailingNewlineAndKeepsInnerSpaces) {
  EXPECT_EQ(sysfsString("Not charging\n"), "Not charging");
  EXPECT_EQ(sysfsString("Package id 0"), "Package id 0");
  EXPECT_EQ(sysfsString("padded \n\n"), "padded \n");
  EXPECT_EQ(sysfsString(""), "");
}

TEST(SysfsInteger, ReadsSignedValuesBeyond32Bits) {
  EXPECT_EQ(parseSysfsInteger("58000\n"), 58000);
  EXPECT_EQ(parseSysfsInteger("-1520000\n"), -1520000);
  EXPECT_EQ(parseSysfsInteger("262143328850\n"), 262143328850);
  EXPECT_EQ(parseSysfsInteger(" 42 \n"), 42);
  EXPECT_EQ(parseSysfsInteger("+7"), 7);
}

TEST(SysfsInteger, RejectsEmptyGarbageAndOverflow) {
  EXPECT_EQ(parseSysfsInteger(""), std::nullopt);
  EXPECT_EQ(parseSysfsInteger("\n"), std::nullopt);
  EXPECT_EQ(parseSysfsInteger("abc\n"), std::nullopt);
  EXPECT_EQ(parseSysfsInteger("12abc"), std::nullopt);
  EXPECT_EQ(parseSysfsInteger("1 2"), std::nullopt);
  EXPECT_EQ(parseSysfsInteger("0x10"), std::nullopt);
  EXPECT_EQ(parseSysfsInteger("-"), std::nullopt);
  EXPECT_EQ(parseSysfsInteger("99999999999999999999\n"), std::nullopt);
  EXPECT_EQ(parseSysfsInteger("9223372036854775807"), INT64_MAX);
  EXPECT_EQ(parseSysfsInteger("-9223372036854775808"), INT64_MIN);
}

TEST(SysfsUnsigned, UsesAll64BitsAndRejectsNegatives) {
  EXPECT_EQ(parseSysfsUnsigned("18446744073709551615\n"), UINT64_MAX);
  EXPECT_EQ(parseSysfsUnsigned("-1"), std::nullopt);
  EXPECT_EQ(parseSysfsUnsigned("18446744073709551616"), std::nullopt);
}

}  // namespace
}  // namespace brimly
