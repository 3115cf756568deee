#include "core/MetricKind.h"

#include <gtest/gtest.h>

#include <unordered_set>

namespace brimly {
namespace {

using Kinds = std::vector<MetricKind>;

TEST(MetricKind, LowerCaseRawValueNamesItsKind) {
  EXPECT_EQ(MetricKind::fromRawValue("pwr"), MetricKind(MetricKind::pwr));
  EXPECT_EQ(MetricKind::fromRawValue("cpu"), MetricKind(MetricKind::cpu));
  EXPECT_EQ(MetricKind::fromRawValue("temp"), MetricKind(MetricKind::temp));
}

TEST(MetricKind, OtherSpellingsNameNothing) {
  EXPECT_EQ(MetricKind::fromRawValue("PWR"), std::nullopt);
  EXPECT_EQ(MetricKind::fromRawValue("Pwr"), std::nullopt);
  EXPECT_EQ(MetricKind::fromRawValue("power"), std::nullopt);
  EXPECT_EQ(MetricKind::fromRawValue(""), std::nullopt);
  EXPECT_EQ(MetricKind::fromRawValue(" pwr"), std::nullopt);
  EXPECT_EQ(MetricKind::fromRawValue("pwr "), std::nullopt);
}

TEST(MetricKind, AllCasesAndDefaultOrderListTheSixKindsInDeclarationOrder) {
  const Kinds expected{MetricKind::cpu, MetricKind::gpu,  MetricKind::ram,
                       MetricKind::disk, MetricKind::temp, MetricKind::pwr};
  EXPECT_EQ(MetricKind::allCases(), expected);
  EXPECT_EQ(MetricKind::defaultOrder(), expected);
}

TEST(MetricKind, RawValuesAndDisplayNamesFollowTheTable) {
  const std::vector<std::pair<std::string_view, std::string_view>> expected{
      {"cpu", "CPU"}, {"gpu", "GPU"}, {"ram", "RAM"},
      {"disk", "DISK"}, {"temp", "TEMP"}, {"pwr", "PWR"}};
  ASSERT_EQ(MetricKind::allCases().size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(MetricKind::allCases()[i].rawValue(), expected[i].first);
    EXPECT_EQ(MetricKind::allCases()[i].displayName(), expected[i].second);
  }
}

TEST(MetricKind, RawValueRoundTripsForEveryKind) {
  for (MetricKind kind : MetricKind::allCases()) {
    EXPECT_EQ(MetricKind::fromRawValue(kind.rawValue()), kind);
  }
}

TEST(MetricKind, DisplayNamesNameNoKind) {
  for (MetricKind kind : MetricKind::allCases()) {
    EXPECT_EQ(MetricKind::fromRawValue(kind.displayName()), std::nullopt);
  }
}

TEST(MetricKind, IsOneByteAndHashable) {
  EXPECT_EQ(sizeof(MetricKind), 1u);
  std::unordered_set<MetricKind> kinds(MetricKind::allCases().begin(),
                                       MetricKind::allCases().end());
  EXPECT_EQ(kinds.size(), 6u);
  EXPECT_TRUE(kinds.contains(MetricKind::disk));
}

}  // namespace
}  // namespace brimly
