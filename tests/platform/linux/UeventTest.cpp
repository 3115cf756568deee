#include "platform/linux/Uevent.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

using Lines = std::vector<std::pair<std::string, std::string>>;

TEST(UeventLines, SplitAtTheFirstEqualsSignAndKeepSpaces) {
  EXPECT_EQ(parseUeventLines("POWER_SUPPLY_STATUS=Not charging\nOF_COMPATIBLE_0=a=b\n"),
            (Lines{{"POWER_SUPPLY_STATUS", "Not charging"}, {"OF_COMPATIBLE_0", "a=b"}}));
}

TEST(UeventLines, KeepDuplicatesAndSkipLinesWithoutAKey) {
  EXPECT_EQ(parseUeventLines("A=1\nno equals\n=orphan\nA=2\r\nB="),
            (Lines{{"A", "1"}, {"A", "2"}, {"B", ""}}));
  EXPECT_TRUE(parseUeventLines("").empty());
}

TEST(PowerSupplyUevent, KeysLoseTheirPrefixAndBecomeAttributeNames) {
  const PowerSupplyProperties properties = parsePowerSupplyUevent(
      "DEVTYPE=power_supply\n"
      "POWER_SUPPLY_NAME=BAT0\n"
      "POWER_SUPPLY_TYPE=Battery\n"
      "POWER_SUPPLY_VOLTAGE_NOW=12248000\n"
      "OF_NAME=battery\n");
  ASSERT_NE(properties.find("voltage_now"), nullptr);
  EXPECT_EQ(properties.integer("voltage_now"), 12248000);
  EXPECT_EQ(*properties.find("type"), "Battery");
  EXPECT_EQ(properties.find("devtype"), nullptr);
  EXPECT_EQ(properties.find("of_name"), nullptr);
  EXPECT_EQ(properties.entries().size(), 3u);
}

TEST(PowerSupplyUevent, ARepeatedKeyKeepsItsLastValue) {
  const PowerSupplyProperties properties =
      parsePowerSupplyUevent("POWER_SUPPLY_TYPE=Unknown\nPOWER_SUPPLY_TYPE=Battery\n");
  EXPECT_EQ(*properties.find("type"), "Battery");
  EXPECT_EQ(properties.entries().size(), 1u);
}

TEST(PowerSupplyUevent, NonNumericValuesAreNotIntegers) {
  const PowerSupplyProperties properties =
      parsePowerSupplyUevent("POWER_SUPPLY_CAPACITY=full\nPOWER_SUPPLY_=x\nPOWER_SUPPLY\n");
  EXPECT_EQ(properties.integer("capacity"), std::nullopt);
  EXPECT_EQ(*properties.find("capacity"), "full");
  EXPECT_EQ(properties.entries().size(), 1u);
}

TEST(PowerSupplyUevent, EmptyTextHasNoProperties) {
  EXPECT_TRUE(parsePowerSupplyUevent("").empty());
  EXPECT_TRUE(parsePowerSupplyUevent("\n\n").empty());
}

}  // namespace
}  // namespace brimly
