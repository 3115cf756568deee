#include "platform/PropertyValue.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(PropertyDict, TypedLookUpsAnswerOnlyForTheirOwnType) {
  const PropertyDict dict{{"Current", std::int64_t{-1500}},
                          {"Is Charging", true},
                          {"Power Source State", "AC Power"},
                          {"Load", 37.5}};
  EXPECT_EQ(dict.integer("Current"), -1500);
  EXPECT_EQ(dict.real("Current"), std::nullopt);
  EXPECT_EQ(dict.boolean("Is Charging"), true);
  EXPECT_EQ(dict.integer("Is Charging"), std::nullopt);
  ASSERT_NE(dict.string("Power Source State"), nullptr);
  EXPECT_EQ(*dict.string("Power Source State"), "AC Power");
  EXPECT_EQ(dict.real("Load"), 37.5);
  EXPECT_EQ(dict.integer("Load"), std::nullopt);
  EXPECT_EQ(dict.integer("Missing"), std::nullopt);
  EXPECT_EQ(dict.dict("Current"), nullptr);
}

TEST(PropertyDict, SetReplacesAnExistingKeyAndKeepsItsPlace) {
  PropertyDict dict{{"b", 1}, {"a", 2}};
  dict.set("b", 3);
  ASSERT_EQ(dict.entries().size(), 2u);
  EXPECT_EQ(dict.entries()[0].first, "b");
  EXPECT_EQ(dict.integer("b"), 3);
}

TEST(PropertyDict, NestedDictionariesAreReachable) {
  const PropertyDict service{
      {"IOClass", "AGXAcceleratorG13X"},
      {"PerformanceStatistics", PropertyDict{{"Device Utilization %", 37}}}};
  const PropertyDict* statistics = service.dict("PerformanceStatistics");
  ASSERT_NE(statistics, nullptr);
  EXPECT_EQ(statistics->integer("Device Utilization %"), 37);
}

TEST(PropertyValueDescribe, GivesThePlainTextualForm) {
  EXPECT_EQ(describe(PropertyValue(true)), "true");
  EXPECT_EQ(describe(PropertyValue(false)), "false");
  EXPECT_EQ(describe(PropertyValue(-42)), "-42");
  EXPECT_EQ(describe(PropertyValue(12.5)), "12.5");
  EXPECT_EQ(describe(PropertyValue(0.1)), "0.1");
  EXPECT_EQ(describe(PropertyValue("AC Power")), "AC Power");
  EXPECT_EQ(describe(PropertyValue(PropertyList{1, "a"})), "(1, a)");
  EXPECT_EQ(describe(PropertyValue(PropertyDict{{"k", 1}})), "{k = 1; }");
}

}  // namespace
}  // namespace brimly
